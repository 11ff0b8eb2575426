#include "simulator/core/PhoneClock.h"

#include "host/clock/Clock.h"

#include <algorithm>

namespace simulator {

namespace {

/// How often it is looked whether the telephone is still there, in virtual time.
constexpr std::chrono::milliseconds SLICE(1000);
constexpr std::chrono::milliseconds ADVANCED_SLICE(std::chrono::minutes(1));

} // namespace

void PhoneClock::pass(std::int64_t milliseconds)
{
    if (host::Clock::instance().isVirtual())
        return move(milliseconds, SLICE.count());
    rest(std::chrono::milliseconds(milliseconds));
}

void PhoneClock::rest(std::chrono::milliseconds time)
{
    std::unique_lock lock(mMutex);
    mChanged.wait_for(lock, time, [this] { return !mIsThere; });
}

bool PhoneClock::advance(std::int64_t milliseconds)
{
    if (!host::Clock::instance().isVirtual())
        return false;
    move(milliseconds, ADVANCED_SLICE.count());
    return true;
}

void PhoneClock::move(std::int64_t milliseconds, std::int64_t slice)
{
    for (std::int64_t left = milliseconds; left > 0 && isThere(); left -= slice)
        host::Clock::instance().advance(std::min(left, slice));
}

void PhoneClock::leave()
{
    const std::lock_guard lock(mMutex);
    mIsThere = false;
    mChanged.notify_all();
}

bool PhoneClock::isThere()
{
    const std::lock_guard lock(mMutex);
    return mIsThere;
}

} // namespace simulator
