#include "utilities/Wait.h"

#include "support/Gate.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <sched.h>
#include <thread>

namespace {

using test::Gate;

/// Puts the calling thread, and those that it starts, on one CPU while it lives.
class OneCpu {
public:
    OneCpu()
    {
        sched_getaffinity(0, sizeof mBefore, &mBefore);
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(static_cast<std::size_t>(sched_getcpu()), &one);
        sched_setaffinity(0, sizeof one, &one);
    }
    ~OneCpu() { sched_setaffinity(0, sizeof mBefore, &mBefore); }
    OneCpu(const OneCpu&) = delete;
    OneCpu& operator=(const OneCpu&) = delete;

private:
    cpu_set_t mBefore;
};

TEST(Wait, WakeUpThatComesFirstIsKept)
{
    Wait wait;
    wait.wakeUp();
    wait.wait();
}

TEST(Wait, WakeUpsAreNotCounted)
{
    Wait wait;
    wait.wakeUp();
    wait.wakeUp();
    wait.wait();
    std::atomic<bool> wokenAgain{false};
    std::thread waker([&] {
        wokenAgain = true;
        wait.wakeUp();
    });
    wait.wait();
    EXPECT_TRUE(wokenAgain) << "the second wake-up was kept beyond the first wait";
    waker.join();
}

TEST(Wait, SeesWhatTheWakerWroteBefore)
{
    Wait wait;
    int plain = 0;
    std::thread waker([&] {
        plain = 42;
        wait.wakeUp();
    });
    wait.wait();
    EXPECT_EQ(plain, 42);
    waker.join();
}

void handToAndFro(int rounds)
{
    Wait there;
    Wait back;
    int turns = 0;
    std::thread other([&] {
        for (int round = 0; round < rounds; ++round) {
            there.wait();
            ++turns;
            back.wakeUp();
        }
    });
    for (int round = 0; round < rounds; ++round) {
        there.wakeUp();
        back.wait();
        ASSERT_EQ(turns, round + 1);
    }
    other.join();
}

TEST(Wait, HandsTurnsToAndFro)
{
    handToAndFro(20'000);
}

TEST(Wait, HandsTurnsToAndFroOnOneCpu)
{
    const OneCpu pinned;
    handToAndFro(20'000);
}

TEST(Wait, WakesASleeperThatHasGivenUpSpinning)
{
    Wait wait;
    Gate waiting;
    std::thread waiter([&] {
        waiting.open();
        wait.wait();
    });
    ASSERT_TRUE(waiting.wait());
    const auto spinIsOver = std::chrono::steady_clock::now() + std::chrono::milliseconds(2);
    while (std::chrono::steady_clock::now() < spinIsOver)
        std::this_thread::yield();
    wait.wakeUp();
    waiter.join();
}

TEST(Wait, MayBeDestroyedAsSoonAsItReturns)
{
    std::atomic<Wait*> current{nullptr};
    constexpr int ROUNDS = 20'000;
    std::thread waker([&] {
        for (int round = 0; round < ROUNDS; ++round) {
            Wait* wait = nullptr;
            while (!(wait = current.exchange(nullptr)))
                std::this_thread::yield();
            wait->wakeUp();
        }
    });
    for (int round = 0; round < ROUNDS; ++round) {
        auto wait = std::make_unique<Wait>();
        current = wait.get();
        wait->wait();
    }
    waker.join();
}

} // namespace
