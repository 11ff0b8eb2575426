#include "host/inspection/TraceClock.h"

#include <fstream>
#include <string>

namespace host {

namespace {

/// The kernel has looked whether all processors count alike, and go on when they sleep.
bool kernelTrustsCounter()
{
    std::string source;
    std::ifstream("/sys/devices/system/clocksource/clocksource0/current_clocksource") >> source;
    return source == "tsc";
}

} // namespace

TraceClock::TraceClock() : mCounts(kernelTrustsCounter())
{
    mLast.mOrigin = moment();
    if (!mCounts)
        return;
    // A first ratio, for a scale that is asked for before enough time has passed for a better one.
    constexpr std::int64_t LONG_ENOUGH = 200'000;
    while (monotonicNow() - mLast.mOrigin.nanoseconds < LONG_ENOUGH) {
    }
    scale();
}

/// The kernel's clock goes a little faster or slower from time to time, so the ratio is always that of the last
/// stretch.
TraceClock::Scale TraceClock::scale()
{
    constexpr std::int64_t EXACT_ENOUGH = 10'000'000;
    const Scale::Moment now = moment();
    const bool isFirst = mLast.mRatio == 1;
    const std::int64_t passed = now.nanoseconds - mLast.mOrigin.nanoseconds;
    if (!mCounts || (!isFirst && passed < EXACT_ENOUGH))
        return mLast;
    mLast.mRatio = static_cast<double>(passed) / static_cast<double>(now.ticks - mLast.mOrigin.ticks);
    const Scale scale = mLast;
    mLast.mOrigin = now;
    return scale;
}

/// What lies between the two readings is the same at both ends, but for an interruption: the shortest of some counts.
TraceClock::Scale::Moment TraceClock::moment() const
{
    constexpr int TRIES = 5;
    Scale::Moment best{};
    std::int64_t shortest = 0;
    for (int i = 0; i < TRIES; ++i) {
        const std::int64_t before = ticks();
        const std::int64_t nanoseconds = monotonicNow();
        const std::int64_t took = ticks() - before;
        if (i > 0 && took >= shortest)
            continue;
        shortest = took;
        best = {before + took / 2, nanoseconds};
    }
    return best;
}

} // namespace host
