#include "apps/exchange/HostClock.h"

#include "apps/exchange/Line.h"
#include "host/clock/Clock.h"

#include <algorithm>

namespace exchange {

std::int64_t HostClock::now() const
{
    return host::Clock::instance().now();
}

void HostClock::sleepUntil(std::int64_t until)
{
    host::Clock& clock = host::Clock::instance();
    clock.sleepFor(std::min(until - clock.now(), LONGEST_TIME), &mIsWoken);
    clock.wakeSleepers([this] { mIsWoken = false; });
}

void HostClock::wake()
{
    host::Clock::instance().wakeSleepers([this] { mIsWoken = true; });
}

} // namespace exchange
