#include "simulator/script/HostPhone.h"

#include "host/frontend/Wire.h"
#include "host/input/Keyboard.h"
#include "host/toolkit/Loop.h"
#include "simulator/core/DisplayedWords.h"

#include <future>
#include <thread>
#include <utility>

namespace simulator {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

constexpr seconds PATIENCE(10);

/// An application may have a thread that never rests.
constexpr seconds PATIENCE_WITH_THREADS(2);

/// How often it is looked what the GUI thread is about.
constexpr milliseconds GLANCE(200);

/// How long an idle loop may take to notice that it has something to do again.
constexpr milliseconds PAUSE(5);

} // namespace

HostPhone::HostPhone(host::Lcd& lcd) : mLcd(lcd), mReader(lcd, displayedWords)
{
    mLcd.setFrameListener([this] { mReader.frameReady(); });
}

HostPhone::~HostPhone()
{
    mLcd.setFrameListener({});
    leave();
}

void HostPhone::leave()
{
    mReader.leave();
    mClock.leave();
    mWatch.end();
}

bool HostPhone::press(PegKey key)
{
    return host::Keyboard::instance().press(key);
}

bool HostPhone::release(PegKey key)
{
    return host::Keyboard::instance().release(key);
}

void HostPhone::pass(std::int64_t milliseconds)
{
    mClock.pass(milliseconds);
}

bool HostPhone::advance(std::int64_t milliseconds)
{
    return mClock.advance(milliseconds);
}

bool HostPhone::settle(const std::function<void()>& standsStill)
{
    std::function<void()> untold = standsStill;
    return becomeIdle(untold) && (waitForThreads(), becomeIdle(untold));
}

/// Calls `standsStill` at most once, and empties it then.
bool HostPhone::becomeIdle(std::function<void()>& standsStill)
{
    const auto deadline = steady_clock::now() + PATIENCE;
    while (isThere() && steady_clock::now() < deadline) {
        if (host::Loop::waitUntilIdle(GLANCE))
            return true;
        if (standsStill && host::Loop::standsStill())
            std::exchange(standsStill, {})();
        mClock.rest(PAUSE);
    }
    return false;
}

void HostPhone::waitForThreads()
{
    const auto deadline = steady_clock::now() + PATIENCE_WITH_THREADS;
    while (isThere() && !mOtherThreads.areAtRest() && steady_clock::now() < deadline)
        std::this_thread::sleep_for(milliseconds(1));
}

std::string HostPhone::say(const std::string& wire, const std::string& line)
{
    return host::Wire::say(wire, line);
}

/// Between two messages. Nothing where the GUI thread does not come to it.
template <typename Answer>
std::optional<Answer> HostPhone::onGuiThread(std::function<Answer()> ask)
{
    const auto answer = std::make_shared<std::promise<std::optional<Answer>>>(); // it may come when nobody waits
    auto answered = answer->get_future();
    mReader.read([answer, ask = std::move(ask)](const ScreenPtr& screen) {
        answer->set_value(screen != nullptr ? std::optional(ask()) : std::nullopt);
    });
    return answered.wait_for(PATIENCE) == std::future_status::ready ? answered.get() : std::nullopt;
}

std::optional<host::Workplace> HostPhone::workplace(const std::vector<std::string>& wanted)
{
    return onGuiThread<host::Workplace>([wanted] { return host::Workplace::read(wanted); });
}

host::Workplace::Typed HostPhone::type(const std::string& text)
{
    return onGuiThread<host::Workplace::Typed>([text] { return host::Workplace::type(text); })
        .value_or(host::Workplace::Typed::NOWHERE);
}

std::string HostPhone::translate(const std::string& key)
{
    return onGuiThread<std::string>([key] { return displayedText(key); }).value_or(key);
}

void HostPhone::rest(milliseconds time)
{
    mClock.rest(time);
}

host::Picture HostPhone::picture()
{
    return mLcd.picture();
}

ScreenPtr HostPhone::screen()
{
    return mReader.read(PATIENCE);
}

std::optional<std::string> HostPhone::waitFor(const ScreenCondition& condition, milliseconds limit)
{
    const auto verdict = std::make_shared<std::promise<ScreenWatch::Verdict>>();
    std::future<ScreenWatch::Verdict> awaited = verdict->get_future();
    mWatch.waitFor(this, condition, 0, limit, [verdict](const auto& reached) { verdict->set_value(reached); });
    ScreenWatch::Verdict reached = awaited.get();
    if (reached.end == ScreenWatch::End::HELD)
        return {};
    return std::move(reached.difference);
}

bool HostPhone::isThere()
{
    return mReader.isThere();
}

} // namespace simulator
