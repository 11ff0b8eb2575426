#pragma once

#include <atomic>
#include <cstdint>

/// One thread sleeps until another one wakes it. A wake-up that comes before wait() is kept, but not counted.
class Wait {
public:
    Wait() = default;
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;
    virtual ~Wait();

    /// Returns when wakeUp() has been called since the last return. No time limit.
    ///
    /// The woken thread may destroy the object as soon as this returns: wakeUp() does not touch it after its last
    /// store.
    void wait();

    /// Wakes the waiting thread, or lets the next wait() return at once. From any thread.
    virtual void wakeUp();

private:
    std::atomic<std::uint32_t> mState{0};
    std::atomic<std::int16_t> mCpu{-1}; ///< for waiter and waker to tell each other where they run
};
