#include "utilities/Wait.h"

#include "host/utilities/Futex.h"
#include "host/utilities/Spin.h"

namespace {

enum : std::uint32_t { NOTHING, WOKEN, SLEEPING };

} // namespace

Wait::~Wait() = default;

void Wait::wait()
{
    host::Spin::until([this] { return mState.load(std::memory_order_relaxed) == WOKEN; });
    std::uint32_t expected = NOTHING;
    if (mState.compare_exchange_strong(expected, SLEEPING, std::memory_order_acquire)) {
        const host::Spin::Sleep sleep;
        while (mState.load(std::memory_order_acquire) == SLEEPING)
            host::futexWait(&mState, SLEEPING);
    }
    mState.exchange(NOTHING, std::memory_order_acquire);
}

void Wait::wakeUp()
{
    if (mState.exchange(WOKEN, std::memory_order_release) == SLEEPING)
        host::futexWake(&mState, 1);
}
