#pragma once

#include "host/utilities/Futex.h"
#include "host/utilities/Spin.h"

#include <atomic>
#include <cstdint>

namespace host {

/// A small lock for sections of a few instructions: one atomic operation each way where nobody competes, a short spin
/// and then sleep where somebody does. Not recursive. Fits std::lock_guard.
class FutexLock {
public:
    void lock()
    {
        std::uint32_t expected = FREE;
        if (!mState.compare_exchange_strong(expected, TAKEN, std::memory_order_acquire))
            lockContended();
    }

    void unlock()
    {
        if (mState.exchange(FREE, std::memory_order_release) == TAKEN_WITH_SLEEPERS)
            futexWake(&mState, 1);
    }

private:
    enum : std::uint32_t { FREE, TAKEN, TAKEN_WITH_SLEEPERS };

    void lockContended();

    std::atomic<std::uint32_t> mState{FREE};
};

} // namespace host
