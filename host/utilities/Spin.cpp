#include "host/utilities/Spin.h"

#include <ctime>
#include <sched.h>

namespace host {

namespace {

constexpr int WAITS_BETWEEN_LOOKS = 256;

/// What a thread knows of its own waits, and of whom it waits for.
struct Habits {
    int partner = Spin::UNKNOWN;
    bool company = false;
    int waitsLeft = 0;
    bool sleepsLong = false;
};

[[gnu::tls_model("initial-exec")]] thread_local constinit Habits gHabits;

bool mayUseSeveralCpus()
{
    cpu_set_t cpus;
    return sched_getaffinity(0, sizeof cpus, &cpus) == 0 && CPU_COUNT(&cpus) > 1;
}

void meet(int partnersCpu)
{
    if (partnersCpu != Spin::UNKNOWN)
        gHabits.partner = partnersCpu;
}

} // namespace

bool Spin::runsElsewhere(int cpu)
{
    if (cpu != UNKNOWN)
        return cpu != Spin::cpu();
    if (gHabits.waitsLeft-- <= 0)
        lookAgain();
    return gHabits.company;
}

void Spin::lookAgain()
{
    gHabits.company = mayUseSeveralCpus();
    gHabits.waitsLeft = WAITS_BETWEEN_LOOKS;
}

bool Spin::isWorthwhile(int partnersCpu)
{
    return !gHabits.sleepsLong && runsElsewhere(partnersCpu);
}

std::int16_t Spin::cpu()
{
    return static_cast<std::int16_t>(sched_getcpu());
}

int Spin::partner()
{
    return gHabits.partner;
}

void Spin::leaveTrace(Trace& trace)
{
    std::int16_t nobody = UNKNOWN; // a waker who came first has left his
    trace.compare_exchange_strong(nobody, cpu(), std::memory_order_relaxed);
}

void Spin::followWaker(Trace& trace)
{
    meet(trace.exchange(UNKNOWN, std::memory_order_relaxed));
}

void Spin::followWaiter(Trace& trace)
{
    meet(trace.exchange(cpu(), std::memory_order_relaxed));
}

Spin::Sleep::~Sleep()
{
    gHabits.sleepsLong = nanoseconds() - mStart > SHORT_SLEEP_NS;
    gHabits.partner = UNKNOWN;
}

std::int64_t Spin::nanoseconds()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

} // namespace host
