#include "host/clock/Clock.h"
#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/Timers.h"
#include "support/RowsOwner.h"
#include "support/RunningToolkit.h"
#include "widgets/KestrelApplication.h"
#include "widgets/KestrelListBoxWP1.h"
#include "widgets/KestrelListBoxWithTitle.h"
#include "widgets/SystemWindow.h"
#include "widgets/TickerWidget.h"

#include <gmock/gmock.h>

using namespace host;
using namespace test;
using testing::ElementsAre;

namespace {

PegString text(const std::string& utf8)
{
    return ICC::fromUTF8toUNICODE(utf8);
}

/// A list with a title on the panel; the test's thread is the GUI thread.
class KestrelListBoxStatusTest : public testing::Test {
protected:
    KestrelListBoxStatusTest()
    {
        Clock::instance().makeVirtual();
        pegInit();
        list = std::make_unique<KestrelListBoxWithTitle>();
        list->setTitle(text("Title"));
        rows.append(*list, "abcdefghi");
        gpPresent->Add(list.get());
        Lcd::current()->paint();
    }
    ~KestrelListBoxStatusTest() override
    {
        list.reset();
        pegCleanUp();
        Clock::instance().makeReal();
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    void setLines(int count)
    {
        for (int line = 0; line < count; ++line)
            list->setSystemWindowText(text("line " + std::to_string(line)), line);
        list->setSystemWindowLines(count);
    }

    int rowsInView() const
    {
        int count = 0;
        while (!isEmpty(list->rowArea(list->topRow() + count)))
            ++count;
        return count;
    }

    static bool isDirty() { return Lcd::current()->isDirty(); }
    static bool isTimerRunning() { return Clock::instance().timerDue() != Clock::NEVER; }

    static std::vector<TextRun> runs()
    {
        Lcd::current()->paint();
        return Lcd::current()->picture().texts;
    }

    RowsOwner rows;
    SystemWindow time; ///< whose time the list shows
    std::unique_ptr<KestrelListBoxWithTitle> list;
};

TEST_F(KestrelListBoxStatusTest, LinesTakeRowsAway)
{
    EXPECT_EQ(rowsInView(), 6);
    for (const auto& [lines, left] : std::vector<std::pair<int, int>>{{1, 5}, {2, 4}, {3, 3}, {4, 2}, {5, 1}, {0, 6}}) {
        setLines(lines);
        EXPECT_EQ(rowsInView(), left) << lines;
    }
}

TEST_F(KestrelListBoxStatusTest, StripStandsAboveTheTitle)
{
    EXPECT_TRUE(isEmpty(list->systemWindowArea()));
    setLines(2);
    EXPECT_EQ(list->systemWindowArea(), (PegRect{0, 0, 239, 32}));
    EXPECT_EQ(runs().at(0).text, "line 0");
    EXPECT_EQ(runs().at(2).text, "Title");
    EXPECT_GT(runs().at(2).area.top, 32);
}

TEST_F(KestrelListBoxStatusTest, CurrentRowStaysInView)
{
    list->setCurrentRow(5);
    setLines(3);
    EXPECT_FALSE(isEmpty(list->rowArea(5)));
    list->setCurrentRow(8);
    setLines(6);
    EXPECT_FALSE(isEmpty(list->rowArea(8)));
    EXPECT_EQ(rowsInView(), 1);
}

TEST_F(KestrelListBoxStatusTest, NumbersOutOfRangeAreCutOrIgnored)
{
    setLines(6);
    list->setSystemWindowLines(99);
    EXPECT_EQ(list->systemWindowLines(), 5);
    list->setTitle(PegString());
    EXPECT_EQ(list->systemWindowLines(), 6);
    list->setSystemWindowText(text("x"), 6);
    list->setSystemWindowText(text("x"), -1);
    EXPECT_EQ(list->systemWindowText(6), "");
    EXPECT_EQ(list->systemWindowText(5), "line 5");
    list->setSystemWindowLines(-1);
    EXPECT_EQ(list->systemWindowLines(), 0);
}

TEST_F(KestrelListBoxStatusTest, BlankLinesAtTheEndTakeNoRoom)
{
    setLines(2);
    list->setSystemWindowText(text("    "), 1);
    EXPECT_EQ(list->systemWindowLines(), 1);
    list->setSystemWindowText(text(""), 0);
    EXPECT_EQ(list->systemWindowLines(), 0);
    EXPECT_EQ(rowsInView(), 6);
}

TEST_F(KestrelListBoxStatusTest, WhatStaysTheSameIsNotPaintedAgain)
{
    setLines(2);
    Lcd::current()->paint();
    setLines(2);
    list->setSystemWindowText(text("not in view"), 5);
    list->setTitle(text("Title"));
    list->setTickerShown(false);
    EXPECT_FALSE(isDirty());
    list->setSystemWindowText(text("other"), 1);
    EXPECT_TRUE(isDirty());
}

TEST_F(KestrelListBoxStatusTest, ClockOfTheSystemWindowStandsAtTheEndOfLineZero)
{
    setLines(1);
    time.setTime(14, 5, 0);
    time.showTime(true);
    EXPECT_EQ(runs().at(1).text, "14:05");
    EXPECT_TRUE(runs().at(1).runs);
    EXPECT_EQ(runs().at(1).widget, TYPE_LIST_WITH_TITLE);
    Clock::instance().advance(60'000);
    Timers::instance().fireDue();
    EXPECT_TRUE(isDirty());
    EXPECT_EQ(runs().at(1).text, "14:06");
    time.setTimer("00:42");
    EXPECT_EQ(runs().at(1).text, "00:42");
}

TEST_F(KestrelListBoxStatusTest, ClockWakesNobodyWhereItIsNotInView)
{
    time.showTime(true);
    EXPECT_FALSE(isTimerRunning());
    list->setSystemWindowLines(1);
    EXPECT_TRUE(isTimerRunning());
    EXPECT_EQ(list->systemWindowLines(), 1);
    gpPresent->Remove(list.get());
    EXPECT_FALSE(isTimerRunning());
    time.showTime(false);
    gpPresent->Add(list.get());
    EXPECT_EQ(list->systemWindowLines(), 0);
    time.showTime(true);
    EXPECT_EQ(list->systemWindowLines(), 1);
}

TEST_F(KestrelListBoxStatusTest, ClockGoesWithItsSystemWindow)
{
    setLines(1);
    {
        SystemWindow last;
        last.setTimer("on hold");
        EXPECT_EQ(runs().at(1).text, "on hold");
    }
    EXPECT_EQ(runs().at(1).text, "Title");
}

TEST_F(KestrelListBoxStatusTest, SystemWindowWithoutTimeLeavesTheClockOfAnother)
{
    setLines(1);
    time.setTimer("on hold");
    SystemWindow last;
    EXPECT_EQ(runs().at(1).text, "on hold");
    last.setTimer("00:42");
    EXPECT_EQ(runs().at(1).text, "00:42");
    last.stopTimer();
    EXPECT_EQ(runs().at(1).text, "on hold");
}

TEST_F(KestrelListBoxStatusTest, RowOutOfViewIsNotPainted)
{
    list->itemAt(7)->DataSet(text("x"));
    EXPECT_FALSE(isDirty());
    list->itemAt(5)->DataSet(text("x"));
    EXPECT_TRUE(isDirty());
}

TEST_F(KestrelListBoxStatusTest, LanguageFromTheRightMirrorsTheList)
{
    setLines(1);
    time.showTime(true);
    list->setExclusive(true);
    const auto before = runs();
    const PegRect row = list->rowArea(0);
    KestrelApplication::getCurrentApplication()->setLocale(text("ar"));
    EXPECT_TRUE(isDirty());
    const PegRect mirrored = list->rowArea(0);
    EXPECT_EQ(mirrored.left, 239 - row.right);
    EXPECT_EQ(mirrored.right, 239 - row.left);
    for (const TextRun& run : before) {
        const PegRect& area = run.area;
        const auto there = [&](const TextRun& other) {
            return other.text == run.text && other.area.left == 239 - area.right && other.area.top == area.top;
        };
        const auto after = runs();
        EXPECT_TRUE(std::any_of(after.begin(), after.end(), there)) << run.text;
    }
}

TEST_F(KestrelListBoxStatusTest, BackArrowStaysAtTheLeftAndTheTitleStaysClearOfIt)
{
    list->setTitle(text(std::string(100, 'W')));
    list->setBackArrow(true);
    KestrelApplication::getCurrentApplication()->setLocale(text("ar"));
    EXPECT_GT(runs().at(0).area.left, 16);
}

TEST_F(KestrelListBoxStatusTest, TwoLinesAreMirroredToo)
{
    KestrelListBoxWP1 twoLines;
    rows.append(twoLines, "ab");
    EXPECT_EQ(twoLines.rowArea(0), (PegRect{8, 0, 200, 20}));
    KestrelApplication::getCurrentApplication()->setLocale(text("he"));
    EXPECT_EQ(twoLines.rowArea(0), (PegRect{7, 0, 199, 20}));
}

TEST_F(KestrelListBoxStatusTest, TickerOnTwoLinesMovesWithTheLanguage)
{
    KestrelListBoxWP1 twoLines;
    auto* ticker = new TickerWidget(text("news"));
    twoLines.Add(ticker);
    twoLines.setTickerShown(true);
    EXPECT_EQ(ticker->Area(), (PegRect{9, 0, 200, 18}));
    KestrelApplication::getCurrentApplication()->setLocale(text("he"));
    EXPECT_EQ(ticker->Area(), (PegRect{7, 0, 198, 18}));
}

} // namespace
