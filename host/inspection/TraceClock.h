#pragma once

#include <cstdint>
#include <ctime>
#if defined(__x86_64__)
#include <x86intrin.h>
#endif

namespace host {

/// Nanoseconds of the monotonic clock, from Linux.
inline std::int64_t monotonicNow()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

/// A time at a fraction of the cost of the monotonic clock's, which it becomes when it is read: where the kernel tells
/// the time by the processor's counter, so does this.
class TraceClock {
public:
    TraceClock();

    std::int64_t ticks() const
    {
#if defined(__x86_64__)
        if (mCounts)
            return static_cast<std::int64_t>(__rdtsc());
#endif
        return monotonicNow();
    }

    /// From ticks to nanoseconds of the monotonic clock.
    class Scale {
    public:
        std::int64_t nanoseconds(std::int64_t ticks) const
        {
            return mOrigin.nanoseconds + static_cast<std::int64_t>(static_cast<double>(ticks - mOrigin.ticks) * mRatio);
        }

    private:
        friend class TraceClock;
        struct Moment {
            std::int64_t ticks;
            std::int64_t nanoseconds;
        };
        Moment mOrigin{};
        double mRatio = 1;
    };

    /// For what has been since the last call, or since the clock was made.
    Scale scale();

private:
    Scale::Moment moment() const;

    bool mCounts;
    Scale mLast;
};

} // namespace host
