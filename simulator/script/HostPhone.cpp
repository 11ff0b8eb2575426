#include "simulator/script/HostPhone.h"

#include "DisplayAPI/Display.h"
#include "host/clock/Clock.h"
#include "host/frontend/Wire.h"
#include "host/input/Keyboard.h"
#include "host/toolkit/Loop.h"
#include "host/toolkit/MainQueue.h"
#include "simulator/script/Threads.h"

#include <algorithm>
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

/// How often it is looked whether the telephone is still there, in real and virtual time.
constexpr milliseconds SLICE(1000);
constexpr std::chrono::minutes ADVANCED_SLICE(1);

constexpr std::uint16_t INQUIRY = 0x5C01;

} // namespace

HostPhone::HostPhone(host::Lcd& lcd) : mLcd(lcd)
{
    mLcd.setFrameListener([this] { noteFrame(); });
}

HostPhone::~HostPhone()
{
    mLcd.setFrameListener({});
}

void HostPhone::leave()
{
    std::lock_guard lock(mMutex);
    mIsThere = false;
    mChanged.notify_all();
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
    if (host::Clock::instance().isVirtual())
        moveClock(milliseconds, SLICE.count());
    else
        sleep(std::chrono::milliseconds(milliseconds));
}

bool HostPhone::advance(std::int64_t milliseconds)
{
    if (!host::Clock::instance().isVirtual())
        return false;
    moveClock(milliseconds, std::chrono::milliseconds(ADVANCED_SLICE).count());
    return true;
}

void HostPhone::moveClock(std::int64_t milliseconds, std::int64_t slice)
{
    for (std::int64_t left = milliseconds; left > 0 && isThere(); left -= slice)
        host::Clock::instance().advance(std::min(left, slice));
}

void HostPhone::sleep(std::chrono::milliseconds time)
{
    std::unique_lock lock(mMutex);
    mChanged.wait_for(lock, time, [this] { return !mIsThere; });
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
        waitForFrame(milliseconds(5));
    }
    return false;
}

void HostPhone::waitForThreads()
{
    const auto deadline = steady_clock::now() + PATIENCE_WITH_THREADS;
    while (isThere() && !othersAreAtRest() && steady_clock::now() < deadline)
        std::this_thread::sleep_for(milliseconds(1));
}

std::string HostPhone::say(const std::string& wire, const std::string& line)
{
    return host::Wire::say(wire, line);
}

host::Picture HostPhone::picture()
{
    return mLcd.picture();
}

std::string HostPhone::displayables()
{
    std::unique_lock lock(mMutex);
    mAnswer.reset();
    lock.unlock();
    if (!host::MainQueue::push({INQUIRY, 0, &mInquiry}))
        return {};
    lock.lock();
    mChanged.wait_for(lock, PATIENCE, [this] { return mAnswer || !mIsThere; });
    return mAnswer.value_or(std::string());
}

int HostPhone::Inquiry::Message(const PegMessage& message)
{
    if (message.wType != INQUIRY)
        return PegThing::Message(message);
    DisplayAPI::Display* const display = DisplayAPI::Display::latest();
    std::string answer = display != nullptr ? display->serialise() : std::string();
    std::lock_guard lock(mPhone.mMutex);
    mPhone.mAnswer = std::move(answer);
    mPhone.mChanged.notify_all();
    return 0;
}

void HostPhone::waitForFrame(milliseconds limit)
{
    std::unique_lock lock(mMutex);
    mChanged.wait_for(lock, limit, [this] { return mFrameIsNew || !mIsThere; });
    mFrameIsNew = false;
}

bool HostPhone::isThere()
{
    std::lock_guard lock(mMutex);
    return mIsThere;
}

void HostPhone::noteFrame()
{
    std::lock_guard lock(mMutex);
    mFrameIsNew = true;
    mChanged.notify_all();
}

} // namespace simulator
