#include "Cases.h"

#include <atomic>
#include <climits>
#include <linux/futex.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace bench {

namespace {

enum class Way { SLEEP, SPIN };

/// Two threads that hand one word to and fro: what a round trip costs at the least, blocking or spinning.
template <Way WAY>
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
        if (WAY == Way::SLEEP)
            futex(FUTEX_WAKE_PRIVATE, 1);
    }

    void waitFor(int value)
    {
        while (mWord.load(std::memory_order_acquire) != value)
            if (WAY == Way::SLEEP)
                futex(FUTEX_WAIT_PRIVATE, 1 - value);
    }

    std::atomic<int> mWord{0};
};

} // namespace

std::vector<Case> futexCases()
{
    const auto blocking = [](Seats seats) { return [=] { return PingPong<Way::SLEEP>().run(seats); }; };
    const auto spinning = [](Seats seats) { return [=] { return PingPong<Way::SPIN>().run(seats); }; };
    return {{PINNED, FUTEX, "ns", blocking(ONE_CPU)},
            {UNPINNED, FUTEX, "ns", blocking(FREE)},
            {UNPINNED, SPINNING, "ns", spinning(FREE)},
            {PINNED_APART, FUTEX, "ns", blocking(TWO_CPUS)},
            {PINNED_APART, SPINNING, "ns", spinning(TWO_CPUS)}};
}

} // namespace bench
