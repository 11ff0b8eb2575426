#include "host/utilities/Spin.h"

#include "support/Gate.h"

#include <chrono>
#include <gtest/gtest.h>
#include <sched.h>
#include <thread>

namespace {

using host::Spin;
using test::becomesTrue;

int looksInVain()
{
    int looks = 0;
    EXPECT_FALSE(Spin::until([&] {
        ++looks;
        return false;
    }));
    return looks;
}

void runPinned(void (*work)())
{
    std::thread([=] {
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(static_cast<std::size_t>(sched_getcpu()), &one);
        ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
        work();
    }).join();
}

TEST(Spin, WhatIsReadyIsNotWaitedFor)
{
    int looks = 0;
    EXPECT_TRUE(Spin::until([&] {
        ++looks;
        return true;
    }));
    EXPECT_EQ(looks, 1);
}

TEST(Spin, EndsWhenNothingHappens)
{
    EXPECT_FALSE(Spin::until([] { return false; }));
}

TEST(Spin, GivesWayOnceOnASingleCpu)
{
    runPinned([] {
        EXPECT_FALSE(Spin::hasCompany());
        EXPECT_EQ(looksInVain(), 2);
    });
}

TEST(Spin, IsLeftOutAfterALongSleep)
{
    {
        const Spin::Sleep sleep;
        const auto end = std::chrono::steady_clock::now() + std::chrono::nanoseconds(Spin::SHORT_SLEEP_NS + 1);
        while (std::chrono::steady_clock::now() <= end) {
        }
    }
    EXPECT_EQ(looksInVain(), 1);
}

TEST(Spin, IsTriedAgainAfterAShortSleep)
{
    EXPECT_TRUE(becomesTrue([] {
        {
            const Spin::Sleep sleep;
        }
        return looksInVain() > 1;
    }));
}

TEST(Spin, NoticesThatTheThreadHasBeenPutOnOneCpu)
{
    std::thread([] {
        cpu_set_t all;
        sched_getaffinity(0, sizeof all, &all);
        EXPECT_EQ(Spin::hasCompany(), CPU_COUNT(&all) > 1);
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(static_cast<std::size_t>(sched_getcpu()), &one);
        ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
        Spin::until([] { return false; });
        EXPECT_FALSE(Spin::hasCompany()) << "a spin in vain looks again";
    }).join();
}

TEST(Spin, NoticesThatTheThreadMayUseAllCpusAgain)
{
    std::thread([] {
        cpu_set_t all;
        sched_getaffinity(0, sizeof all, &all);
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(static_cast<std::size_t>(sched_getcpu()), &one);
        ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
        EXPECT_FALSE(Spin::hasCompany());
        ASSERT_EQ(sched_setaffinity(0, sizeof all, &all), 0);
        bool company = false;
        for (int waits = 0; waits < 1'000 && !company; ++waits)
            company = Spin::hasCompany();
        EXPECT_EQ(company, CPU_COUNT(&all) > 1);
    }).join();
}

} // namespace
