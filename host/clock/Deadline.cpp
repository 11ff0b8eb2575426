#include "host/clock/Deadline.h"

#include "host/clock/Clock.h"
#include "host/utilities/Futex.h"

namespace host {

namespace {

/// The kernel knows nothing of virtual time: who waits for it looks at the clock so often.
constexpr int VIRTUAL_LOOK_MS = 1;

} // namespace

timespec realTimeAhead(std::int64_t milliseconds)
{
    constexpr long SECOND = 1'000'000'000;
    timespec moment;
    clock_gettime(CLOCK_MONOTONIC, &moment);
    moment.tv_sec += milliseconds / 1000;
    moment.tv_nsec += milliseconds % 1000 * 1'000'000;
    if (moment.tv_nsec >= SECOND) {
        moment.tv_nsec -= SECOND;
        ++moment.tv_sec;
    }
    return moment;
}

Deadline::Deadline(int milliseconds) : mMilliseconds(milliseconds)
{
    if (milliseconds <= 0)
        return;
    if (Clock::instance().isVirtual())
        mVirtualEnd = Clock::instance().now() + milliseconds;
    else
        mRealEnd = realTimeAhead(milliseconds);
}

bool Deadline::sleep(const void* word, std::uint32_t expected) const
{
    if (isNow())
        return false;
    if (mMilliseconds < 0)
        return futexWait(word, expected);
    if (mVirtualEnd == 0)
        return futexWait(word, expected, &mRealEnd);
    const timespec nextLook = realTimeAhead(VIRTUAL_LOOK_MS);
    return futexWait(word, expected, &nextLook) || Clock::instance().now() < mVirtualEnd;
}

} // namespace host
