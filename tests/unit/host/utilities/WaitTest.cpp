#include "utilities/Wait.h"

#include "support/Gate.h"
#include "support/Looks.h"
#include "support/OneCpu.h"
#include "support/Worker.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

namespace {

using test::Gate;
using test::looksInVain;
using test::OneCpu;
using test::onOtherThread;

/// A wait on `waitersCpu` that a thread on `wakersCpu` has ended before it sleeps: how often its next one looks.
int looksAfterAWait(int waitersCpu, int wakersCpu)
{
    int looks = 0;
    onOtherThread([&] {
        const OneCpu here(waitersCpu);
        Wait wait;
        onOtherThread([&] {
            const OneCpu there(wakersCpu);
            wait.wakeUp();
        });
        wait.wait();
        looks = looksInVain();
    });
    return looks;
}

/// A wait on `waitersCpu` that a thread on `wakersCpu` ends: how often the waker's own next wait looks.
int looksAfterAWakeUp(int waitersCpu, int wakersCpu)
{
    int looks = 0;
    Wait wait;
    test::Worker waiter([&] {
        const OneCpu here(waitersCpu);
        wait.wait();
    });
    EXPECT_TRUE(waiter.isBlocked());
    onOtherThread([&] {
        const OneCpu here(wakersCpu);
        wait.wakeUp();
        looks = looksInVain();
    });
    return looks;
}

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

TEST(Wait, NeitherSideSpinsWhereBothRunOnOneCpu)
{
    const int cpu = OneCpu::first();
    EXPECT_EQ(looksAfterAWait(cpu, cpu), 1);
    EXPECT_EQ(looksAfterAWakeUp(cpu, cpu), 1);
}

TEST(Wait, BothSidesSpinWhereEachIsBoundToACpuOfItsOwn)
{
    if (OneCpu::first() == OneCpu::last())
        GTEST_SKIP() << "there is one CPU only";
    EXPECT_GT(looksAfterAWait(OneCpu::first(), OneCpu::last()), 2);
    EXPECT_GT(looksAfterAWakeUp(OneCpu::first(), OneCpu::last()), 2);
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
