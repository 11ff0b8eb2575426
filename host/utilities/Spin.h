#pragma once

#include "host/inspection/BlockedCalls.h"

#include <atomic>
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
/// wake either. A partner on the thread's own CPU cannot answer before the thread sleeps: so waiter and waker tell each
/// other where they run. Where the thread's last sleep was a long one it does not spin, because the next one most
/// likely is long too.
class Spin {
public:
    /// The longest that a spin lasts, and the longest sleep after which spinning is tried again.
    static constexpr std::int64_t LIMIT_NS = 50'000;
    static constexpr std::int64_t SHORT_SLEEP_NS = 200'000;

    /// In place of the number of a CPU.
    static constexpr std::int16_t UNKNOWN = -1;

    /// Spins until `ready()`, unless who is to bring that about ran on this very CPU; returns whether it has come true.
    template <typename Ready>
    static bool until(Ready ready, int partnersCpu = partner())
    {
        if (ready())
            return true;
        if (!isWorthwhile(partnersCpu))
            return false;
        if (someRounds(ready, [] {}))
            return true;
        for (const std::int64_t end = nanoseconds() + LIMIT_NS; nanoseconds() < end;)
            if (someRounds(ready, relaxProcessor))
                return true;
        lookAgain();
        return ready();
    }

    /// After a lost race for a lock that is held for a few instructions at a time: leaves its cache line alone for some
    /// microseconds, in which whoever has it may use it many times over. Returns at once where that one ran on this
    /// CPU.
    static void stayAway(int holdersCpu)
    {
        for (int rounds = runsElsewhere(holdersCpu) ? ROUNDS_AWAY : 0; rounds > 0; --rounds)
            relaxProcessor();
    }

    /// Does nothing for so long, or until it is `enough()`. Returns at once where the thread may use one CPU only.
    template <typename Enough>
    static void rest(std::int64_t duration, Enough enough)
    {
        if (!runsElsewhere(UNKNOWN))
            return;
        for (const std::int64_t end = nanoseconds() + duration; !enough() && nanoseconds() < end;)
            someRounds([] { return false; }, relaxProcessor);
    }

    /// Whether a thread that ran on `cpu` can run while the calling one spins. Of UNKNOWN it is assumed where the
    /// calling thread may use several CPUs, which is remembered per thread and looked up again now and then.
    static bool runsElsewhere(int cpu);

    /// The CPU of the calling thread.
    static std::int16_t cpu();

    /// Where the thread ran that has woken the calling one last or has been woken by it; UNKNOWN after a sleep.
    static int partner();

    /// A word between waiter and waker, in which each leaves its CPU for the other.
    using Trace = std::atomic<std::int16_t>;

    /// The waiter, before its wait and after it.
    static void leaveTrace(Trace& trace);
    static void followWaker(Trace& trace);

    /// The waker, before it wakes.
    static void followWaiter(Trace& trace);

    /// Stands around a sleep: how long it lasts decides whether the thread's next wait spins. Whoever ends it tells
    /// anew where he runs.
    class Sleep {
    public:
        Sleep() : mStart(nanoseconds()), mNote(gpAwaitedRequest, mStart) {}
        ~Sleep();
        Sleep(const Sleep&) = delete;
        Sleep& operator=(const Sleep&) = delete;

    private:
        const std::int64_t mStart;
        const BlockedCallNote mNote;
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

    static bool isWorthwhile(int partnersCpu);
    static void lookAgain();
    static std::int64_t nanoseconds();
};

} // namespace host
