// The system window as a popup: putting it up, taking it down, and the text that it reads as.

#include "unit/src/DisplayPrivateLinesTest.h"

#include "host/lcd/Lcd.h"

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DisplayPrivatePopupLinesTest : public DisplayPrivateLinesTest {
protected:
    /// What the system window reads as, as long as it is shown as a popup: nobody listens, so nothing else is there.
    std::string popupText()
    {
        display->unSubscribe();
        std::string text = display->serialiseByRect({}, true);
        display->subscribe(&observer);
        return text;
    }

    void givenText(std::initializer_list<const char*> lines)
    {
        int index = 0;
        for (const char* line : lines)
            display->setSystemWindowText(index++, line);
        forgetCalls();
    }
};

std::string popupWith(const std::string& first, const std::string& second)
{
    return "object:\nname:PopupTextField\ncaption:" + first + "\nsubitem:\nname:KestrelListBoxItem\nstring0:" + second +
           "\nendsubitem:\nend:\n";
}

} // namespace

TEST_F(DisplayPrivatePopupLinesTest, IsPutUpWithItsTopItsSizeAndItsTexts)
{
    given({&menu});
    givenText({"noon", "busy", "third"});
    display->systemWindowPopup(2);
    EXPECT_THAT(calls(),
                ElementsAre("content: setSystemWindowTop(40, true, false)", "content: setSystemWindowSize(2)",
                            "content: setSystemWindowText(0, \"noon\")", "content: setSystemWindowText(1, \"busy\")"));
    EXPECT_EQ(window().Layer(), 64);
    EXPECT_EQ(window().Area().top, 40);
    EXPECT_TRUE(isUp());
    EXPECT_EQ(lineCount(), 2);
}

TEST_F(DisplayPrivatePopupLinesTest, WithOneLineOnlyThatIsSet)
{
    given({&menu});
    givenText({"noon", "busy"});
    display->systemWindowPopup(1);
    EXPECT_THAT(callsTo("content: setSystemWindowText"), ElementsAre("content: setSystemWindowText(0, \"noon\")"));
    EXPECT_EQ(lineCount(), 1);
}

TEST_F(DisplayPrivatePopupLinesTest, OnTheSmallPanelItStandsAtTheTop)
{
    for (const char* software : {SIP, KVX, "any"}) {
        start(SMALL_PANEL, software);
        given({&menu});
        givenText({"noon", "busy", "third"});
        display->systemWindowPopup(2);
        EXPECT_THAT(calls(), ElementsAre("content: setSystemWindowTop(0, false, false)",
                                         "content: setSystemWindowSize(2)", "content: setSystemWindowText(0, \"noon\")",
                                         "content: setSystemWindowText(1, \"busy\")"))
            << software;
        EXPECT_TRUE(isUp());
    }
}

TEST_F(DisplayPrivatePopupLinesTest, WithTheKvxSoftwareOnTheFullPanelAllSixTextsAreSet)
{
    start(FULL_PANEL, KVX);
    given({&menu});
    givenText({"0", "1", "2", "3", "4", "5"});
    display->systemWindowPopup(1);
    EXPECT_THAT(calls(),
                ElementsAre("content: setSystemWindowTop(40, true, false)", "content: setSystemWindowSize(1)",
                            "content: setSystemWindowText(0, \"0\")", "content: setSystemWindowText(1, \"1\")",
                            "content: setSystemWindowText(2, \"2\")", "content: setSystemWindowText(3, \"3\")",
                            "content: setSystemWindowText(4, \"4\")", "content: setSystemWindowText(5, \"5\")"));
    EXPECT_EQ(lineCount(), 1);
}

TEST_F(DisplayPrivatePopupLinesTest, WithAnUnknownSoftwareOnlyItsOwnTextsAreSet)
{
    start(FULL_PANEL, "softwareUnknown");
    given({&menu});
    display->systemWindowPopup(2);
    EXPECT_EQ(callsTo("content: setSystemWindowText").size(), 2u);
}

TEST_F(DisplayPrivatePopupLinesTest, ThreeLinesOrMoreDoNothing)
{
    for (const char* hardware : {FULL_PANEL, SMALL_PANEL}) {
        start(hardware, KVX);
        given({&menu});
        for (const int lines : {3, 4, 6, 1000})
            display->systemWindowPopup(lines);
        EXPECT_THAT(calls(), IsEmpty());
        EXPECT_FALSE(isUp());
        EXPECT_EQ(lineCount(), 0);
    }
}

TEST_F(DisplayPrivatePopupLinesTest, ThreeLinesLeaveAWindowThatIsUpAsItIs)
{
    givenLines(2, menu);
    display->systemWindowPopup(3);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_TRUE(isUp());
    EXPECT_EQ(lineCount(), 2);
}

TEST_F(DisplayPrivatePopupLinesTest, ANegativeNumberOfLinesDoesNothing)
{
    givenLines(2, menu);
    display->systemWindowPopup(-1);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_TRUE(isUp());
    EXPECT_EQ(lineCount(), 2);
}

TEST_F(DisplayPrivatePopupLinesTest, OnAHiddenDisplayNothingIsPutUpOrTakenDown)
{
    givenLines(2, menu);
    display->hide();
    forgetCalls();
    display->systemWindowPopup(2);
    display->systemWindowPopup(0);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(lineCount(), 2);
}

TEST_F(DisplayPrivatePopupLinesTest, NotifiesNobodyByItself)
{
    given({&menu});
    display->systemWindowPopup(2);
    display->systemWindowPopup(0);
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivatePopupLinesTest, ComesToTheFrontEachTime)
{
    givenLines(2, menu);
    gpPresent->Add(popup.widget());
    EXPECT_EQ(window().NextSibling(), popup.widget());
    display->systemWindowPopup(2);
    EXPECT_EQ(window().NextSibling(), nullptr);
    EXPECT_EQ(popup.widget()->NextSibling(), &window());
    EXPECT_EQ(gpPresent->Pending(), &window()) << "added with redraw";
    gpPresent->Remove(popup.widget());
}

TEST_F(DisplayPrivatePopupLinesTest, LeavesTheFocusWithTheCurrentDisplayable)
{
    givenLines(2, menu);
    EXPECT_TRUE(hasFocus(menu));
}

TEST_F(DisplayPrivatePopupLinesTest, IsTakenDownOnTheFullPanel)
{
    givenLines(2, menu);
    display->systemWindowPopup(0);
    EXPECT_THAT(calls(), ElementsAre("content: setSystemWindowTop(127, true, false)"));
    EXPECT_FALSE(isUp());
    EXPECT_EQ(window().Parent(), nullptr);
    EXPECT_EQ(lineCount(), 0);
    EXPECT_EQ(gpPresent->Pending(), menu.widget()) << "removed with redraw";
}

TEST_F(DisplayPrivatePopupLinesTest, WhatIsNotUpIsNotTakenDown)
{
    given({&menu});
    content().setSWCurrentNumLines(2);
    display->systemWindowPopup(0);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(lineCount(), 0);
}

TEST_F(DisplayPrivatePopupLinesTest, StaysUpOnTheSmallPanel)
{
    start(SMALL_PANEL, SIP);
    givenLines(2, menu);
    display->systemWindowPopup(0);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_TRUE(isUp());
    EXPECT_EQ(lineCount(), 2);
}

TEST_F(DisplayPrivatePopupLinesTest, HidingSetsOnlyTheWindowsOwnSizeToZero)
{
    for (const char* hardware : {FULL_PANEL, SMALL_PANEL}) {
        start(hardware, SIP);
        givenLines(2, menu);
        display->hide();
        EXPECT_THAT(callsTo("content: "), ElementsAre("content: setSystemWindowSize(0)"));
        EXPECT_EQ(lineCount(), 2);
        display->show();
        display->setCurrent(&popup);
        EXPECT_EQ(calls().back(), "content: setSystemWindowText(1, \"line 1\")") << "the lines are still on";
    }
}

TEST_F(DisplayPrivatePopupLinesTest, ClearingTheScreenSetsOnlyTheWindowsOwnSizeToZero)
{
    givenLines(2, menu);
    display->setCurrent(nullptr);
    EXPECT_THAT(callsTo("content: "), ElementsAre("content: setSystemWindowSize(0)"));
    EXPECT_EQ(lineCount(), 2);
    display->showSW(2);
    EXPECT_EQ(observer.notifications, 1) << "nothing is current";
}

TEST_F(DisplayPrivatePopupLinesTest, ReadsAsItsFirstTwoLines)
{
    start(FULL_PANEL, KVX);
    given({&menu});
    givenText({"noon", "busy", "third"});
    display->systemWindowPopup(2);
    EXPECT_EQ(popupText(), popupWith("noon", "busy"));
}

TEST_F(DisplayPrivatePopupLinesTest, ReadsAsItsSecondLineTooWhereItShowsOne)
{
    start(FULL_PANEL, KVX);
    given({&menu});
    givenText({"noon", "busy"});
    display->systemWindowPopup(1);
    EXPECT_EQ(popupText(), popupWith("noon", "busy"));
}

TEST_F(DisplayPrivatePopupLinesTest, ReadsAsNothingButItsFrameWithoutTexts)
{
    start(FULL_PANEL, KVX);
    given({&menu});
    display->systemWindowPopup(1);
    EXPECT_EQ(popupText(), popupWith("", ""));
}

TEST_F(DisplayPrivatePopupLinesTest, ReadsAsItDidWhenItWasPutUp)
{
    start(FULL_PANEL, KVX);
    given({&menu});
    givenText({"noon", "busy"});
    display->systemWindowPopup(2);
    display->setSystemWindowText(0, "one");
    EXPECT_EQ(popupText(), popupWith("noon", "busy"));
    display->systemWindowPopup(2);
    EXPECT_EQ(popupText(), popupWith("one", "busy"));
}

TEST_F(DisplayPrivatePopupLinesTest, ReadsAsNewAlsoWhereThereIsNothingToTakeDown)
{
    start(FULL_PANEL, KVX);
    given({&menu});
    givenText({"noon", "busy"});
    display->systemWindowPopup(2);
    gpPresent->Remove(&window());
    givenText({"one", "free"});
    display->systemWindowPopup(0);
    EXPECT_EQ(popupText(), popupWith("one", "free"));
}

TEST_F(DisplayPrivatePopupLinesTest, ReadsAsNothingWhenItIsDown)
{
    start(FULL_PANEL, KVX);
    given({&menu});
    EXPECT_EQ(popupText(), "");
    display->systemWindowPopup(2);
    EXPECT_NE(popupText(), "");
    display->systemWindowPopup(0);
    EXPECT_EQ(popupText(), "");
}

TEST_F(DisplayPrivatePopupLinesTest, ReadsAsNothingAfterASizeOfZeroWithNothingCurrent)
{
    start(FULL_PANEL, KVX);
    givenLines(2, menu);
    display->setCurrent(nullptr);
    EXPECT_NE(popupText(), "");
    display->setSystemWindowSize(0);
    EXPECT_EQ(popupText(), "");
}

namespace {

/// The panel with the window on it.
std::vector<std::uint8_t> painted()
{
    host::Lcd::current()->invalidate({0, 0, 239, 127});
    host::Lcd::current()->paint();
    return host::Lcd::current()->picture().pixels;
}

} // namespace

TEST_F(DisplayPrivatePopupLinesTest, TakingDownWhatIsNotUpShowsTheSeparatorOnTheFullPanelOnly)
{
    for (const char* hardware : {FULL_PANEL, SMALL_PANEL}) {
        start(hardware, SIP);
        given({});
        display->systemWindowPopup(0);
        for (int line = 0; line < 2; ++line)
            window().setSystemWindowText(line, "busy");
        window().setSystemWindowSize(2);
        gpPresent->Add(&window());
        const auto left = painted();
        window().showLine(false);
        const auto without = painted();
        window().showLine(true);
        ASSERT_NE(painted(), without);
        EXPECT_EQ(left != without, hardware == FULL_PANEL) << hardware;
        gpPresent->Remove(&window());
    }
}
