#include "host/clock/Clock.h"

#include "unit/RunningToolkit.h"

#include <atomic>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using host::Clock;
using testing::ElementsAre;
using testing_support::becomesTrue;
using testing_support::Gate;
using testing_support::RunningToolkit;

TEST(Clock, EnvironmentMakesItVirtual)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    setenv("DISPLAYAPI_CLOCK", "virtual", 1);
    EXPECT_EXIT(std::_Exit(Clock::instance().isVirtual() ? 0 : 1), testing::ExitedWithCode(0), "");
    unsetenv("DISPLAYAPI_CLOCK");
}

class VirtualClockTest : public testing::Test {
protected:
    VirtualClockTest()
    {
        clock.makeVirtual();
        mStart = clock.now();
    }
    ~VirtualClockTest() override { clock.makeReal(); }

    std::int64_t passed() const { return clock.now() - mStart; }

    bool sleeperIsThere(int sleepers = 1)
    {
        return becomesTrue([=, this] { return clock.sleepers() == sleepers; });
    }

    Clock& clock = Clock::instance();

private:
    std::int64_t mStart;
};

TEST(Clock, RealTimeNeverGoesBack)
{
    std::int64_t last = Clock::instance().now();
    for (int i = 0; i < 1'000; ++i) {
        const std::int64_t now = Clock::instance().now();
        ASSERT_GE(now, last);
        last = now;
    }
}

TEST(Clock, RealTimeIsNotAdvanced)
{
    const std::int64_t before = Clock::instance().now();
    Clock::instance().advance(10'000'000);
    EXPECT_LT(Clock::instance().now(), before + 10'000'000);
}

TEST(Clock, RealSleepLasts)
{
    const std::int64_t before = Clock::instance().now();
    EXPECT_TRUE(Clock::instance().sleepFor(5));
    EXPECT_GE(Clock::instance().now(), before + 5);
}

TEST(Clock, RealSleepEndsWhenStopped)
{
    bool stop = false;
    std::thread sleeper([&] { EXPECT_FALSE(Clock::instance().sleepFor(1'000'000, &stop)); });
    Clock::instance().wakeSleepers([&] { stop = true; });
    sleeper.join();
}

TEST_F(VirtualClockTest, StandsStillUntilAdvanced)
{
    EXPECT_EQ(passed(), 0);
    clock.advance(250);
    EXPECT_EQ(passed(), 250);
    clock.advance(-5);
    clock.advance(0);
    EXPECT_EQ(passed(), 250);
}

TEST_F(VirtualClockTest, SleeperWakesWhenItsTimeHasCome)
{
    std::int64_t woken = 0;
    std::thread sleeper([&] {
        EXPECT_TRUE(clock.sleepFor(100));
        woken = passed();
    });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(99);
    EXPECT_EQ(clock.sleepers(), 1);
    clock.advance(1);
    sleeper.join();
    EXPECT_EQ(woken, 100);
}

TEST_F(VirtualClockTest, SleepOfNoTimeReturnsAtOnce)
{
    EXPECT_TRUE(clock.sleepFor(0));
    EXPECT_TRUE(clock.sleepFor(-3));
}

TEST_F(VirtualClockTest, StoppedSleeperReturnsEarly)
{
    bool stop = false;
    std::thread sleeper([&] { EXPECT_FALSE(clock.sleepFor(100, &stop)); });
    ASSERT_TRUE(sleeperIsThere());
    clock.wakeSleepers([&] { stop = true; });
    sleeper.join();
    EXPECT_EQ(clock.sleepers(), 0);
    EXPECT_EQ(passed(), 0);
}

TEST_F(VirtualClockTest, OneAdvanceWakesARepeatingSleeperEachTime)
{
    std::vector<std::int64_t> woken;
    std::thread sleeper([&] {
        for (int round = 0; round < 5; ++round) {
            clock.sleepFor(1'000);
            woken.push_back(passed());
        }
    });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(10'000);
    sleeper.join();
    EXPECT_THAT(woken, ElementsAre(1'000, 2'000, 3'000, 4'000, 5'000));
}

TEST_F(VirtualClockTest, SleepersWakeInTheOrderOfTheirTimes)
{
    std::mutex mutex;
    std::vector<int> woken;
    std::vector<std::thread> sleepers;
    for (const int ms : {30, 10, 20})
        sleepers.emplace_back([&, ms] {
            clock.sleepFor(ms);
            std::lock_guard lock(mutex);
            woken.push_back(ms);
        });
    ASSERT_TRUE(sleeperIsThere(3));
    clock.advance(100);
    for (std::thread& sleeper : sleepers)
        sleeper.join();
    EXPECT_THAT(woken, ElementsAre(10, 20, 30));
}

TEST_F(VirtualClockTest, SleeperThatNeverReturnsDoesNotStopTime)
{
    Gate release;
    std::thread sleeper([&] {
        clock.sleepFor(10);
        EXPECT_TRUE(release.wait());
    });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(20);
    EXPECT_EQ(passed(), 20);
    release.open();
    sleeper.join();
}

TEST_F(VirtualClockTest, SleeperMayAdvance)
{
    std::thread sleeper([&] {
        clock.sleepFor(10);
        clock.advance(5);
    });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(10);
    sleeper.join();
    EXPECT_EQ(passed(), 15);
}

TEST_F(VirtualClockTest, BecomingRealWakesSleepers)
{
    std::thread sleeper([&] { clock.sleepFor(1'000'000); });
    ASSERT_TRUE(sleeperIsThere());
    clock.makeReal();
    sleeper.join();
}

class Ticking : public PegThing {
public:
    explicit Ticking(std::function<void(std::int32_t)> tick) : mTick(std::move(tick)) {}

    int Message(const PegMessage& message) override
    {
        if (message.wType == PM_TIMER)
            mTick(message.iData);
        return 0;
    }

private:
    std::function<void(std::int32_t)> mTick;
};

TEST_F(VirtualClockTest, OneAdvanceRunsEachTimerAtItsTime)
{
    RunningToolkit toolkit;
    std::vector<std::int64_t> ticks;
    toolkit.run([&] {
        auto* const ticking = new Ticking([&](std::int32_t) { ticks.push_back(passed()); });
        gpPresent->Add(ticking);
        ticking->SetTimer(1, 300, true);
    });
    clock.advance(1'000);
    EXPECT_THAT(ticks, ElementsAre(300, 600, 900)) << "all of them before advance() returns";
}

TEST_F(VirtualClockTest, TimersThatAHandlerSetsRunInTheSameAdvance)
{
    RunningToolkit toolkit;
    std::vector<std::int64_t> ticks;
    PegThing* ticking = nullptr;
    toolkit.run([&] {
        ticking = new Ticking([&](std::int32_t id) {
            ticks.push_back(passed());
            ticking->SetTimer(id + 1, 10 * id, false);
        });
        gpPresent->Add(ticking);
        ticking->SetTimer(1, 5, false);
    });
    clock.advance(100);
    EXPECT_THAT(ticks, ElementsAre(5, 15, 35, 65));
}

TEST_F(VirtualClockTest, TimersDoNotRunAheadOfTheClock)
{
    RunningToolkit toolkit;
    int ticks = 0;
    toolkit.run([&] {
        auto* const ticking = new Ticking([&](std::int32_t) { ++ticks; });
        gpPresent->Add(ticking);
        ticking->SetTimer(1, 100, false);
    });
    clock.advance(99);
    toolkit.run([&] { EXPECT_EQ(ticks, 0); });
    clock.advance(1);
    toolkit.run([&] { EXPECT_EQ(ticks, 1); });
}

TEST_F(VirtualClockTest, WhatASleeperPushesIsHandledBeforeTheClockMovesOn)
{
    RunningToolkit toolkit;
    std::vector<std::int64_t> handled;
    std::thread sleeper([&] {
        for (int round = 0; round < 3; ++round) {
            clock.sleepFor(1'000);
            toolkit.post([&] { handled.push_back(passed()); });
        }
    });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(5'000);
    sleeper.join();
    ASSERT_TRUE(toolkit.waitUntilIdle());
    EXPECT_THAT(handled, ElementsAre(1'000, 2'000, 3'000));
}

} // namespace
