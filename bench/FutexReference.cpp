#include "Cases.h"

#include <atomic>
#include <climits>
#include <linux/futex.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace bench {

namespace {

/// Two threads that hand one futex word to and fro: what a blocking round trip costs at the least.
class PingPong {
public:
    double run(Seats seats)
    {
        const SeatedCaller caller(seats);
        mWord = 0;
        std::thread answerer([this, seats] {
            pinTo(seats.loop);
            for (int i = 0; i < ROUND_TRIPS; ++i) {
                waitFor(1);
                hand(0);
            }
        });
        const double each = nanosecondsEach(ROUND_TRIPS, [this] {
            hand(1);
            waitFor(0);
        });
        answerer.join();
        return each;
    }

private:
    long futex(int operation, int value) { return syscall(SYS_futex, &mWord, operation, value, nullptr, nullptr, 0); }

    void hand(int value)
    {
        mWord.store(value, std::memory_order_release);
        futex(FUTEX_WAKE_PRIVATE, 1);
    }

    void waitFor(int value)
    {
        while (mWord.load(std::memory_order_acquire) != value)
            futex(FUTEX_WAIT_PRIVATE, 1 - value);
    }

    std::atomic<int> mWord{0};
};

} // namespace

std::vector<Case> futexCases()
{
    return {{PINNED, "reference: one futex word", "ns", [] { return PingPong().run(ONE_CPU); }},
            {UNPINNED, "reference: one futex word", "ns", [] { return PingPong().run(FREE); }}};
}

} // namespace bench
