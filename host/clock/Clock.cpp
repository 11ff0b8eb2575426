#include "host/clock/Clock.h"

#include "host/toolkit/Loop.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>
#include <time.h>
#include <utility>

namespace host {

namespace {

using namespace std::chrono_literals;

/// How long the virtual clock waits for a woken sleeper, or a busy loop, before it moves on without it.
constexpr std::chrono::milliseconds PATIENCE = 500ms;

/// Who sleeps longer is waiting to be stopped: no clock of the system's counts that far.
constexpr std::int64_t LONGEST_REAL_SLEEP = 365LL * 24 * 60 * 60 * 1000;

bool isTrue(const bool* flag)
{
    return flag != nullptr && *flag;
}

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

/// A thread that sleeps on the virtual clock.
struct Clock::Sleeper {
    const bool* stop;
    std::uint64_t wokenAt = 0; ///< the stop; 0 while it sleeps
};

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
    return static_cast<int>(mSleepers.size());
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
        if (letTimersRun(end))
            letOthersRun();
        moveToNextStop(end);
        letOthersRun();
    }
}

/// A handover between threads for each timer would take a hundred times as long as the timer: the loop goes from one to
/// the next by itself, up to where a sleeper has to wake or a timer has woken one. It may take its time as long as the
/// clock moves. Returns whether somebody has been woken.
bool Clock::letTimersRun(std::int64_t end)
{
    mLeftToLoop = end;
    std::int64_t before = 0;
    do
        before = now();
    while (!Loop::waitUntilIdle(PATIENCE) && now() > before);
    std::lock_guard lock(mMutex);
    mLeftToLoop = 0;
    return mAwake > 0;
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
    if (firstSleeperDue() <= mTimerDue || mAwake > 0)
        mLeftToLoop = 0;
    if (!leavesTimersToLoop())
        return false;
    mVirtualNow = mTimerDue.load();
    return true;
}

std::int64_t Clock::firstSleeperDue() const
{
    return mSleepers.empty() ? NEVER : mSleepers.begin()->first;
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
    mAwake = 0;
    for (auto sleeper = mSleepers.begin(); sleeper != mSleepers.end() && sleeper->first <= mVirtualNow;)
        sleeper = wake(sleeper);
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

bool Clock::sleepUntil(std::int64_t due, const bool* stop)
{
    std::unique_lock lock(mMutex);
    return sleep(lock, due, stop);
}

bool Clock::sleepFor(std::int64_t ms, const bool* stop)
{
    std::unique_lock lock(mMutex);
    return sleep(lock, now() + ms, stop);
}

bool Clock::sleep(std::unique_lock<std::mutex>& lock, std::int64_t due, const bool* stop)
{
    if (isTrue(stop))
        return false;
    return mVirtual ? sleepVirtual(lock, due, stop) : sleepReal(lock, due, stop);
}

bool Clock::sleepReal(std::unique_lock<std::mutex>& lock, std::int64_t due, const bool* stop)
{
    Wakefulness::ofThisThread().end();
    const auto isOver = [stop] { return isTrue(stop); };
    const std::int64_t ms = due - realNow();
    if (ms < LONGEST_REAL_SLEEP)
        return !mMoved.wait_for(lock, std::chrono::milliseconds(ms), isOver);
    mMoved.wait(lock, isOver);
    return false;
}

/// A thread that does not fall asleep is as awake as before.
bool Clock::sleepVirtual(std::unique_lock<std::mutex>& lock, std::int64_t due, const bool* stop)
{
    if (due <= mVirtualNow)
        return true;
    Sleeper self{stop};
    const auto place = mSleepers.emplace(due, &self);
    Wakefulness::ofThisThread().end();
    mMoved.wait(lock, [&] { return self.wokenAt != 0 || !mVirtual; });
    if (self.wokenAt == 0)
        mSleepers.erase(place);
    Wakefulness::ofThisThread().beginAt(self.wokenAt);
    return !isTrue(stop);
}

/// Counts it as awake from now on, and not from when its thread gets to run. Returns the next one.
Clock::Sleepers::iterator Clock::wake(Sleepers::iterator sleeper)
{
    sleeper->second->wokenAt = mStopNumber;
    ++mAwake;
    mMoved.notify_all();
    return mSleepers.erase(sleeper);
}

void Clock::wakeStopped()
{
    for (auto sleeper = mSleepers.begin(); sleeper != mSleepers.end();)
        sleeper = isTrue(sleeper->second->stop) ? wake(sleeper) : std::next(sleeper);
    mMoved.notify_all();
}

} // namespace host
