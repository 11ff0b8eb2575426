#pragma once

#include <cstdint>

namespace host {

/// Tells the processor that this is a spin loop.
inline void relaxProcessor()
{
#if defined(__x86_64__) || defined(__i386__)
    __builtin_ia32_pause();
#elif defined(__aarch64__)
    asm volatile("yield");
#endif
}

/// Waiting for a short while without sleeping: two threads on two CPUs answer each other faster than the kernel can
/// wake either. On a single CPU the other thread cannot run meanwhile, so there nothing is waited at all.
class Spin {
public:
    /// The longest that a spin lasts.
    static constexpr std::int64_t LIMIT_NS = 50'000;

    /// Spins until `ready()`; returns false when it has not come true in time.
    template <typename Ready>
    static bool until(Ready ready)
    {
        if (ready())
            return true;
        if (!hasCompany())
            return false;
        for (const std::int64_t end = nanoseconds() + LIMIT_NS; nanoseconds() < end;)
            if (someRounds(ready))
                return true;
        lookAgain();
        return ready();
    }

    /// Whether the calling thread may run on more than one CPU. Remembered per thread, looked up again now and then.
    static bool hasCompany();

private:
    static constexpr int ROUNDS_PER_LOOK_AT_THE_CLOCK = 32;

    template <typename Ready>
    static bool someRounds(Ready ready)
    {
        for (int round = 0; round < ROUNDS_PER_LOOK_AT_THE_CLOCK; ++round) {
            if (ready())
                return true;
            relaxProcessor();
        }
        return false;
    }

    static void lookAgain();
    static std::int64_t nanoseconds();
};

} // namespace host
