#include "host/utilities/FutexLock.h"

namespace host {

void FutexLock::lockContended()
{
    constexpr int SPINS = 100;
    for (int spin = 0; spin < SPINS && Spin::runsElsewhere(Spin::UNKNOWN); ++spin) {
        std::uint32_t expected = FREE;
        if (mState.load(std::memory_order_relaxed) == FREE &&
            mState.compare_exchange_strong(expected, TAKEN, std::memory_order_acquire))
            return;
        relaxProcessor();
    }
    while (mState.exchange(TAKEN_WITH_SLEEPERS, std::memory_order_acquire) != FREE)
        futexWait(&mState, TAKEN_WITH_SLEEPERS);
}

} // namespace host
