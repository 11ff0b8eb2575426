#pragma once

#include "host/clock/Clock.h"
#include "host/toolkit/Timers.h"

#include <algorithm>

namespace test {

/// Time stands still while it lives. Base of the tests in which it passes, before the toolkit starts.
class VirtualTime {
public:
    VirtualTime() { host::Clock::instance().makeVirtual(); }
    VirtualTime(const VirtualTime&) = delete;
    VirtualTime& operator=(const VirtualTime&) = delete;
    ~VirtualTime() { host::Clock::instance().makeReal(); }

    /// Without a loop: the test's thread is the GUI thread, and fires what becomes due.
    static void pass(std::int64_t ms)
    {
        host::Clock& clock = host::Clock::instance();
        const std::int64_t end = clock.now() + ms;
        while (clock.now() < end) {
            clock.advance(std::max<std::int64_t>(1, std::min(clock.timerDue(), end) - clock.now()));
            host::Timers::instance().fireDue();
        }
    }

    static bool isTimerRunning() { return host::Clock::instance().timerDue() != host::Clock::NEVER; }
};

} // namespace test
