// How the status lines pass from one displayable to the next.

#include "unit/src/DisplayPrivateLinesTest.h"

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Screens that draw the lines themselves.
class DisplayPrivateHandOverTest : public DisplayPrivateLinesTest {
protected:
    DisplayPrivateHandOverTest()
    {
        for (Screen* screen : {&menu, &other, &popup, &idle, &dialer})
            screen->getPrivateImpl()->drawsSystemWindow = true;
    }

    /// The lines that the screen has been handed, by their texts.
    static std::vector<std::string> handedTo(Screen& screen)
    {
        return callsTo(screen.getName() + ": setSysWindowText");
    }

    static auto lines(const std::string& name, int count)
    {
        std::vector<std::string> texts;
        for (int line = 0; line < count; ++line)
            texts.push_back(name + ": setSysWindowText(\"line " + std::to_string(line) + "\", " + std::to_string(line) +
                            ")");
        return texts;
    }

    Screen idle{"IdleDisplay"};
    Screen dialer{"PopupDialer", POPUP};
};

const std::string TO_DIALER = "clearSWfromDisplayable()  **  previousName == IdleDisplay && currentName == PopupDialer";

} // namespace

TEST_F(DisplayPrivateHandOverTest, TheNewCurrentOneIsHandedEveryLineAndTheOldOneNone)
{
    givenLines(2, menu);
    display->setCurrent(&other);
    EXPECT_EQ(handedTo(other), lines("other", 2));
    EXPECT_THAT(callsTo("menu: setSys"), ElementsAre("menu: setSysWindowSize(0)"));
    EXPECT_EQ(calls().back(), "other: setSysWindowSize(2)");
    EXPECT_EQ(observer.notifications, 2);
}

TEST_F(DisplayPrivateHandOverTest, TheOldOneLosesItsLinesBeforeTheNewOneGetsThem)
{
    givenLines(1, menu);
    display->setCurrent(&other);
    EXPECT_THAT(callsTo(""), testing::IsSupersetOf({"menu: setSysWindowSize(0)"}));
    const auto all = calls();
    const auto cleared = std::find(all.begin(), all.end(), "menu: setSysWindowSize(0)");
    const auto handed = std::find(all.begin(), all.end(), "other: setSysWindowText(\"line 0\", 0)");
    EXPECT_LT(cleared - all.begin(), handed - all.begin());
}

TEST_F(DisplayPrivateHandOverTest, OnlyLinesBelowTheLineCountAreHandedOn)
{
    givenLines(4, menu);
    content().setSWCurrentNumLines(2);
    display->setCurrent(&other);
    EXPECT_EQ(handedTo(other), lines("other", 2));
    forgetCalls();
    display->setSystemWindowSize(4);
    EXPECT_THAT(handedTo(other), IsEmpty());
}

TEST_F(DisplayPrivateHandOverTest, MoreLinesThanThereAreMarkAllSix)
{
    givenLines(6, menu);
    content().setSWCurrentNumLines(100);
    display->setCurrent(&other);
    display->setSystemWindowSize(6);
    EXPECT_EQ(handedTo(other), lines("other", 6));
}

TEST_F(DisplayPrivateHandOverTest, TheFirstCurrentOneIsHandedNothingBecauseNothingHasChanged)
{
    given({});
    display->setSystemWindowText(0, "noon");
    display->setSystemWindowSize(1);
    display->setCurrent(&menu);
    EXPECT_THAT(handedTo(menu), IsEmpty());
    EXPECT_EQ(observer.notifications, 2);
}

TEST_F(DisplayPrivateHandOverTest, TheSameOneAgainIsHandedNothing)
{
    givenLines(2, menu);
    display->setSystemWindowText(0, "changed");
    forgetCalls();
    display->setCurrent(&menu);
    EXPECT_THAT(callsTo("menu: setSys"), IsEmpty());
    EXPECT_EQ(observer.notifications, 2);
}

TEST_F(DisplayPrivateHandOverTest, BeforeASizeIsSetNothingIsHandedOn)
{
    given({&menu});
    display->setSystemWindowText(0, "noon");
    content().setSWCurrentNumLines(1);
    display->setCurrent(&other);
    EXPECT_THAT(handedTo(other), IsEmpty());
    EXPECT_EQ(observer.notifications, 2);
}

TEST_F(DisplayPrivateHandOverTest, AfterASizeOfZeroNothingIsHandedOn)
{
    givenLines(2, menu);
    display->setSystemWindowSize(0);
    display->setSystemWindowText(0, "noon");
    content().setSWCurrentNumLines(1);
    display->setCurrent(&other);
    EXPECT_THAT(handedTo(other), IsEmpty());
}

TEST_F(DisplayPrivateHandOverTest, WithSevenLinesTheNewCurrentOneNotifiesOnce)
{
    givenLines(1, menu);
    display->setSystemWindowSize(7);
    forgetCalls();
    display->setCurrent(&other);
    EXPECT_EQ(observer.notifications, 1);
    EXPECT_THAT(handedTo(other), IsEmpty());
}

TEST_F(DisplayPrivateHandOverTest, AWindowThatFloatsComesAboveTheNewCurrentOne)
{
    for (Screen* screen : {&menu, &other})
        screen->getPrivateImpl()->drawsSystemWindow = false;
    givenLines(2, menu);
    display->setCurrent(&other);
    EXPECT_TRUE(isUp());
    EXPECT_EQ(window().NextSibling(), nullptr);
    EXPECT_EQ(observer.notifications, 2);
}

TEST_F(DisplayPrivateHandOverTest, OnAHiddenDisplayNothingIsHandedOn)
{
    givenLines(2, menu);
    display->hide();
    forgetCalls();
    display->setCurrent(&other);
    EXPECT_THAT(handedTo(other), IsEmpty());
    EXPECT_THAT(callsTo("menu: setSys"), ElementsAre("menu: setSysWindowSize(0)"));
    EXPECT_EQ(observer.notifications, 2);
}

TEST_F(DisplayPrivateHandOverTest, FromTheIdleScreenToTheDialerNoLineIsMarked)
{
    givenLines(2, idle);
    const auto texts = logged([&] { display->setCurrent(&dialer); });
    EXPECT_EQ(std::count(texts.begin(), texts.end(), TO_DIALER), 1);
    EXPECT_THAT(handedTo(dialer), IsEmpty());
    EXPECT_THAT(callsTo("IdleDisplay: setSys"), ElementsAre("IdleDisplay: setSysWindowSize(0)"));
}

TEST_F(DisplayPrivateHandOverTest, FromTheIdleScreenToTheDialerMarksThatAreThereStay)
{
    givenLines(2, idle);
    display->setSystemWindowText(1, "changed");
    display->setCurrent(&dialer);
    EXPECT_THAT(handedTo(dialer), ElementsAre("PopupDialer: setSysWindowText(\"changed\", 1)"));
}

TEST_F(DisplayPrivateHandOverTest, FromTheDialerBackToTheIdleScreenEveryLineIsMarked)
{
    givenLines(2, idle);
    display->setCurrent(&dialer);
    const auto texts = logged([&] { display->setCurrent(&idle); });
    EXPECT_EQ(std::count(texts.begin(), texts.end(), TO_DIALER), 0);
    EXPECT_EQ(handedTo(idle), lines("IdleDisplay", 2));
}

TEST_F(DisplayPrivateHandOverTest, FromTheIdleScreenToAnythingElseEveryLineIsMarked)
{
    givenLines(2, idle);
    display->setCurrent(&popup);
    EXPECT_EQ(handedTo(popup), lines("popup", 2));
}

TEST_F(DisplayPrivateHandOverTest, FromAnythingElseToTheDialerEveryLineIsMarked)
{
    givenLines(2, menu);
    display->setCurrent(&dialer);
    EXPECT_EQ(handedTo(dialer), lines("PopupDialer", 2));
}

TEST_F(DisplayPrivateHandOverTest, ClearingTheScreenTakesTheLinesFromTheLastOneAndMarksThem)
{
    givenLines(2, menu);
    display->setCurrent(nullptr);
    EXPECT_THAT(callsTo("menu: setSys"), ElementsAre("menu: setSysWindowSize(0)"));
    display->setCurrent(&other);
    EXPECT_THAT(handedTo(other), IsEmpty()) << "nothing was current before";
    display->setSystemWindowSize(2);
    EXPECT_EQ(handedTo(other), lines("other", 2));
}

TEST_F(DisplayPrivateHandOverTest, ADismissedOneIsForgottenAsThePreviousOne)
{
    givenLines(2, menu);
    display->setCurrent(&popup);
    forgetCalls();
    display->widgetDismissed(popup.getPrivateImpl());
    EXPECT_THAT(callsTo("popup: setSys"), IsEmpty());
    EXPECT_THAT(handedTo(menu), IsEmpty());
    display->clearSWfromDisplayable();
    EXPECT_THAT(callsTo("popup: setSys"), IsEmpty());
    EXPECT_THAT(callsTo("menu: setSys"), IsEmpty());
    display->setCurrent(&other);
    EXPECT_THAT(callsTo("menu: setSys"), ElementsAre("menu: setSysWindowSize(0)"));
}

TEST_F(DisplayPrivateHandOverTest, ClearingTwiceTakesTheLinesOnce)
{
    givenLines(2, menu);
    display->clearSWfromDisplayable();
    display->clearSWfromDisplayable();
    EXPECT_THAT(calls(), IsEmpty());
    display->setCurrent(&other);
    forgetCalls();
    display->clearSWfromDisplayable();
    EXPECT_THAT(calls(), IsEmpty());
}
