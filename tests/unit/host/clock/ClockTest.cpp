#include "host/clock/Clock.h"

#include "host/lcd/Lcd.h"
#include "support/RunningToolkit.h"
#include "support/Worker.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using host::Clock;
using test::becomesTrue;
using test::Gate;
using test::RunningToolkit;
using testing::ElementsAre;
using testing::Pair;

TEST(Clock, EnvironmentMakesItVirtual)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    setenv("DISPLAYAPI_CLOCK", "virtual", 1);
    EXPECT_EXIT(std::_Exit(Clock::instance().isVirtual() ? 0 : 1), testing::ExitedWithCode(0), "");
    unsetenv("DISPLAYAPI_CLOCK");
}

TEST(Clock, MistypedEnvironmentIsTold)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    setenv("DISPLAYAPI_CLOCK", "virtaul", 1);
    EXPECT_EXIT(std::_Exit(Clock::instance().isVirtual() ? 0 : 1), testing::ExitedWithCode(1),
                "DISPLAYAPI_CLOCK is 'virtaul'; it may be real or virtual");
    for (const char* fine : {"", "real"}) {
        setenv("DISPLAYAPI_CLOCK", fine, 1);
        EXPECT_EXIT(std::_Exit(Clock::instance().isVirtual() ? 0 : 1), testing::ExitedWithCode(1), "^$");
    }
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

TEST(Clock, RealSleepWithoutEndLastsUntilItIsStopped)
{
    bool stop = false;
    test::Worker sleeper([&] { EXPECT_FALSE(Clock::instance().sleepUntil(Clock::NEVER, &stop)); });
    EXPECT_TRUE(sleeper.isBlocked());
    Clock::instance().wakeSleepers([&] { stop = true; });
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

TEST_F(VirtualClockTest, SleepUntilAMomentLastsUntilThen)
{
    const std::int64_t due = clock.now() + 100;
    std::int64_t woken = 0;
    std::thread sleeper([&] {
        EXPECT_TRUE(clock.sleepUntil(due));
        woken = passed();
    });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(1'000);
    sleeper.join();
    EXPECT_EQ(woken, 100);
    EXPECT_TRUE(clock.sleepUntil(due)) << "which has passed";
}

TEST_F(VirtualClockTest, SleepWithoutEndDoesNotHoldTheClockUp)
{
    bool stop = false;
    std::thread sleeper([&] { EXPECT_FALSE(clock.sleepUntil(Clock::NEVER, &stop)); });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(1'000);
    EXPECT_EQ(passed(), 1'000);
    clock.wakeSleepers([&] { stop = true; });
    sleeper.join();
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

/// Has the clock time to move on, where it does not wait.
void beSlow()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

TEST_F(VirtualClockTest, SleeperThatIsStoppedIsWaitedForBeforeTheClockMovesOn)
{
    bool stop = false;
    std::int64_t woken = 0;
    std::thread stopped([&] {
        EXPECT_FALSE(clock.sleepFor(1'000'000, &stop));
        beSlow();
        woken = passed();
    });
    std::thread sleeper([&] {
        clock.sleepFor(10);
        clock.wakeSleepers([&] { stop = true; });
    });
    ASSERT_TRUE(sleeperIsThere(2));
    clock.advance(1'000);
    stopped.join();
    sleeper.join();
    EXPECT_EQ(woken, 10);
}

TEST_F(VirtualClockTest, WhoIsStoppedBeforeItSleepsIsStillAwake)
{
    const bool stop = true;
    std::int64_t noted = 0;
    std::thread sleeper([&] {
        clock.sleepFor(10);
        EXPECT_FALSE(clock.sleepFor(5, &stop));
        beSlow();
        noted = passed();
    });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(1'000);
    sleeper.join();
    EXPECT_EQ(noted, 10);
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

TEST_F(VirtualClockTest, TenHoursOfAVisibleTimerAreNotPaintedTickByTick)
{
    RunningToolkit toolkit;
    std::vector<std::int64_t> ticks;
    std::atomic<int> frames = 0;
    PegThing* ticking = nullptr;
    toolkit.run([&] {
        ticking = new Ticking([&](std::int32_t) {
            ticks.push_back(passed());
            ticking->Invalidate();
        });
        ticking->Resize({0, 0, 59, 11});
        gpPresent->Add(ticking);
        ticking->SetTimer(1, 1'000, true);
        host::Lcd::current()->setFrameListener([&] { ++frames; });
    });
    clock.advance(36'000'000);
    ASSERT_EQ(ticks.size(), 36'000u);
    for (std::size_t i = 0; i < ticks.size(); ++i)
        ASSERT_EQ(ticks[i], static_cast<std::int64_t>(1'000 * (i + 1)));
    EXPECT_LT(frames, 3'600) << "the loop is not handed to and fro for each tick";
    toolkit.run([] {
        EXPECT_FALSE(host::Lcd::current()->isDirty());
        host::Lcd::current()->setFrameListener({});
    });
}

TEST_F(VirtualClockTest, TimersAndSleepersRunInTheOrderOfTheirTimes)
{
    RunningToolkit toolkit;
    std::mutex mutex;
    std::vector<std::pair<std::string, std::int64_t>> order;
    const auto note = [&](const char* who) {
        std::lock_guard lock(mutex);
        order.emplace_back(who, passed());
    };
    toolkit.run([&] {
        auto* const ticking = new Ticking([&](std::int32_t) { note("timer"); });
        gpPresent->Add(ticking);
        ticking->SetTimer(1, 100, true);
    });
    std::thread sleeper([&] {
        for (int round = 0; round < 2; ++round) {
            clock.sleepFor(150);
            note("sleeper");
        }
    });
    ASSERT_TRUE(sleeperIsThere());
    clock.advance(250);
    EXPECT_THAT(order, ElementsAre(Pair("timer", 100), Pair("sleeper", 150), Pair("timer", 200)));
    clock.advance(100);
    sleeper.join();
    EXPECT_EQ(order.size(), 5u);
}

TEST_F(VirtualClockTest, SleeperThatATimerStopsIsWaitedForBeforeTheNextTimer)
{
    RunningToolkit toolkit;
    bool stop = false;
    std::int64_t woken = 0;
    std::thread stopped([&] {
        EXPECT_FALSE(clock.sleepFor(1'000'000, &stop));
        beSlow();
        woken = passed();
    });
    ASSERT_TRUE(sleeperIsThere());
    toolkit.run([&] {
        auto* const ticking = new Ticking([&](std::int32_t) { clock.wakeSleepers([&] { stop = true; }); });
        gpPresent->Add(ticking);
        ticking->SetTimer(1, 300, true);
    });
    clock.advance(1'000);
    stopped.join();
    EXPECT_EQ(woken, 300);
}

TEST_F(VirtualClockTest, WhatATimerPushesIsHandledBeforeTheClockMovesOn)
{
    RunningToolkit toolkit;
    std::vector<std::int64_t> handled;
    toolkit.run([&] {
        auto* const ticking = new Ticking([&](std::int32_t) { toolkit.post([&] { handled.push_back(passed()); }); });
        gpPresent->Add(ticking);
        ticking->SetTimer(1, 400, true);
    });
    clock.advance(1'000);
    EXPECT_THAT(handled, ElementsAre(400, 800));
}

TEST_F(VirtualClockTest, LoopThatIsHeldUpDoesNotStopTime)
{
    RunningToolkit toolkit;
    Gate release;
    toolkit.run([&] {
        auto* const ticking = new Ticking([&](std::int32_t) { EXPECT_TRUE(release.wait()); });
        gpPresent->Add(ticking);
        ticking->SetTimer(1, 100, true);
    });
    clock.advance(1'000);
    EXPECT_EQ(passed(), 1'000);
    release.open();
    EXPECT_TRUE(toolkit.waitUntilIdle());
    EXPECT_EQ(passed(), 1'000) << "the loop moves the clock no more";
}

} // namespace
