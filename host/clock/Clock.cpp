#include "host/clock/Clock.h"

#include "host/toolkit/Loop.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <time.h>
#include <utility>

namespace host {

namespace {

using namespace std::chrono_literals;

/// How long the virtual clock waits for a woken sleeper, or a busy loop, before it moves on without it.
constexpr std::chrono::milliseconds PATIENCE = 500ms;

std::int64_t realNow()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000LL + now.tv_nsec / 1'000'000;
}

bool isVirtualWanted()
{
    const char* const variable = std::getenv("DISPLAYAPI_CLOCK");
    const std::string_view wanted = variable != nullptr ? variable : "";
    if (wanted != "virtual" && wanted != "real" && !wanted.empty())
        std::fprintf(stderr, "DISPLAYAPI_CLOCK is '%s'; it may be real or virtual\n", variable);
    return wanted == "virtual";
}

} // namespace

/// Knows of the calling thread whether the virtual clock has woken it and it has not gone back to sleep. A thread that
/// ends counts as asleep.
class Clock::Wakefulness {
public:
    ~Wakefulness()
    {
        std::lock_guard lock(instance().mMutex);
        end();
    }

    /// REQUIRES, as end() does: the clock's lock is held.
    void beginAt(std::uint64_t stopNumber) { mStopNumber = stopNumber; }

    void end() { instance().fellAsleep(std::exchange(mStopNumber, 0)); }

    static Wakefulness& ofThisThread()
    {
        thread_local Wakefulness wakefulness;
        return wakefulness;
    }

private:
    std::uint64_t mStopNumber = 0;
};

Clock& Clock::instance()
{
    static Clock* const clock = new Clock;
    return *clock;
}

Clock::Clock() : mVirtual(isVirtualWanted()) {}

std::int64_t Clock::now() const
{
    return mVirtual ? mVirtualNow.load() : realNow();
}

void Clock::makeVirtual()
{
    std::lock_guard lock(mMutex);
    if (!mVirtual)
        mVirtualNow = realNow();
    mVirtual = true;
}

void Clock::makeReal()
{
    wakeSleepers([this] { mVirtual = false; });
}

bool Clock::isVirtual() const
{
    return mVirtual;
}

int Clock::sleepers() const
{
    std::lock_guard lock(mMutex);
    return static_cast<int>(mSleeperDues.size());
}

void Clock::setTimerDue(std::int64_t due)
{
    mTimerDue = due;
}

std::int64_t Clock::timerDue() const
{
    return mTimerDue;
}

void Clock::advance(std::int64_t ms)
{
    if (!mVirtual || ms < 0)
        return;
    wakeSleepers([] { Wakefulness::ofThisThread().end(); });
    letOthersRun();
    const std::int64_t end = now() + ms;
    while (now() < end) {
        letTimersRun(end);
        moveToNextStop(end);
        letOthersRun();
    }
}

/// A handover between threads for each timer would take a hundred times as long as the timer: the loop goes from one to
/// the next by itself, up to where a sleeper has to wake. It may take its time as long as the clock moves.
void Clock::letTimersRun(std::int64_t end)
{
    mLeftToLoop = end;
    std::int64_t before = 0;
    do
        before = now();
    while (!Loop::waitUntilIdle(PATIENCE) && now() > before);
    std::lock_guard lock(mMutex);
    mLeftToLoop = 0;
}

bool Clock::isTimerDue() const
{
    return mTimerDue <= now() || leavesTimersToLoop();
}

bool Clock::leavesTimersToLoop() const
{
    return mVirtual && mTimerDue > mVirtualNow && mTimerDue <= mLeftToLoop;
}

bool Clock::moveToTimer()
{
    if (!leavesTimersToLoop())
        return false;
    std::lock_guard lock(mMutex);
    if (firstSleeperDue() <= mTimerDue)
        mLeftToLoop = 0;
    if (!leavesTimersToLoop())
        return false;
    mVirtualNow = mTimerDue.load();
    return true;
}

std::int64_t Clock::firstSleeperDue() const
{
    const auto due = mSleeperDues.upper_bound(mVirtualNow);
    return due != mSleeperDues.end() ? *due : NEVER;
}

/// Due times that have passed already belong to a loop that does not run: they do not hold the clock up.
void Clock::moveToNextStop(std::int64_t end)
{
    std::lock_guard lock(mMutex);
    std::int64_t stop = std::min(end, firstSleeperDue());
    if (mTimerDue > mVirtualNow)
        stop = std::min<std::int64_t>(stop, mTimerDue);
    mVirtualNow = std::max<std::int64_t>(stop, mVirtualNow);
    ++mStopNumber;
    const auto firstStillAsleep = mSleeperDues.upper_bound(mVirtualNow);
    mAwake = static_cast<int>(std::distance(mSleeperDues.begin(), firstStillAsleep));
    mSleeperDues.erase(mSleeperDues.begin(), firstStillAsleep);
    mMoved.notify_all();
}

void Clock::letOthersRun()
{
    Loop::waitUntilIdle(PATIENCE);
    std::unique_lock lock(mMutex);
    if (!mSettled.wait_for(lock, PATIENCE, [this] { return mAwake == 0; }))
        forgetAwake();
    lock.unlock();
    Loop::waitUntilIdle(PATIENCE);
}

/// Those who are awake at a past stop are not counted.
void Clock::forgetAwake()
{
    mAwake = 0;
    ++mStopNumber;
}

void Clock::fellAsleep(std::uint64_t stopNumber)
{
    if (stopNumber != 0 && stopNumber == mStopNumber && --mAwake == 0)
        mSettled.notify_all();
}

bool Clock::sleepFor(std::int64_t ms, const bool* stop)
{
    std::unique_lock lock(mMutex);
    if (mVirtual)
        return sleepVirtual(lock, ms, stop);
    return !mMoved.wait_for(lock, std::chrono::milliseconds(ms), [stop] { return stop != nullptr && *stop; });
}

bool Clock::sleepVirtual(std::unique_lock<std::mutex>& lock, std::int64_t ms, const bool* stop)
{
    const std::int64_t due = mVirtualNow + ms;
    if (ms <= 0)
        return !(stop != nullptr && *stop);
    mSleeperDues.insert(due);
    Wakefulness::ofThisThread().end();
    mMoved.wait(lock, [&] { return mVirtualNow >= due || !mVirtual || (stop != nullptr && *stop); });
    if (mVirtualNow < due) {
        mSleeperDues.erase(mSleeperDues.find(due));
        return !(stop != nullptr && *stop);
    }
    Wakefulness::ofThisThread().beginAt(mStopNumber);
    return true;
}

} // namespace host
