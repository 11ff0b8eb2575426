#include "utilities/Semaphore.h"

#include "host/clock/Clock.h"
#include "support/Gate.h"
#include "support/Looks.h"
#include "support/OneCpu.h"
#include "support/Worker.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

namespace {

using test::becomesTrue;
using test::Gate;
using test::looksInVain;
using test::OneCpu;
using test::onOtherThread;

/// As of a wait, with a permit that a thread on `giversCpu` has given.
int looksAfterATake(int takersCpu, int giversCpu)
{
    int looks = 0;
    onOtherThread([&] {
        const OneCpu here(takersCpu);
        Semaphore announced(Semaphore::NOT_AVAILABLE, 1, false);
        onOtherThread([&] {
            const OneCpu there(giversCpu);
            announced.give();
        });
        announced.take(-1);
        looks = looksInVain();
    });
    return looks;
}

int looksAfterAGive(int takersCpu, int giversCpu)
{
    int looks = 0;
    Semaphore announced(Semaphore::NOT_AVAILABLE, 1, false);
    test::Worker taker([&] {
        const OneCpu here(takersCpu);
        announced.take(-1);
    });
    EXPECT_TRUE(taker.isBlocked());
    onOtherThread([&] {
        const OneCpu here(giversCpu);
        announced.give();
        looks = looksInVain();
    });
    return looks;
}

bool takenByAnotherThread(Semaphore& semaphore)
{
    bool taken = false;
    std::thread([&] { taken = semaphore.take(0); }).join();
    return taken;
}

TEST(Semaphore, AvailableStartsWithAllPermits)
{
    Semaphore semaphore(Semaphore::AVAILABLE, 3, false);
    for (int permit = 0; permit < 3; ++permit)
        EXPECT_TRUE(semaphore.take(0));
    EXPECT_FALSE(semaphore.take(0));
}

TEST(Semaphore, NotAvailableStartsWithNone)
{
    Semaphore semaphore(Semaphore::NOT_AVAILABLE, 3, false);
    EXPECT_FALSE(semaphore.take(0));
    semaphore.give();
    EXPECT_TRUE(semaphore.take(0));
}

TEST(Semaphore, GiveNeverPassesTheMaximum)
{
    Semaphore semaphore(Semaphore::NOT_AVAILABLE, 2, false);
    for (int times = 0; times < 5; ++times)
        semaphore.give();
    EXPECT_TRUE(semaphore.take(0));
    EXPECT_TRUE(semaphore.take(0));
    EXPECT_FALSE(semaphore.take(0));
}

TEST(Semaphore, TimeOutEndsTheWait)
{
    Semaphore semaphore(Semaphore::NOT_AVAILABLE, 1, false);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(semaphore.take(20));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(20));
}

TEST(Semaphore, PermitEndsALimitedWait)
{
    Semaphore semaphore(Semaphore::NOT_AVAILABLE, 1, false);
    std::thread giver([&] { semaphore.give(); });
    EXPECT_TRUE(semaphore.take(60'000));
    giver.join();
}

TEST(Semaphore, TimeOutFollowsTheVirtualClock)
{
    host::Clock& clock = host::Clock::instance();
    clock.makeVirtual();
    Semaphore semaphore(Semaphore::NOT_AVAILABLE, 1, false);
    std::atomic<bool> over{false};
    std::int64_t waited = 0;
    std::thread waiter([&] {
        const std::int64_t start = clock.now();
        EXPECT_FALSE(semaphore.take(1'000'000));
        waited = clock.now() - start;
        over = true;
    });
    while (!over)
        clock.advance(100'000);
    waiter.join();
    EXPECT_GE(waited, 1'000'000);
    clock.makeReal();
}

TEST(Semaphore, OneWaiterGoesOnPerPermit)
{
    Semaphore semaphore(Semaphore::NOT_AVAILABLE, 4, false);
    std::atomic<int> through{0};
    std::vector<std::thread> waiters;
    for (int i = 0; i < 4; ++i)
        waiters.emplace_back([&] {
            semaphore.take(-1);
            ++through;
        });
    for (int permits = 1; permits <= 4; ++permits) {
        semaphore.give();
        EXPECT_TRUE(becomesTrue([&] { return through == permits; }));
    }
    for (std::thread& waiter : waiters)
        waiter.join();
    EXPECT_FALSE(semaphore.take(0));
}

TEST(Semaphore, GuardsLikeALock)
{
    Semaphore semaphore(Semaphore::AVAILABLE, 1, false);
    constexpr int ROUNDS = 20'000;
    int counter = 0;
    const auto count = [&] {
        for (int round = 0; round < ROUNDS; ++round) {
            semaphore.take(-1);
            ++counter;
            semaphore.give();
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(count);
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counter, 4 * ROUNDS);
    EXPECT_TRUE(semaphore.take(0));
    EXPECT_FALSE(semaphore.take(0));
}

TEST(Semaphore, MayBeDestroyedAsSoonAsItIsTaken)
{
    std::atomic<Semaphore*> current{nullptr};
    constexpr int ROUNDS = 10'000;
    std::thread giver([&] {
        for (int round = 0; round < ROUNDS; ++round) {
            Semaphore* semaphore = nullptr;
            while (!(semaphore = current.exchange(nullptr)))
                std::this_thread::yield();
            semaphore->give();
        }
    });
    for (int round = 0; round < ROUNDS; ++round) {
        auto semaphore = std::make_unique<Semaphore>(Semaphore::NOT_AVAILABLE, 1, false);
        current = semaphore.get();
        semaphore->take(-1);
    }
    giver.join();
}

TEST(Semaphore, NeitherTakerNorGiverSpinsWhereBothRunOnOneCpu)
{
    const int cpu = OneCpu::first();
    EXPECT_EQ(looksAfterATake(cpu, cpu), 1);
    EXPECT_EQ(looksAfterAGive(cpu, cpu), 1);
}

TEST(Semaphore, TakerAndGiverSpinWhereEachIsBoundToACpuOfItsOwn)
{
    if (OneCpu::first() == OneCpu::last())
        GTEST_SKIP() << "there is one CPU only";
    EXPECT_GT(looksAfterATake(OneCpu::first(), OneCpu::last()), 2);
    EXPECT_GT(looksAfterAGive(OneCpu::first(), OneCpu::last()), 2);
}

TEST(Semaphore, ATakeInVainTellsNothing)
{
    onOtherThread([] {
        Semaphore announced(Semaphore::NOT_AVAILABLE, 1, false);
        EXPECT_FALSE(announced.take(0));
        EXPECT_EQ(host::Spin::partner(), host::Spin::UNKNOWN);
    });
}

TEST(Semaphore, ALocksTakerIsNobodysPartner)
{
    onOtherThread([] {
        Semaphore lock(Semaphore::AVAILABLE, 1, false);
        lock.take(-1);
        lock.give();
        EXPECT_EQ(host::Spin::partner(), host::Spin::UNKNOWN);
    });
}

TEST(Semaphore, HolderMayTakeAgainAndGivesAsOften)
{
    Semaphore semaphore(Semaphore::AVAILABLE, 1, true);
    EXPECT_TRUE(semaphore.take(0));
    EXPECT_TRUE(semaphore.take(0));
    EXPECT_FALSE(takenByAnotherThread(semaphore));
    semaphore.give();
    EXPECT_FALSE(takenByAnotherThread(semaphore));
    semaphore.give();
    EXPECT_TRUE(takenByAnotherThread(semaphore));
}

TEST(Semaphore, HolderMayNotTakeAgainUnlessAllowed)
{
    Semaphore semaphore(Semaphore::AVAILABLE, 1, false);
    EXPECT_TRUE(semaphore.take(0));
    EXPECT_FALSE(semaphore.take(0));
}

TEST(Semaphore, EachHolderTakesItsOwnAgain)
{
    Semaphore semaphore(Semaphore::AVAILABLE, 2, true);
    ASSERT_TRUE(semaphore.take(0));
    Gate held;
    Gate release;
    std::thread other([&] {
        EXPECT_TRUE(semaphore.take(0));
        EXPECT_TRUE(semaphore.take(0));
        semaphore.give();
        held.open();
        EXPECT_TRUE(release.wait());
        semaphore.give();
    });
    ASSERT_TRUE(held.wait());
    EXPECT_TRUE(semaphore.take(0));
    EXPECT_FALSE(takenByAnotherThread(semaphore));
    release.open();
    other.join();
    EXPECT_TRUE(takenByAnotherThread(semaphore));
}

TEST(Semaphore, PermitOfOneThreadMayBeGivenByAnother)
{
    Semaphore semaphore(Semaphore::NOT_AVAILABLE, 1, true);
    std::thread giver([&] { semaphore.give(); });
    EXPECT_TRUE(semaphore.take(-1));
    giver.join();
}

} // namespace
