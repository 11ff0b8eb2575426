#include "host/utilities/Spin.h"

#include <ctime>
#include <sched.h>

namespace host {

namespace {

constexpr int WAITS_BETWEEN_LOOKS = 256;

/// What a thread knows of its own waits.
struct Habits {
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

} // namespace

bool Spin::hasCompany()
{
    if (gHabits.waitsLeft-- <= 0)
        lookAgain();
    return gHabits.company;
}

void Spin::lookAgain()
{
    gHabits.company = mayUseSeveralCpus();
    gHabits.waitsLeft = WAITS_BETWEEN_LOOKS;
}

bool Spin::isWorthwhile()
{
    return !gHabits.sleepsLong;
}

void Spin::yieldProcessor()
{
    sched_yield();
}

Spin::Sleep::~Sleep()
{
    gHabits.sleepsLong = nanoseconds() - mStart > SHORT_SLEEP_NS;
}

std::int64_t Spin::nanoseconds()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

} // namespace host
