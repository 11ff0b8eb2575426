#include "Frames.h"
#include "Measure.h"

#include "host/input/Keyboard.h"
#include "host/toolkit/Loop.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>

namespace bench {

namespace {

using namespace std::chrono_literals;

double processCpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

} // namespace

/// A loop that does not run yet is not waited for by itself.
void waitUntilShown()
{
    for (const auto start = Clock::now(); !host::Loop::waitUntilIdle(10s); std::this_thread::sleep_for(50us))
        if (secondsSince(start) > 10) {
            std::fprintf(stderr, "benchmark broken: the screen is not finished\n");
            return;
        }
}

double cpuToFrame(int count, const std::function<PegKey(int number)>& key)
{
    double spent = 0;
    for (int i = 0; i < count; ++i) {
        std::this_thread::sleep_for(1ms);
        const double before = processCpuSeconds();
        host::Keyboard::instance().press(key(i));
        std::this_thread::sleep_for(20ms);
        spent += processCpuSeconds() - before;
    }
    return spent / count * 1e6;
}

} // namespace bench
