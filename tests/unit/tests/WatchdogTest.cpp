#include "support/Watchdog.h"

#include <gtest/gtest.h>

#include <latch>

using namespace std::chrono_literals;
using test::Watchdog;

namespace {

[[noreturn]] void hang()
{
    Watchdog watchdog(50ms);
    watchdog.start("SomeTest.NeverEnds");
    std::latch never(1);
    never.wait();
    std::abort();
}

} // namespace

TEST(WatchdogDeathTest, AHangIsAFailureWithASentence)
{
    EXPECT_DEATH(hang(), "TEST HUNG: SomeTest.NeverEnds did not finish in 0.05 s\n  thread [0-9]+ .*main queue");
}

TEST(WatchdogTest, ATestThatEndsInTimeIsLeftAlone)
{
    Watchdog watchdog(1s);
    watchdog.start("SomeTest.Ends");
    watchdog.stop();
    std::this_thread::sleep_for(1200ms);
}

TEST(WatchdogTest, EachTestHasTheWholeLimit)
{
    Watchdog watchdog(2s);
    for (int i = 0; i < 3; ++i) {
        watchdog.start("SomeTest.Ends");
        std::this_thread::sleep_for(800ms);
        watchdog.stop();
    }
}
