#include "host/toolkit/Loop.h"

#include "support/OneCpu.h"
#include "support/RunningToolkit.h"

#include <atomic>
#include <gtest/gtest.h>
#include <sched.h>

namespace {

using host::Loop;
using test::becomesTrue;
using test::Gate;
using test::PATIENCE;
using test::RunningToolkit;
using test::StartedToolkit;
using namespace std::chrono_literals;

TEST(Loop, RunsFromExecuteToExit)
{
    EXPECT_FALSE(Loop::isRunning());
    RunningToolkit toolkit;
    EXPECT_TRUE(Loop::isRunning());
    toolkit.quit();
    EXPECT_FALSE(Loop::isRunning());
}

TEST(Loop, QuitEndsIt)
{
    const StartedToolkit toolkit;
    Loop::quit();
    gpPresent->Execute(nullptr);
    EXPECT_FALSE(Loop::isRunning());
}

/// The kernel lets a busy neighbour finish his turn before it runs a thread of another class that has been woken.
TEST(Loop, TheGuiThreadOfASingleCpuStaysInTheClassThatIsServedAtOnce)
{
    const test::OneCpu here;
    RunningToolkit toolkit;
    toolkit.run([] { EXPECT_EQ(sched_getscheduler(0), SCHED_OTHER); });
}

TEST(Loop, QuitWithoutAToolkitDoesNothing)
{
    Loop::quit();
    EXPECT_FALSE(Loop::isRunning());
}

TEST(Loop, NobodyWaitsForALoopThatDoesNotRun)
{
    EXPECT_FALSE(Loop::waitUntilIdle(PATIENCE));
    const StartedToolkit toolkit;
    EXPECT_FALSE(Loop::waitUntilIdle(PATIENCE));
}

TEST(Loop, GuiThreadDoesNotWaitForItself)
{
    RunningToolkit toolkit;
    toolkit.run([] { EXPECT_FALSE(Loop::waitUntilIdle(PATIENCE)); });
}

TEST(Loop, IdleMeansThatEverythingPushedBeforeIsHandled)
{
    RunningToolkit toolkit;
    std::atomic<int> handled{0};
    for (int round = 1; round <= 2'000; ++round) {
        toolkit.post([&] { ++handled; });
        ASSERT_TRUE(Loop::waitUntilIdle(PATIENCE));
        ASSERT_EQ(handled, round);
    }
}

TEST(Loop, IdleMeansThatPushesOfHandlersAreHandledToo)
{
    RunningToolkit toolkit;
    int left = 100;
    std::function<void()> again = [&] {
        if (--left > 0)
            toolkit.post(again);
    };
    toolkit.post(again);
    ASSERT_TRUE(Loop::waitUntilIdle(PATIENCE));
    EXPECT_EQ(left, 0);
}

TEST(Loop, WaitEndsAtItsLimit)
{
    RunningToolkit toolkit;
    Gate release;
    toolkit.post([&] { EXPECT_TRUE(release.wait()); });
    EXPECT_FALSE(Loop::waitUntilIdle(10ms));
    release.open();
    EXPECT_TRUE(Loop::waitUntilIdle(PATIENCE));
}

TEST(Loop, EndOfTheLoopEndsTheWait)
{
    RunningToolkit toolkit;
    Gate busy;
    Gate release;
    toolkit.post([&] {
        busy.open();
        EXPECT_TRUE(release.wait());
        Loop::quit();
    });
    ASSERT_TRUE(busy.wait());
    std::atomic<bool> result{true};
    std::thread waiter([&] {
        while (Loop::waitUntilIdle(PATIENCE))
            std::this_thread::yield();
        result = false;
    });
    release.open();
    waiter.join();
    EXPECT_FALSE(result);
}

TEST(Loop, BusyForGrowsWhileOneMessageIsHandled)
{
    RunningToolkit toolkit;
    Gate release;
    toolkit.post([&] { EXPECT_TRUE(release.wait()); });
    EXPECT_TRUE(becomesTrue([] { return Loop::busyFor() >= 50ms; }));
    EXPECT_FALSE(Loop::standsStill());
    release.open();
    EXPECT_TRUE(becomesTrue([] { return Loop::busyFor() == 0ms; }));
}

TEST(Loop, BusyForBeginsAnewWhenOthersHaveHadTheirTurn)
{
    RunningToolkit toolkit;
    const auto takeTheirTime = [] { EXPECT_TRUE(becomesTrue([] { return Loop::busyFor() >= 500ms; })); };
    toolkit.post(takeTheirTime);
    EXPECT_TRUE(toolkit.waitUntilIdle());
    toolkit.run([] { EXPECT_LT(Loop::busyFor(), 500ms); });
}

TEST(Loop, BusyForDoesNotGrowThroughABurst)
{
    RunningToolkit toolkit;
    std::atomic<bool> isOver = false;
    std::function<void()> again = [&] {
        if (!isOver)
            toolkit.post(again);
    };
    toolkit.post(again);
    for (const auto end = std::chrono::steady_clock::now() + 1200ms; std::chrono::steady_clock::now() < end;)
        EXPECT_LT(Loop::busyFor(), 1s);
    isOver = true;
    EXPECT_TRUE(toolkit.waitUntilIdle());
}

TEST(Loop, ProgramThatDoesNotRunItStandsStill)
{
    EXPECT_EQ(Loop::busyFor(), 0ms);
    {
        const StartedToolkit toolkit;
        EXPECT_TRUE(becomesTrue([] { return Loop::standsStill(); }));
    }
    EXPECT_EQ(Loop::busyFor(), 0ms);
}

TEST(Loop, SeveralThreadsMayWait)
{
    RunningToolkit toolkit;
    std::vector<std::thread> waiters;
    for (int i = 0; i < 3; ++i)
        waiters.emplace_back([&] {
            for (int round = 0; round < 200; ++round) {
                toolkit.post([] {});
                EXPECT_TRUE(Loop::waitUntilIdle(PATIENCE));
            }
        });
    for (std::thread& waiter : waiters)
        waiter.join();
}

} // namespace
