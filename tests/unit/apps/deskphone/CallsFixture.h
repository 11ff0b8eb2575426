#pragma once

#include "apps/deskphone/Calls.h"
#include "apps/deskphone/Ear.h"
#include "kit/Fence.h"
#include "unit/exchange/StandingClock.h"

#include "apps/exchange/Exchange.h"

#include <gmock/gmock.h>

#include <string>

namespace test {

/// The telephone's calls, and an exchange with two lines and four who do as they are told, on a clock of the test's.
class CallsFixture {
public:
    CallsFixture() { calls.startListening(); }
    CallsFixture(const CallsFixture&) = delete;
    CallsFixture& operator=(const CallsFixture&) = delete;
    ~CallsFixture() { calls.stopListening(); }

    /// Lets time pass until all that is due has become true.
    void pass(std::int64_t milliseconds)
    {
        clock.pass(milliseconds);
        settle();
    }

    void settle()
    {
        exchange.waitUntilHeard();
        DisplayAPI::kit::Fence().wait();
    }

    /// As the user has it done: on a thread that answers him, on which the calls become true.
    exchange::CallId place(exchange::LineNumber line, const exchange::Party& party)
    {
        exchange::CallId call = exchange::NO_CALL;
        deskphone::Ear user([&](DisplayAPI::Command*) { call = calls.place(line, party); });
        user.postCommandAction(nullptr, nullptr);
        DisplayAPI::kit::Fence().wait();
        return call;
    }

    void say(const std::string& sentence) { EXPECT_EQ(exchange.command(sentence), ""); }

    StandingClock clock;
    exchange::Exchange exchange{exchange::Numbers::parse("numbers", "line 1 is 3301\n"
                                                                    "line 2 is 3302\n"
                                                                    "4710 \"Ada\" never answers\n"
                                                                    "4711 \"Bert\" never answers\n"
                                                                    "4712 \"Cleo\" never answers\n"
                                                                    "4713 \"Dora\" never answers\n"),
                                clock};
    deskphone::Calls calls{exchange};
};

} // namespace test
