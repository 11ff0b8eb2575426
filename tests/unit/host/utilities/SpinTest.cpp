#include "host/utilities/Spin.h"

#include "support/Gate.h"
#include "support/Looks.h"
#include "support/OneCpu.h"
#include "support/Worker.h"

#include <chrono>
#include <gtest/gtest.h>

namespace {

using host::Spin;
using test::becomesTrue;
using test::looksInVain;
using test::OneCpu;
using test::onOtherThread;

/// What a waiter does that is woken by a thread on `cpu`.
void beWokenFrom(int cpu)
{
    Spin::Trace trace{static_cast<std::int16_t>(cpu)};
    Spin::followWaker(trace);
}

void sleepLong()
{
    const Spin::Sleep sleep;
    const auto end = std::chrono::steady_clock::now() + std::chrono::nanoseconds(Spin::SHORT_SLEEP_NS + 1);
    while (std::chrono::steady_clock::now() <= end) {
    }
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
    onOtherThread([] {
        const OneCpu here;
        beWokenFrom(here.number() + 1);
        EXPECT_GT(looksInVain(), 1);
    });
}

TEST(Spin, TellsWhetherWhatItWaitedForHasCome)
{
    onOtherThread([] {
        const OneCpu here;
        EXPECT_TRUE(Spin::until([looks = 0]() mutable { return ++looks == 2; }, here.number() + 1));
        EXPECT_FALSE(Spin::until([] { return false; }, here.number() + 1));
    });
}

TEST(Spin, IsLeftOutWhereThePartnerRanOnThisCpu)
{
    onOtherThread([] {
        const OneCpu here;
        beWokenFrom(here.number());
        EXPECT_EQ(looksInVain(), 1);
    });
}

TEST(Spin, IsLeftOutWhereThePartnerRanOnTheCpuOfAThreadThatMayMove)
{
    onOtherThread([] {
        EXPECT_TRUE(becomesTrue([] {
            beWokenFrom(Spin::cpu());
            return looksInVain() == 1;
        })) << "it may be moved in between, but not for ever";
    });
}

TEST(Spin, GoesByTheHoldersCpuInPlaceOfThePartners)
{
    onOtherThread([] {
        const OneCpu here;
        beWokenFrom(here.number() + 1);
        EXPECT_FALSE(Spin::until([looks = 0]() mutable { return ++looks == 2; }, here.number()));
        beWokenFrom(here.number());
        EXPECT_TRUE(Spin::until([looks = 0]() mutable { return ++looks == 2; }, here.number() + 1));
    });
}

TEST(Spin, AThreadOnASingleCpuDoesNotSpinForAStranger)
{
    onOtherThread([] {
        const OneCpu here;
        EXPECT_EQ(looksInVain(), 1);
    });
}

TEST(Spin, IsLeftOutAfterALongSleep)
{
    onOtherThread([] {
        const OneCpu here;
        sleepLong();
        beWokenFrom(here.number() + 1);
        EXPECT_EQ(looksInVain(), 1);
    });
}

TEST(Spin, IsTriedAgainAfterAShortSleep)
{
    onOtherThread([] {
        const OneCpu here;
        sleepLong();
        EXPECT_TRUE(becomesTrue([&] {
            {
                const Spin::Sleep sleep;
            }
            beWokenFrom(here.number() + 1);
            return looksInVain() > 1;
        }));
    });
}

TEST(Spin, ASleepForgetsThePartner)
{
    beWokenFrom(7);
    EXPECT_EQ(Spin::partner(), 7);
    {
        const Spin::Sleep sleep;
    }
    EXPECT_EQ(Spin::partner(), Spin::UNKNOWN);
}

TEST(Spin, WhoMeetsNobodyKeepsHisPartner)
{
    beWokenFrom(7);
    beWokenFrom(Spin::UNKNOWN);
    EXPECT_EQ(Spin::partner(), 7);
}

TEST(Spin, AWaiterFindsTheTraceOfAWakerWhoCameFirst)
{
    onOtherThread([] {
        const OneCpu here;
        Spin::Trace trace{static_cast<std::int16_t>(here.number() + 1)};
        Spin::leaveTrace(trace);
        Spin::followWaker(trace);
        EXPECT_EQ(Spin::partner(), here.number() + 1);
        EXPECT_EQ(trace, Spin::UNKNOWN) << "the next wait is another one";
    });
}

TEST(Spin, NoticesThatTheThreadHasBeenPutOnOneCpu)
{
    onOtherThread([] {
        EXPECT_EQ(Spin::runsElsewhere(Spin::UNKNOWN), OneCpu::first() != OneCpu::last());
        const OneCpu here;
        Spin::until([] { return false; });
        EXPECT_FALSE(Spin::runsElsewhere(Spin::UNKNOWN)) << "a spin in vain looks again";
    });
}

TEST(Spin, NoticesThatTheThreadMayUseAllCpusAgain)
{
    onOtherThread([] {
        {
            const OneCpu here;
            EXPECT_FALSE(Spin::runsElsewhere(Spin::UNKNOWN));
        }
        bool elsewhere = false;
        for (int waits = 0; waits < 1'000 && !elsewhere; ++waits)
            elsewhere = Spin::runsElsewhere(Spin::UNKNOWN);
        EXPECT_EQ(elsewhere, OneCpu::first() != OneCpu::last());
    });
}

} // namespace
