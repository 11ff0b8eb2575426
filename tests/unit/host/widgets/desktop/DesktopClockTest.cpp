#include "host/widgets/desktop/DesktopClock.h"

#include "support/VirtualTime.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <gtest/gtest.h>

namespace {

constexpr int MINUTE = 60'000;

class DesktopClockTest : public testing::Test {
protected:
    DesktopClockTest() { application->setTimeFormat(ICC::fromUTF8toUNICODE("24h")); }
    ~DesktopClockTest() override
    {
        application->setTimeFormat(PegString());
        application->setDateFormat(PegString());
    }

    test::VirtualTime time;
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    host::DesktopClock clock;
};

TEST_F(DesktopClockTest, ShowsNothingBeforeItIsSet)
{
    time.pass(MINUTE);
    EXPECT_EQ(clock.time(), "");
    EXPECT_EQ(clock.date(), "");
    EXPECT_FALSE(clock.weekday());
    EXPECT_FALSE(clock.runs());
}

TEST_F(DesktopClockTest, TimeAndDateMayBeSetInAnyOrder)
{
    clock.setTime(14, 5, 59);
    clock.setDate(9, 3, 2026);
    EXPECT_EQ(clock.time(), "14:05");
    EXPECT_EQ(clock.date(), "09.03.2026");
    clock.setTime(3, 0, 0);
    EXPECT_EQ(clock.date(), "09.03.2026");
    EXPECT_EQ(clock.weekday(), std::chrono::Monday);
}

TEST_F(DesktopClockTest, MidnightChangesTheDate)
{
    clock.setDate(31, 12, 2027);
    clock.setTime(23, 59, 59);
    EXPECT_EQ(clock.untilNextText(), 1'000);
    time.pass(1'000);
    EXPECT_EQ(clock.time(), "00:00");
    EXPECT_EQ(clock.date(), "01.01.2028");
    EXPECT_EQ(clock.weekday(), std::chrono::Saturday);
}

TEST_F(DesktopClockTest, WhatIsOutOfRangeIsCutIntoIt)
{
    clock.setTime(99, -1, 60);
    clock.setDate(31, 2, 2028);
    EXPECT_EQ(clock.time(), "23:00");
    EXPECT_EQ(clock.date(), "29.02.2028");
    clock.setDate(0, 13, 99999);
    EXPECT_EQ(clock.date(), "01.12.9999");
    clock.setDate(-7, -7, -7);
    EXPECT_EQ(clock.date(), "01.01.1970");
}

TEST_F(DesktopClockTest, ZoneMayGoBackBehindTheFirstDay)
{
    clock.setTime(0, 30, 0);
    clock.setDate(1, 1, 1970);
    clock.setZone(-45);
    EXPECT_EQ(clock.time(), "23:45");
    EXPECT_EQ(clock.date(), "31.12.1969");
    EXPECT_EQ(clock.untilNextText(), MINUTE);
}

TEST_F(DesktopClockTest, ZoneIsADayAtMost)
{
    clock.setDate(9, 3, 2026);
    clock.setZone(0x7FFFFFFF);
    EXPECT_EQ(clock.date(), "10.03.2026");
    clock.setZone(-0x7FFFFFFF);
    EXPECT_EQ(clock.date(), "08.03.2026");
}

TEST_F(DesktopClockTest, DateHasTheApplicationsFormat)
{
    clock.setDate(9, 3, 2026);
    const std::pair<const char*, const char*> formats[] = {
        {"", "09.03.2026"},           {"d.m.yy", "9.3.26"}, {"mm/dd/yyyy", "03/09/2026"},
        {"YYYY-MM-DD", "2026-03-09"}, {"d", "9"},           {"dd. (x) m", "09. (x) 3"}};
    for (const auto& [format, date] : formats) {
        application->setDateFormat(ICC::fromUTF8toUNICODE(format));
        EXPECT_EQ(clock.date(), date) << format;
    }
}

} // namespace
