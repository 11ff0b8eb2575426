#include "utilities/Wait.h"

#include "host/utilities/Futex.h"
#include "host/utilities/Spin.h"

namespace {

using host::Spin;

enum : std::uint32_t { NOTHING, WOKEN, SLEEPING };

} // namespace

Wait::~Wait() = default;

void Wait::wait()
{
    Spin::leaveTrace(mCpu);
    Spin::until([this] { return mState.load(std::memory_order_relaxed) == WOKEN; });
    std::uint32_t expected = NOTHING;
    if (mState.compare_exchange_strong(expected, SLEEPING, std::memory_order_acquire)) {
        const Spin::Sleep sleep;
        while (mState.load(std::memory_order_acquire) == SLEEPING)
            host::futexWait(&mState, SLEEPING);
    }
    mState.exchange(NOTHING, std::memory_order_acquire);
    Spin::followWaker(mCpu);
}

void Wait::wakeUp()
{
    Spin::followWaiter(mCpu);
    if (mState.exchange(WOKEN, std::memory_order_release) == SLEEPING)
        host::futexWake(&mState, 1);
}
