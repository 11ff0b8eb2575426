#pragma once

#include "apps/exchange/Exchange.h"
#include "unit/exchange/StandingClock.h"

#include <gtest/gtest.h>
#include <mutex>
#include <string>
#include <vector>

namespace test {

/// "500 #1 ringing back 4712 (Bob) by 4711 to 4713 with #2: busy, a text"; on a line that is not the first "on 2".
inline std::string said(const exchange::CallEvent& event)
{
    std::string text = std::to_string(event.at) + " #" + std::to_string(event.call);
    text += event.line != 1 ? " on " + std::to_string(event.line) : "";
    text += " " + std::string(nameOf(event.state)) + " " + event.other.number;
    text += event.other.name.empty() ? "" : " (" + event.other.name + ")";
    text += event.forwardedBy.number.empty() ? "" : " by " + event.forwardedBy.number;
    text += event.to.number.empty() ? "" : " to " + event.to.number;
    text += event.with == exchange::NO_CALL ? "" : " with #" + std::to_string(event.with);
    text += event.reason == exchange::Reason::NONE ? "" : ": " + std::string(nameOf(event.reason));
    return text + (event.text.empty() ? "" : ", " + event.text);
}

inline std::string said(const exchange::Line& line)
{
    std::string text = "line " + std::to_string(line.number);
    text += line.isRegistered ? "" : " not registered";
    text += line.messages == 0 ? "" : " " + std::to_string(line.messages) + " messages";
    text += line.doNotDisturb ? " not disturbed" : "";
    text += line.takesSeveral ? "" : " takes one";
    text += line.forwarding == exchange::Forwarding() ? "" : " forwarded";
    return text;
}

/// Notes what it hears.
class NotingListener : public exchange::TelephonyListener {
public:
    void callChanged(const exchange::CallEvent& event) override { note(said(event)); }
    void lineChanged(const exchange::Line& line) override { note(said(line)); }

    /// Since the last time.
    std::vector<std::string> take()
    {
        const std::lock_guard lock(mMutex);
        return std::exchange(mNotes, {});
    }

private:
    void note(std::string text)
    {
        const std::lock_guard lock(mMutex);
        mNotes.push_back(std::move(text));
    }

    std::mutex mMutex;
    std::vector<std::string> mNotes;
};

/// An exchange with two lines, 3301 and 3302, on a clock of the test's.
class ExchangeFixture {
public:
    explicit ExchangeFixture(const std::string& numbers = {})
        : parsed(exchange::Numbers::parse("numbers", "line 1 is 3301 \"Grace\"\nline 2 is 3302\n" + numbers)),
          exchange(parsed, clock)
    {
        EXPECT_TRUE(parsed.errors.empty()) << parsed.errors.front();
        exchange.setListener(&listener);
    }
    ExchangeFixture(const ExchangeFixture&) = delete;
    ExchangeFixture& operator=(const ExchangeFixture&) = delete;
    ~ExchangeFixture() { exchange.setListener(nullptr); }

    void pass(std::int64_t milliseconds)
    {
        clock.pass(milliseconds);
        exchange.waitUntilHeard();
    }

    /// All that has been heard since the last time.
    std::vector<std::string> heard()
    {
        exchange.waitUntilHeard();
        return listener.take();
    }

    StandingClock clock;
    NotingListener listener;
    exchange::Numbers parsed;
    exchange::Exchange exchange;
};

} // namespace test
