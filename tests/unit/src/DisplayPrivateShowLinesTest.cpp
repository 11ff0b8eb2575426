// Who shows the status lines: the current displayable that draws them itself, or the system window that floats above
// it.

#include "unit/src/DisplayPrivateLinesTest.h"

#include "widgets/KestrelListBoxWithTitle.h"

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The current displayable draws the lines itself.
class DisplayPrivateDrawnLinesTest : public DisplayPrivateLinesTest {
protected:
    DisplayPrivateDrawnLinesTest() { menu.getPrivateImpl()->drawsSystemWindow = true; }
};

/// The system window floats above the current displayable.
using DisplayPrivateFloatingLinesTest = DisplayPrivateLinesTest;

constexpr const char* FLOATS = "Popup old SYSTEM WINDOW";

std::string handed(int line)
{
    return "showSW() adding system text for line " + std::to_string(line) + " to current widget 'menu'";
}

} // namespace

TEST_F(DisplayPrivateDrawnLinesTest, ChangedLinesAreHandedToTheDisplayable)
{
    given({&menu});
    display->setSystemWindowText(0, "noon");
    display->setSystemWindowText(1, "busy");
    forgetCalls();
    EXPECT_THAT(logged([&] { display->setSystemWindowSize(2); }),
                ElementsAre("setSystemWindowSize() " + process() + ", no of lines = 2", handed(0), handed(1)));
    EXPECT_THAT(calls(), ElementsAre("menu: setSysWindowText(\"noon\", 0)", "menu: setSysWindowSize(2)",
                                     "menu: setSysWindowText(\"busy\", 1)", "menu: setSysWindowSize(2)"));
    EXPECT_FALSE(window().isPopup());
    EXPECT_FALSE(isUp());
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateDrawnLinesTest, ALineIsHandedOnce)
{
    givenLines(2, menu);
    display->setSystemWindowSize(2);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateDrawnLinesTest, OnlyTheChangedLineIsHandedAgain)
{
    givenLines(3, menu);
    display->setSystemWindowText(1, "changed");
    forgetCalls();
    display->setSystemWindowSize(3);
    EXPECT_THAT(calls(), ElementsAre("menu: setSysWindowText(\"changed\", 1)", "menu: setSysWindowSize(3)"));
}

TEST_F(DisplayPrivateDrawnLinesTest, ALineThatIsSetToItsOwnTextIsHandedAgain)
{
    givenLines(1, menu);
    display->setSystemWindowText(0, "line 0");
    display->setSystemWindowSize(1);
    EXPECT_THAT(callsTo("menu: setSysWindowText"), ElementsAre("menu: setSysWindowText(\"line 0\", 0)"));
}

TEST_F(DisplayPrivateDrawnLinesTest, AnEmptiedLineIsHandedAsASpace)
{
    givenLines(1, menu);
    display->setSystemWindowText(0, "");
    display->setSystemWindowSize(1);
    EXPECT_THAT(callsTo("menu: setSysWindowText"), ElementsAre("menu: setSysWindowText(\" \", 0)"));
}

TEST_F(DisplayPrivateDrawnLinesTest, LinesFromTheSizeOnWaitUntilTheSizeHasRoomForThem)
{
    given({&menu});
    display->setSystemWindowText(0, "noon");
    display->setSystemWindowText(3, "fourth");
    display->setSystemWindowSize(3);
    EXPECT_THAT(callsTo("menu: setSysWindowText"), ElementsAre("menu: setSysWindowText(\"noon\", 0)"));
    forgetCalls();
    display->setSystemWindowSize(4);
    EXPECT_THAT(callsTo("menu: "), ElementsAre("menu: setSysWindowText(\"fourth\", 3)", "menu: setSysWindowSize(4)"));
}

TEST_F(DisplayPrivateDrawnLinesTest, AllSixLinesAreHanded)
{
    given({&menu});
    for (int line = 0; line < 6; ++line)
        display->setSystemWindowText(line, std::to_string(line));
    display->setSystemWindowSize(6);
    EXPECT_THAT(callsTo("menu: setSysWindowText"),
                ElementsAre("menu: setSysWindowText(\"0\", 0)", "menu: setSysWindowText(\"1\", 1)",
                            "menu: setSysWindowText(\"2\", 2)", "menu: setSysWindowText(\"3\", 3)",
                            "menu: setSysWindowText(\"4\", 4)", "menu: setSysWindowText(\"5\", 5)"));
}

TEST_F(DisplayPrivateDrawnLinesTest, ALineThatNeverHadATextIsNotHanded)
{
    given({&menu});
    display->setSystemWindowSize(2);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_EQ(lineCount(), 2);
}

TEST_F(DisplayPrivateDrawnLinesTest, NoLinesAtAllReachTheDisplayableAsASizeOfZero)
{
    for (const char* hardware : {FULL_PANEL, SMALL_PANEL}) {
        start(hardware, SIP);
        givenLines(2, menu);
        content().setSystemWindowAsPopup(true);
        display->setSystemWindowSize(0);
        EXPECT_THAT(calls(), ElementsAre("menu: setSysWindowSize(0)")) << hardware;
        EXPECT_EQ(lineCount(), 0);
        EXPECT_FALSE(window().isPopup());
        EXPECT_EQ(observer.notifications, 1);
    }
}

TEST_F(DisplayPrivateDrawnLinesTest, ShowingNoLinesForgetsTheLineCount)
{
    for (const char* hardware : {FULL_PANEL, SMALL_PANEL}) {
        start(hardware, SIP);
        givenLines(2, menu);
        display->showSW(0);
        EXPECT_EQ(lineCount(), 0) << hardware;
    }
}

TEST_F(DisplayPrivateDrawnLinesTest, NoLinesAtAllTakeAFloatingWindowDown)
{
    givenLines(2, other);
    ASSERT_TRUE(isUp());
    display->setCurrent(&menu);
    forgetCalls();
    display->setSystemWindowSize(0);
    EXPECT_FALSE(isUp());
    EXPECT_THAT(calls(), ElementsAre("menu: setSysWindowSize(0)", "content: setSystemWindowTop(127, true, false)"));
}

TEST_F(DisplayPrivateDrawnLinesTest, TheWindowLeavesPopupModeWhenTheDisplayableDrawsTheLines)
{
    given({&menu});
    content().setSystemWindowAsPopup(true);
    display->setSystemWindowSize(1);
    EXPECT_FALSE(window().isPopup());
}

TEST_F(DisplayPrivateDrawnLinesTest, OnTheSmallPanelLineOneIsSetAgainInPopupMode)
{
    start(SMALL_PANEL, KVX);
    given({&menu});
    display->setSystemWindowText(0, "noon");
    display->setSystemWindowText(1, "busy");
    forgetCalls();
    EXPECT_THAT(logged([&] { display->setSystemWindowSize(2); }),
                ElementsAre("setSystemWindowSize() " + process() + ", no of lines = 2"));
    EXPECT_THAT(calls(), ElementsAre("content: setSystemWindowText(1, \"busy\")"));
    EXPECT_TRUE(window().isPopup());
    EXPECT_FALSE(isUp());
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateFloatingLinesTest, TheWindowFloatsInPopupMode)
{
    given({&menu});
    EXPECT_THAT(logged([&] { display->setSystemWindowSize(2); }),
                ElementsAre("setSystemWindowSize() " + process() + ", no of lines = 2",
                            "showSW() (mCurrent->getPrivateImpl()->getWidget())->Type() == 1", FLOATS));
    EXPECT_TRUE(window().isPopup());
    EXPECT_TRUE(isUp());
    EXPECT_EQ(observer.notifications, 1);
    EXPECT_THAT(callsTo("menu: "), IsEmpty());
}

TEST_F(DisplayPrivateFloatingLinesTest, TheTypeOfTheWidgetIsLogged)
{
    Screen list("list", doubles::ScreenPrivate::SCREEN, new KestrelListBoxWithTitle);
    given({&list});
    EXPECT_EQ(logged([&] { display->setSystemWindowSize(2); })[1],
              "showSW() (mCurrent->getPrivateImpl()->getWidget())->Type() == 204");
}

TEST_F(DisplayPrivateFloatingLinesTest, WithoutLinesTheWindowIsTakenDown)
{
    givenLines(2, menu);
    EXPECT_THAT(logged([&] { display->setSystemWindowSize(0); }),
                ElementsAre("setSystemWindowSize() " + process() + ", no of lines = 0"));
    EXPECT_FALSE(isUp());
    EXPECT_EQ(lineCount(), 0);
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateFloatingLinesTest, ALineCountOfZeroTakesTheWindowDownWhateverIsToBeShown)
{
    givenLines(2, menu);
    content().setSWCurrentNumLines(0);
    EXPECT_THAT(logged([&] { display->showSW(2); }), IsEmpty());
    EXPECT_FALSE(isUp());
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateFloatingLinesTest, BeforeASizeIsSetTheWindowIsOnlyPutInPopupMode)
{
    given({&menu});
    content().setSWCurrentNumLines(2);
    EXPECT_THAT(logged([&] { display->showSW(2); }),
                ElementsAre("showSW() (mCurrent->getPrivateImpl()->getWidget())->Type() == 1"));
    EXPECT_TRUE(window().isPopup());
    EXPECT_FALSE(isUp());
    EXPECT_EQ(observer.notifications, 1);
}

TEST_F(DisplayPrivateFloatingLinesTest, ASizeBelowTheLineCountSwitchesTheWindowOnToo)
{
    given({&menu});
    content().setSWCurrentNumLines(5);
    display->setSystemWindowSize(2);
    EXPECT_TRUE(isUp());
    EXPECT_EQ(lineCount(), 2);
}

TEST_F(DisplayPrivateFloatingLinesTest, ASizeOfZeroSwitchesTheWindowOff)
{
    givenLines(2, menu);
    display->setSystemWindowSize(0);
    content().setSWCurrentNumLines(2);
    display->showSW(2);
    EXPECT_FALSE(isUp());
}

TEST_F(DisplayPrivateFloatingLinesTest, OnTheSmallPanelTheWindowFloatsWithEveryNumberOfLines)
{
    start(SMALL_PANEL, SIP);
    given({&menu});
    for (const int lines : {0, 1, 2, 3, 6}) {
        content().setSystemWindowAsPopup(false);
        observer.notifications = 0;
        EXPECT_THAT(logged([&] { display->showSW(lines); }), ElementsAre(FLOATS));
        EXPECT_TRUE(window().isPopup());
        EXPECT_EQ(isUp(), lines > 0);
        EXPECT_EQ(observer.notifications, 1);
    }
}

TEST_F(DisplayPrivateFloatingLinesTest, SevenLinesOrMoreNotifyNobody)
{
    for (const char* hardware : {FULL_PANEL, SMALL_PANEL}) {
        start(hardware, SIP);
        givenLines(1, menu);
        for (const int lines : {7, 8, 1000})
            EXPECT_THAT(logged([&] { display->showSW(lines); }), IsEmpty());
        EXPECT_THAT(calls(), IsEmpty());
        EXPECT_EQ(observer.notifications, 0);
    }
}

TEST_F(DisplayPrivateFloatingLinesTest, WithNothingCurrentNobodyIsNotified)
{
    given({});
    EXPECT_THAT(logged([&] { display->showSW(2); }), IsEmpty());
    EXPECT_EQ(observer.notifications, 0);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(DisplayPrivateFloatingLinesTest, AHiddenDisplayOnlyNotifies)
{
    for (const char* hardware : {FULL_PANEL, SMALL_PANEL}) {
        start(hardware, SIP);
        display->setCurrent(&menu);
        content().setSWCurrentNumLines(2);
        forgetCalls();
        EXPECT_THAT(logged([&] { display->showSW(2); }), IsEmpty());
        EXPECT_THAT(calls(), IsEmpty());
        EXPECT_EQ(observer.notifications, 1);
        EXPECT_FALSE(window().isPopup());
    }
}

TEST_F(DisplayPrivateFloatingLinesTest, ADisplayableWithoutAWidgetHasTheWindowAboveItAllTheSame)
{
    given({&menu});
    menu.getPrivateImpl()->dropWidget();
    display->setSystemWindowSize(1);
    EXPECT_TRUE(isUp());
}
