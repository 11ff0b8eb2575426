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
/// wake either. On a single CPU the other thread cannot run meanwhile: there it is given way to, once. Where the
/// thread's last sleep was a long one nothing of this is done, because the next one most likely is long too.
class Spin {
public:
    /// The longest that a spin lasts, and the longest sleep after which spinning is tried again.
    static constexpr std::int64_t LIMIT_NS = 50'000;
    static constexpr std::int64_t SHORT_SLEEP_NS = 200'000;

    /// Spins until `ready()`; returns false when it has not come true in time.
    template <typename Ready>
    static bool until(Ready ready)
    {
        if (ready())
            return true;
        if (!isWorthwhile())
            return false;
        if (!hasCompany()) {
            yieldProcessor();
            return ready();
        }
        if (someRounds(ready, [] {}))
            return true;
        for (const std::int64_t end = nanoseconds() + LIMIT_NS; nanoseconds() < end;)
            if (someRounds(ready, relaxProcessor))
                return true;
        lookAgain();
        return ready();
    }

    /// After a lost race for a lock that is held for a few instructions at a time: leaves its cache line alone for some
    /// microseconds, in which whoever has it may use it many times over. Returns at once on a single CPU.
    static void stayAway()
    {
        for (int rounds = hasCompany() ? ROUNDS_AWAY : 0; rounds > 0; --rounds)
            relaxProcessor();
    }

    /// Whether the calling thread may run on more than one CPU. Remembered per thread, looked up again now and then.
    static bool hasCompany();

    /// Stands around a sleep: how long it lasts decides whether the thread's next wait spins.
    class Sleep {
    public:
        Sleep() : mStart(nanoseconds()) {}
        ~Sleep();
        Sleep(const Sleep&) = delete;
        Sleep& operator=(const Sleep&) = delete;

    private:
        std::int64_t mStart;
    };

private:
    static constexpr int ROUNDS_PER_LOOK_AT_THE_CLOCK = 32;
    static constexpr int ROUNDS_AWAY = 512;

    /// Resting between looks saves power, but it makes the answer late: the first rounds do without.
    template <typename Ready, typename Rest>
    static bool someRounds(Ready ready, Rest rest)
    {
        for (int round = 0; round < ROUNDS_PER_LOOK_AT_THE_CLOCK; ++round) {
            if (ready())
                return true;
            rest();
        }
        return false;
    }

    static bool isWorthwhile();
    static void yieldProcessor();
    static void lookAgain();
    static std::int64_t nanoseconds();
};

} // namespace host
