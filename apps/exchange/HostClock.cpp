#include "apps/exchange/HostClock.h"

#include "host/clock/Clock.h"

namespace exchange {

std::int64_t HostClock::now() const
{
    return host::Clock::instance().now();
}

void HostClock::sleepUntil(std::int64_t until)
{
    host::Clock& clock = host::Clock::instance();
    clock.sleepUntil(until, &mIsWoken);
    clock.wakeSleepers([this] { mIsWoken = false; });
}

void HostClock::wake()
{
    host::Clock::instance().wakeSleepers([this] { mIsWoken = true; });
}

} // namespace exchange
