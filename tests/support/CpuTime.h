#pragma once

#include <ctime>

namespace test {

/// Processor time of the calling thread since the object was made: other programs do not add to it.
class CpuTime {
public:
    double seconds() const { return now() - mStart; }

private:
    static double now()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }

    double mStart = now();
};

} // namespace test
