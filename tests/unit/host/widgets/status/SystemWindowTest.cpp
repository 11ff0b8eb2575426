#include "widgets/SystemWindow.h"

#include "host/Phone.h"
#include "host/clock/Clock.h"
#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/Timers.h"
#include "support/RunningToolkit.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"
#include "widgets/KestrelListBoxItem.h"
#include "widgets/KestrelListBoxWP1.h"

#include <climits>
#include <gmock/gmock.h>

using namespace host;
using testing::ElementsAre;

namespace {

const std::string BLANKS(24, ' ');

/// A window on a panel of its own; the test's thread is the GUI thread.
class SystemWindowTest : public testing::Test {
protected:
    SystemWindowTest()
    {
        Clock::instance().makeVirtual();
        begin(Variant::PLAIN);
    }
    ~SystemWindowTest() override
    {
        window.reset();
        pegCleanUp();
        setVariant(Variant::PLAIN);
        Clock::instance().makeReal();
        application.setLocale(PegString());
        application.setTimeFormat(PegString());
    }

    void begin(Variant variant)
    {
        window.reset();
        pegCleanUp();
        setVariant(variant);
        pegInit();
        window = std::make_unique<SystemWindow>();
    }

    void show(int lines)
    {
        window->setSystemWindowSize(lines);
        for (int line = 0; line < lines; ++line)
            window->setSystemWindowText(line, "line " + std::to_string(line));
        gpPresent->Add(window.get());
        Lcd::current()->paint();
    }

    int height() const { return heightOf(window->Area()); }

    static bool isDirty() { return Lcd::current()->isDirty(); }
    static bool isTimerRunning() { return Clock::instance().timerDue() != Clock::NEVER; }

    static void pass(std::int64_t ms)
    {
        Clock::instance().advance(ms);
        Timers::instance().fireDue();
    }

    static std::vector<TextRun> runs()
    {
        Lcd::current()->paint();
        return Lcd::current()->picture().texts;
    }

    static std::vector<std::string> texts()
    {
        std::vector<std::string> all;
        for (const TextRun& run : runs())
            all.push_back(run.text);
        return all;
    }

    static std::vector<PegRect> places()
    {
        std::vector<PegRect> all;
        for (const TextRun& run : runs())
            all.push_back(run.area);
        return all;
    }

    KestrelApplication& application = *KestrelApplication::getCurrentApplication();
    std::unique_ptr<SystemWindow> window;
};

TEST_F(SystemWindowTest, KeepsSixLines)
{
    for (int line = 0; line < SystemWindow::MAX_LINES; ++line)
        window->setSystemWindowText(line, "line " + std::to_string(line));
    EXPECT_EQ(window->getSystemWindowText(0), "line 0");
    EXPECT_EQ(window->getSystemWindowText(5), "line 5");
}

TEST_F(SystemWindowTest, IgnoresOtherLines)
{
    window->setSystemWindowText(-1, "x");
    window->setSystemWindowText(6, "x");
    EXPECT_EQ(window->getSystemWindowText(-1), "");
    EXPECT_EQ(window->getSystemWindowText(6), "");
}

TEST_F(SystemWindowTest, KeepsTextsAsTheyAre)
{
    const std::string odd = "\xF0\x9F\x98\x80 \xFF";
    window->setSystemWindowText(1, odd);
    EXPECT_EQ(window->getSystemWindowText(1), odd);
}

TEST_F(SystemWindowTest, HasItsTypeAndNoFocus)
{
    EXPECT_EQ(window->Type(), TYPE_SYSTEM_WINDOW);
    show(2);
    gpPresent->MoveFocusTree(window.get());
    EXPECT_EQ(gpPresent->Focus(), nullptr);
}

TEST_F(SystemWindowTest, IsAsHighAsItsLines)
{
    EXPECT_TRUE(isEmpty(window->Area()));
    show(2);
    EXPECT_EQ(window->Area(), (PegRect{0, 0, 239, 31}));
    window->setSystemWindowTop(40, true, false);
    EXPECT_EQ(window->Area(), (PegRect{0, 40, 239, 72}));
    show(6);
    window->setSystemWindowSize(100);
    EXPECT_EQ(height(), 6 * 16 + 1);
    window->setSystemWindowSize(-1);
    EXPECT_TRUE(isEmpty(window->Area()));
}

TEST_F(SystemWindowTest, BlankLinesAtTheEndTakeNoRoom)
{
    show(3);
    window->setSystemWindowText(2, BLANKS);
    EXPECT_EQ(height(), 32);
    window->setSystemWindowText(0, "");
    EXPECT_EQ(height(), 32);
    window->setSystemWindowText(1, " ");
    EXPECT_TRUE(isEmpty(window->Area()));
    window->setSystemWindowText(2, "x");
    EXPECT_EQ(height(), 48);
}

TEST_F(SystemWindowTest, PopupIsABoxInTheMiddle)
{
    show(2);
    window->setAsPopup(true);
    window->setSystemWindowTop(40, true, true);
    EXPECT_TRUE(window->isPopup());
    const PegRect two = window->Area();
    EXPECT_EQ(two.top, 40);
    EXPECT_GT(two.left, 0);
    EXPECT_EQ(two.left + two.right, 239);
    window->setSystemWindowSize(1);
    EXPECT_LT(height(), heightOf(two));
    EXPECT_THAT(texts(), ElementsAre("line 0"));
}

TEST_F(SystemWindowTest, PopupShowsTwoLinesAtMost)
{
    show(6);
    window->setAsPopup(true);
    EXPECT_THAT(texts(), ElementsAre("line 0", "line 1"));
}

TEST_F(SystemWindowTest, PopupOfBlankLinesIsTakenDownWhateverTheTime)
{
    for (Variant variant : {Variant::PLAIN, Variant::NARROW, Variant::WP1}) {
        begin(variant);
        show(2);
        window->setAsPopup(true);
        window->showTime(true);
        window->setSystemWindowText(0, " ");
        window->setSystemWindowText(1, BLANKS);
        EXPECT_TRUE(isEmpty(window->Area()));
        EXPECT_THAT(texts(), testing::IsEmpty());
        EXPECT_FALSE(isTimerRunning());
    }
}

TEST_F(SystemWindowTest, TopIsCutIntoTheRangeOfTheCoordinates)
{
    show(2);
    window->setSystemWindowTop(INT_MAX, false, true);
    EXPECT_EQ(window->Area(), (PegRect{0, 32767, 239, 32767}));
    window->setSystemWindowTop(INT_MIN, false, true);
    EXPECT_EQ(window->Area(), (PegRect{0, -32768, 239, -32768 + 31}));
    EXPECT_THAT(texts(), testing::IsEmpty());
}

TEST_F(SystemWindowTest, TextsOnTwoLinesStandWhereThoseOfAListDo)
{
    begin(Variant::WP1);
    for (const char* locale : {"en", "he"}) {
        application.setLocale(ICC::fromUTF8toUNICODE(locale));
        KestrelListBoxWP1 list;
        KestrelListBoxItem row(ICC::fromUTF8toUNICODE("line 1"));
        list.setTitle(ICC::fromUTF8toUNICODE("line 0"));
        list.append(&row);
        gpPresent->Add(&list);
        const auto ofList = places();
        show(2);
        EXPECT_EQ(places(), ofList) << locale;
        gpPresent->Remove(window.get());
    }
}

TEST_F(SystemWindowTest, CoversTheLinesThatItHasOnTwoLines)
{
    begin(Variant::WP1);
    show(1);
    EXPECT_EQ(window->Area(), (PegRect{0, 0, 207, 20}));
    show(2);
    EXPECT_EQ(window->Area(), (PegRect{0, 0, 207, 41}));
    window->setAsPopup(true);
    EXPECT_EQ(window->Area(), (PegRect{0, 0, 207, 41}));
    show(6);
    EXPECT_EQ(window->Area(), (PegRect{0, 0, 207, 41}));
}

TEST_F(SystemWindowTest, WhatStaysTheSameIsNotPaintedAgain)
{
    show(2);
    window->setSystemWindowTop(10, true, true);
    window->showTime(true);
    window->setTime(9, 0, 0);
    Lcd::current()->paint();
    window->setSystemWindowSize(2);
    window->setSystemWindowText(0, "line 0");
    window->setSystemWindowText(5, "not in view");
    window->setSystemWindowTop(10, true, false);
    window->setAsPopup(false);
    window->showLine(true);
    window->showTime(true);
    window->setTime(9, 0, 0);
    window->stopTimer();
    EXPECT_FALSE(isDirty());
    window->setSystemWindowText(1, "changed");
    EXPECT_TRUE(isDirty());
}

TEST_F(SystemWindowTest, ClockStandsAtTheEndOfLineZero)
{
    show(2);
    window->setTime(14, 5, 0);
    window->showTime(true);
    EXPECT_THAT(texts(), ElementsAre("line 0", "14:05", "line 1"));
    const auto all = runs();
    EXPECT_LT(all[0].area.right, all[1].area.left);
    EXPECT_GT(all[1].area.right, 225);
    EXPECT_EQ(all[0].widget, TYPE_SYSTEM_WINDOW);
    EXPECT_FALSE(all[0].runs);
    EXPECT_TRUE(all[1].runs);
}

TEST_F(SystemWindowTest, ClockKeepsLineZeroOnTheScreen)
{
    show(1);
    window->setSystemWindowText(0, "");
    EXPECT_TRUE(isEmpty(window->Area()));
    window->setTime(14, 5, 0);
    window->showTime(true);
    EXPECT_THAT(texts(), ElementsAre("14:05"));
    window->showTime(false);
    EXPECT_TRUE(isEmpty(window->Area()));
}

TEST_F(SystemWindowTest, LongTextEndsBesideTheTimeFromWhicheverSideItIsRead)
{
    window->setTime(14, 5, 0);
    window->showTime(true);
    show(1);
    window->setSystemWindowText(0, std::string(60, 'x'));
    for (const char* locale : {"en", "ar"}) {
        application.setLocale(ICC::fromUTF8toUNICODE(locale));
        window->Invalidate();
        Lcd::current()->paint();
        const auto texts = Lcd::current()->picture().texts;
        ASSERT_EQ(texts.size(), 2U) << locale;
        EXPECT_FALSE(overlap(texts[0].area, texts[1].area)) << locale;
    }
}

TEST_F(SystemWindowTest, ClockFollowsTheTimeFormat)
{
    show(1);
    window->setTime(14, 5, 0);
    window->showTime(true);
    EXPECT_THAT(texts(), ElementsAre("line 0", "14:05"));
    application.setTimeFormat(ICC::fromUTF8toUNICODE("12"));
    EXPECT_THAT(texts(), ElementsAre("line 0", "2:05 PM"));
}

TEST_F(SystemWindowTest, TickRepaintsTheClock)
{
    show(1);
    window->setTime(14, 5, 30);
    window->showTime(true);
    Lcd::current()->paint();
    pass(29'999);
    EXPECT_FALSE(isDirty());
    pass(1);
    EXPECT_THAT(texts(), ElementsAre("line 0", "14:06"));
}

TEST_F(SystemWindowTest, InvisibleClockWakesNobodyAndLosesNoTime)
{
    window->setTime(14, 5, 30);
    window->showTime(true);
    EXPECT_FALSE(isTimerRunning());
    show(1);
    EXPECT_TRUE(isTimerRunning());
    gpPresent->Remove(window.get());
    EXPECT_FALSE(isTimerRunning());
    pass(30 * 60'000);
    gpPresent->Add(window.get());
    EXPECT_THAT(texts(), ElementsAre("line 0", "14:35"));
}

TEST_F(SystemWindowTest, FramedPopupWithoutClockWakesNobody)
{
    show(1);
    window->showTime(true);
    EXPECT_TRUE(isTimerRunning());
    window->setAsPopup(true);
    EXPECT_FALSE(isTimerRunning());
    window->setAsPopup(false);
    EXPECT_TRUE(isTimerRunning());
}

TEST_F(SystemWindowTest, CallTimerTakesTheClocksPlace)
{
    show(1);
    window->setTime(14, 5, 0);
    window->showTime(true);
    window->setTimer("00:42");
    EXPECT_THAT(texts(), ElementsAre("line 0", "00:42"));
    pass(1000);
    EXPECT_THAT(texts(), ElementsAre("line 0", "00:43"));
    window->stopTimer();
    EXPECT_THAT(texts(), ElementsAre("line 0", "14:05"));
    window->setTimer("on hold");
    EXPECT_THAT(texts(), ElementsAre("line 0", "on hold"));
    EXPECT_FALSE(runs().at(1).runs);
}

TEST_F(SystemWindowTest, ClockStandsLeftWhereTextsBeginAtTheRight)
{
    show(1);
    window->setTime(14, 5, 0);
    window->showTime(true);
    for (const char* locale : {"ar", "ar_EG", "he", "fa-IR", "ur"}) {
        application.setLocale(PegString());
        EXPECT_THAT(texts(), ElementsAre("line 0", "14:05"));
        application.setLocale(ICC::fromUTF8toUNICODE(locale));
        EXPECT_THAT(texts(), ElementsAre("14:05", "line 0")) << locale;
    }
    application.setLocale(ICC::fromUTF8toUNICODE("a"));
    EXPECT_THAT(texts(), ElementsAre("line 0", "14:05"));
}

} // namespace
