#pragma once

#include <sched.h>

namespace test {

/// Binds the calling thread, and those that it starts, to one CPU while it lives.
class OneCpu {
public:
    explicit OneCpu(int cpu = sched_getcpu()) : mCpu(cpu)
    {
        sched_getaffinity(0, sizeof mBefore, &mBefore);
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(static_cast<std::size_t>(cpu), &one);
        sched_setaffinity(0, sizeof one, &one);
    }
    OneCpu(const OneCpu&) = delete;
    OneCpu& operator=(const OneCpu&) = delete;
    ~OneCpu() { sched_setaffinity(0, sizeof mBefore, &mBefore); }

    int number() const { return mCpu; }

    /// The first and the last that the calling thread may use; where it may use one only they are the same.
    static int first() { return find(0, 1); }
    static int last() { return find(CPU_SETSIZE - 1, -1); }

private:
    static int find(int from, int step)
    {
        cpu_set_t mine;
        sched_getaffinity(0, sizeof mine, &mine);
        while (!CPU_ISSET(static_cast<std::size_t>(from), &mine))
            from += step;
        return from;
    }

    int mCpu;
    cpu_set_t mBefore;
};

} // namespace test
