#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <limits>
#include <map>
#include <mutex>

namespace host {

/// The time that every timer and time-out of the host uses, in milliseconds: the machine's, or a virtual one that
/// stands still until it is advanced. Safe from any thread.
///
/// Lock: a leaf, but that advancing broadcasts the main queue's condition (the queue's mutex is taken alone).
class Clock {
public:
    static constexpr std::int64_t NEVER = std::numeric_limits<std::int64_t>::max();

    static Clock& instance();

    /// Milliseconds since some moment in the past; never goes back.
    std::int64_t now() const;

    /// Stops real time: from here on only advance() moves it. Before the toolkit starts. The environment variable
    /// DISPLAYAPI_CLOCK=virtual does the same at process start; what is neither that nor "real" is told on stderr.
    void makeVirtual();
    void makeReal();
    bool isVirtual() const;

    /// Moves the virtual clock, from one due time to the next so that sleepers and timers run in order, and wakes the
    /// GUI loop. At each stop the loop handles all its messages, and the sleepers that were woken, by the clock or by
    /// their `stop` flags, go back to sleep, end or have used up some real time, before the clock moves on; it is
    /// painted in the end, and where a sleeper is woken. Negative values are ignored, and so is the call while the
    /// clock is real.
    void advance(std::int64_t ms);

    /// Sleeps on this clock until the moment `due`; NEVER will do. Returns early with false when `stop` (may be null)
    /// becomes true; look at wakeSleepers(). Where it is true already, or the moment has passed, nobody has slept.
    bool sleepUntil(std::int64_t due, const bool* stop = nullptr);

    /// As well, for so many milliseconds.
    bool sleepFor(std::int64_t ms, const bool* stop = nullptr);

    /// Lets all sleepers look at their `stop` flags, which the caller changes inside `change`, under the clock's lock.
    /// The virtual clock does not move on without those that it wakes so.
    template <typename Change>
    void wakeSleepers(Change change)
    {
        std::lock_guard lock(mMutex);
        change();
        wakeStopped();
    }

    /// Threads that sleep on this clock now.
    int sleepers() const;

    /// When the toolkit's next timer is due; the toolkit says so each time that it changes.
    void setTimerDue(std::int64_t due);
    std::int64_t timerDue() const;

    /// Whether a timer is to run without anybody moving the clock: it is due, or the loop is to go on to it by itself.
    bool isTimerDue() const;

    /// Whether the loop is to go on by itself to a timer that is not due yet.
    bool leavesTimersToLoop() const;

    /// Goes on to the next timer, if that is left to the loop. For the loop, when it has nothing else to do.
    bool moveToTimer();

private:
    class Wakefulness;

    Clock();

    struct Sleeper;
    using Sleepers = std::multimap<std::int64_t, Sleeper*>; ///< by their due times

    bool sleep(std::unique_lock<std::mutex>& lock, std::int64_t due, const bool* stop);
    bool sleepReal(std::unique_lock<std::mutex>& lock, std::int64_t due, const bool* stop);
    bool sleepVirtual(std::unique_lock<std::mutex>& lock, std::int64_t due, const bool* stop);
    Sleepers::iterator wake(Sleepers::iterator sleeper);
    void wakeStopped();
    bool letTimersRun(std::int64_t end);
    std::int64_t firstSleeperDue() const;
    void moveToNextStop(std::int64_t end);
    void letOthersRun();
    void fellAsleep(std::uint64_t stopNumber);
    void forgetAwake();

    mutable std::mutex mMutex;
    std::condition_variable mMoved;
    std::condition_variable mSettled;
    std::atomic<bool> mVirtual;
    std::atomic<std::int64_t> mVirtualNow{0};
    std::atomic<std::int64_t> mTimerDue{NEVER};
    std::atomic<std::int64_t> mLeftToLoop{0}; ///< timers up to this moment are the loop's to go to
    Sleepers mSleepers;
    std::uint64_t mStopNumber = 1; ///< counts the stops of the virtual clock
    int mAwake = 0;                ///< sleepers woken at this stop that still run
};

} // namespace host
