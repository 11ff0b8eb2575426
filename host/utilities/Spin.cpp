#include "host/utilities/Spin.h"

#include <ctime>
#include <sched.h>

namespace host {

namespace {

constexpr int WAITS_BETWEEN_LOOKS = 256;

struct Affinity {
    bool company = false;
    int waitsLeft = 0;
};

[[gnu::tls_model("initial-exec")]] thread_local constinit Affinity gAffinity;

bool mayUseSeveralCpus()
{
    cpu_set_t cpus;
    return sched_getaffinity(0, sizeof cpus, &cpus) == 0 && CPU_COUNT(&cpus) > 1;
}

} // namespace

bool Spin::hasCompany()
{
    if (gAffinity.waitsLeft-- <= 0)
        lookAgain();
    return gAffinity.company;
}

void Spin::lookAgain()
{
    gAffinity = {mayUseSeveralCpus(), WAITS_BETWEEN_LOOKS};
}

std::int64_t Spin::nanoseconds()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

} // namespace host
