#include "host/widgets/status/StatusTime.h"

#include "host/clock/Clock.h"
#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <functional>
#include <gmock/gmock.h>

using namespace host;
using test::VirtualTime;

namespace {

constexpr int SECOND = 1000;
constexpr int MINUTE = 60 * SECOND;

/// Counts what it is told; shows one time or the current one.
class CountingView final : public StatusTimeView {
public:
    explicit CountingView(const StatusTime* own = nullptr) : mOwn(own) { StatusTime::watch(*this, true); }
    CountingView(const CountingView&) = delete;
    CountingView& operator=(const CountingView&) = delete;
    ~CountingView() { StatusTime::watch(*this, false); }

    const StatusTime* statusTime() const override { return mOwn != nullptr ? mOwn : StatusTime::current(); }
    void statusTimeChanged() override
    {
        ++changes;
        if (whenTold)
            whenTold();
    }

    int changes = 0;
    std::function<void()> whenTold;

private:
    const StatusTime* mOwn;
};

/// The test's thread is the GUI thread.
class StatusTimeTest : public VirtualTime, public testing::Test {
protected:
    ~StatusTimeTest() override { KestrelApplication::getCurrentApplication()->setTimeFormat(PegString()); }

    static void setTimeFormat(const std::string& format)
    {
        KestrelApplication::getCurrentApplication()->setTimeFormat(ICC::fromUTF8toUNICODE(format));
    }

    std::string clockAt(int hours, int minutes, int seconds = 0)
    {
        time.showClock(true);
        time.setClock(hours, minutes, seconds);
        return time.text();
    }

    std::string timerFrom(const std::string& text)
    {
        time.setTimer(text);
        return time.text();
    }

    const test::StartedToolkit toolkit;
    StatusTime time;
};

TEST_F(StatusTimeTest, ShowsNothingAtFirst)
{
    EXPECT_EQ(time.text(), "");
    EXPECT_FALSE(time.runs());
}

TEST_F(StatusTimeTest, ClockHasTwentyFourHours)
{
    EXPECT_EQ(clockAt(14, 5), "14:05");
    EXPECT_EQ(clockAt(0, 0), "00:00");
    EXPECT_EQ(clockAt(9, 59, 59), "09:59");
    EXPECT_TRUE(time.runs());
}

TEST_F(StatusTimeTest, ClockHasTwelveHoursWhereTheFormatSaysSo)
{
    for (const char* format : {"12", "12h", "12 hours"}) {
        setTimeFormat(format);
        EXPECT_EQ(clockAt(14, 5), "2:05 PM");
    }
    EXPECT_EQ(clockAt(0, 30), "12:30 AM");
    EXPECT_EQ(clockAt(11, 59), "11:59 AM");
    EXPECT_EQ(clockAt(12, 0), "12:00 PM");
    EXPECT_EQ(clockAt(23, 0), "11:00 PM");
    setTimeFormat("24");
    EXPECT_EQ(clockAt(14, 5), "14:05");
}

TEST_F(StatusTimeTest, ClockIsCutIntoRange)
{
    EXPECT_EQ(clockAt(25, 99, -1), "23:59");
    EXPECT_EQ(clockAt(-5, -5, 99), "00:00");
    pass(SECOND);
    EXPECT_EQ(time.text(), "00:01");
}

TEST_F(StatusTimeTest, ClockGoesOnByItself)
{
    clockAt(23, 58, 30);
    pass(29'999);
    EXPECT_EQ(time.text(), "23:58");
    pass(1);
    EXPECT_EQ(time.text(), "23:59");
    pass(MINUTE);
    EXPECT_EQ(time.text(), "00:00");
}

TEST_F(StatusTimeTest, ClockGoesOnWhileItIsNotShown)
{
    clockAt(9, 0);
    time.showClock(false);
    EXPECT_EQ(time.text(), "");
    pass(26 * 60 * MINUTE);
    time.showClock(true);
    EXPECT_EQ(time.text(), "11:00");
}

TEST_F(StatusTimeTest, ClockWakesOnceAMinuteOnItsOwnMinute)
{
    CountingView view;
    clockAt(9, 0, 40);
    view.changes = 0;
    EXPECT_EQ(Clock::instance().timerDue(), Clock::instance().now() + 20 * SECOND);
    pass(20 * SECOND);
    EXPECT_EQ(view.changes, 1);
    EXPECT_EQ(Clock::instance().timerDue(), Clock::instance().now() + MINUTE);
}

TEST_F(StatusTimeTest, NobodyIsWokenWhileNobodyLooks)
{
    clockAt(9, 0);
    EXPECT_FALSE(isTimerRunning());
    {
        CountingView view;
        EXPECT_TRUE(isTimerRunning());
    }
    EXPECT_FALSE(isTimerRunning());
    timerFrom("00:00");
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(StatusTimeTest, StandingTextsWakeNobody)
{
    CountingView view;
    EXPECT_FALSE(isTimerRunning());
    time.setTimer("on hold");
    EXPECT_FALSE(isTimerRunning());
    EXPECT_FALSE(time.runs());
}

TEST_F(StatusTimeTest, TimerCountsUp)
{
    EXPECT_EQ(timerFrom("00:42"), "00:42");
    pass(18 * SECOND);
    EXPECT_EQ(time.text(), "01:00");
    EXPECT_TRUE(time.runs());
}

TEST_F(StatusTimeTest, TimerGetsHoursWhenItNeedsThem)
{
    timerFrom("59:59");
    pass(SECOND);
    EXPECT_EQ(time.text(), "01:00:00");
    EXPECT_EQ(timerFrom("00:00:07"), "00:00:07");
}

TEST_F(StatusTimeTest, FirstNumberOfATimerMayHaveOneDigit)
{
    EXPECT_EQ(timerFrom("5:03"), "05:03");
    EXPECT_EQ(timerFrom("1:00:59"), "01:00:59");
}

TEST_F(StatusTimeTest, TimerGoesPastNinetyNineHours)
{
    timerFrom("99:59:59");
    pass(SECOND);
    EXPECT_EQ(time.text(), "100:00:00");
    EXPECT_EQ(timerFrom("123456:00:00"), "123456:00:00");
}

TEST_F(StatusTimeTest, OtherTextsStandStill)
{
    for (const char* text : {"on hold", "1:2", "00:60", "60:00", "00:00:60", "00:60:00", "::", ":", "1:00:", ":01:00",
                             "00:00:00:00", "-1:00", "00: 1", "1234567:00:00", "00:42 "}) {
        EXPECT_EQ(timerFrom(text), text);
        pass(5 * SECOND);
        EXPECT_EQ(time.text(), text);
        EXPECT_FALSE(time.runs()) << text;
    }
}

TEST_F(StatusTimeTest, TimerTakesTheClocksPlaceUntilItIsStopped)
{
    clockAt(9, 0);
    EXPECT_EQ(timerFrom("00:42"), "00:42");
    pass(3 * MINUTE);
    time.stopTimer();
    EXPECT_EQ(time.text(), "09:03");
    EXPECT_EQ(timerFrom("00:42"), "00:42");
    EXPECT_EQ(timerFrom(""), "09:03");
}

TEST_F(StatusTimeTest, WhatStaysTheSameIsNotTold)
{
    CountingView view;
    clockAt(9, 0);
    view.changes = 0;
    time.showClock(true);
    time.setClock(9, 0, 0);
    time.stopTimer();
    EXPECT_EQ(view.changes, 0);
    time.setTimer("00:42");
    time.setTimer("00:42");
    EXPECT_EQ(view.changes, 1);
}

TEST_F(StatusTimeTest, ViewsWithoutAnOwnOneShowTheLastOneMade)
{
    clockAt(9, 0);
    CountingView own(&time);
    CountingView other;
    {
        StatusTime last;
        last.setTimer("00:42");
        EXPECT_EQ(StatusTime::current(), &last);
        own.changes = other.changes = 0;
        last.setTimer("00:43");
        EXPECT_EQ(other.changes, 1);
        EXPECT_EQ(own.changes, 0);
    }
    EXPECT_EQ(other.changes, 2);
    EXPECT_EQ(StatusTime::current(), &time);
}

TEST_F(StatusTimeTest, OneThatShowsNothingIsNotCurrent)
{
    EXPECT_EQ(StatusTime::current(), nullptr);
    clockAt(9, 0);
    CountingView view;
    StatusTime last;
    EXPECT_EQ(StatusTime::current(), &time);
    EXPECT_EQ(view.changes, 0);
    EXPECT_TRUE(isTimerRunning());
}

TEST_F(StatusTimeTest, ViewsAreToldWhenAnotherOneBeginsOrEndsToShow)
{
    clockAt(9, 0);
    CountingView view;
    StatusTime last;
    last.setTimer("on hold");
    EXPECT_EQ(StatusTime::current(), &last);
    EXPECT_EQ(view.changes, 1);
    EXPECT_FALSE(isTimerRunning());
    last.stopTimer();
    EXPECT_EQ(StatusTime::current(), &time);
    EXPECT_EQ(view.changes, 2);
    EXPECT_TRUE(isTimerRunning());
}

TEST_F(StatusTimeTest, ViewsMayComeAndGoWhileTheyAreTold)
{
    for (const char* text : {"on hold", "on hold again"}) {
        CountingView first, second, third, late;
        StatusTime::watch(late, false);
        first.whenTold = [&] {
            StatusTime::watch(first, false);
            StatusTime::watch(second, false);
            StatusTime::watch(late, true);
        };
        time.setTimer(text);
        EXPECT_EQ(first.changes, 1);
        EXPECT_EQ(second.changes, 0);
        EXPECT_EQ(third.changes, 1);
        EXPECT_EQ(late.changes, 0);
    }
}

TEST_F(StatusTimeTest, OnlyTheOneThatIsWatchedWakes)
{
    clockAt(9, 0);
    StatusTime last;
    last.setTimer("on hold");
    CountingView view;
    EXPECT_FALSE(isTimerRunning());
    last.setTimer("00:42");
    EXPECT_TRUE(isTimerRunning());
}

TEST_F(StatusTimeTest, TenHoursAreShownSecondBySecond)
{
    constexpr int TEN_HOURS = 36'000;
    CountingView view;
    timerFrom("00:00:00");
    view.changes = 0;
    for (int second = 0; second < TEN_HOURS; ++second)
        pass(SECOND);
    EXPECT_EQ(view.changes, TEN_HOURS);
    EXPECT_EQ(time.text(), "10:00:00");
}

TEST(RunningStatusTimeTest, TenHoursPassInTheLoop)
{
    const VirtualTime virtualTime;
    test::RunningToolkit toolkit;
    std::unique_ptr<StatusTime> time;
    std::unique_ptr<CountingView> view;
    toolkit.run([&] {
        time = std::make_unique<StatusTime>();
        view = std::make_unique<CountingView>();
        time->setTimer("00:00:00");
        view->changes = 0;
    });
    Clock::instance().advance(36'000 * SECOND);
    toolkit.run([&] {
        EXPECT_EQ(view->changes, 36'000);
        EXPECT_EQ(time->text(), "10:00:00");
        view.reset();
        time.reset();
    });
}

} // namespace
