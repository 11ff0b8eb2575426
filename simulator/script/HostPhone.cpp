#include "simulator/script/HostPhone.h"

#include "host/clock/Clock.h"
#include "host/input/Keyboard.h"
#include "host/toolkit/Loop.h"
#include "simulator/script/Threads.h"

#include <algorithm>
#include <thread>

namespace simulator {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

constexpr seconds PATIENCE(10);

/// An application may have a thread that never rests.
constexpr seconds PATIENCE_WITH_THREADS(2);

/// How often it is looked whether the telephone is still there.
constexpr milliseconds SLICE(1000);

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
    for (std::int64_t left = milliseconds; left > 0 && isThere(); left -= SLICE.count())
        host::Clock::instance().advance(std::min<std::int64_t>(left, SLICE.count()));
}

bool HostPhone::settle()
{
    return becomeIdle() && (waitForThreads(), becomeIdle());
}

bool HostPhone::becomeIdle()
{
    const auto deadline = steady_clock::now() + PATIENCE;
    while (isThere() && steady_clock::now() < deadline) {
        if (host::Loop::waitUntilIdle(SLICE))
            return true;
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

host::Picture HostPhone::picture()
{
    return mLcd.picture();
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
