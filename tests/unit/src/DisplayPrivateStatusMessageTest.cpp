// Status messages: one at a time, above everything else, put back with the screen and gone with the display.

#include "unit/src/DisplayPrivateLinesTest.h"

#include "host/clock/Clock.h"
#include "host/toolkit/Timers.h"
#include "widgets/StatusMessage.h"

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DisplayPrivateStatusMessageTest : public DisplayPrivateLinesTest {
protected:
    /// The message on the screen, which lies above everything else; null where there is none.
    static StatusMessage* onScreen()
    {
        StatusMessage* found = nullptr;
        for (PegThing* child = gpPresent->First(); child != nullptr; child = child->NextSibling()) {
            if (child->Type() != TYPE_STATUS_MESSAGE)
                continue;
            EXPECT_EQ(found, nullptr) << "two messages at once";
            found = static_cast<StatusMessage*>(child);
        }
        return found;
    }

    static std::string textOnScreen() { return onScreen() != nullptr ? onScreen()->text() : "none"; }
};

/// The same on a clock that the test moves.
class DisplayPrivateTimedMessageTest : public DisplayPrivateStatusMessageTest {
protected:
    DisplayPrivateTimedMessageTest() { host::Clock::instance().makeVirtual(); }
    ~DisplayPrivateTimedMessageTest() override { host::Clock::instance().makeReal(); }

    static void pass(int ms)
    {
        host::Clock::instance().advance(ms);
        host::Timers::instance().fireDue();
    }
};

} // namespace

TEST_F(DisplayPrivateStatusMessageTest, AMessageIsAddedAboveTheScreenWithRedraw)
{
    given({&menu, &popup});
    EXPECT_THAT(logged([&] { display->setStatusMessage("Saved", 5000); }),
                ElementsAre("setStatusMessage() called with text='Saved' and timeout=5000", "Created status widget",
                            "Added status widget to screen"));
    EXPECT_EQ(textOnScreen(), "Saved");
    EXPECT_EQ(onScreen()->NextSibling(), nullptr);
    EXPECT_EQ(gpPresent->Pending(), onScreen());
    EXPECT_TRUE(hasFocus(popup));
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(DisplayPrivateStatusMessageTest, AMessageIsNoEntryOfTheStack)
{
    given({&menu});
    display->setStatusMessage("Saved", 5000);
    EXPECT_THAT(display->itemList(), ElementsAre(&menu));
    EXPECT_EQ(display->getCurrent(), &menu);
    EXPECT_EQ(display->getDisplayedRects()->size(), 1u);
}

TEST_F(DisplayPrivateStatusMessageTest, AMessageStandsWithNothingCurrentToo)
{
    given({});
    display->setStatusMessage("Saved", 5000);
    EXPECT_EQ(textOnScreen(), "Saved");
}

TEST_F(DisplayPrivateStatusMessageTest, ANewMessageReplacesTheOldOne)
{
    given({&menu});
    display->setStatusMessage("Saving", 5000);
    EXPECT_THAT(logged([&] { display->setStatusMessage("Saved", 1); }),
                ElementsAre("setStatusMessage() called with text='Saved' and timeout=1", "Created status widget",
                            "Added status widget to screen"));
    EXPECT_EQ(textOnScreen(), "Saved");
}

TEST_F(DisplayPrivateStatusMessageTest, AnEmptyTextTakesTheMessageDownAndShowsNone)
{
    given({&menu});
    display->setStatusMessage("Saving", 5000);
    EXPECT_THAT(logged([&] { display->setStatusMessage("", 7); }),
                ElementsAre("setStatusMessage() called with text='' and timeout=7"));
    EXPECT_EQ(textOnScreen(), "none");
    EXPECT_EQ(gpPresent->Pending(), menu.widget()) << "removed with redraw";
    display->hide();
    display->show();
    EXPECT_EQ(textOnScreen(), "none");
}

TEST_F(DisplayPrivateStatusMessageTest, AnEmptyTextWithoutAMessageIsOnlyLogged)
{
    given({&menu});
    EXPECT_THAT(logged([&] { display->setStatusMessage("", 0); }),
                ElementsAre("setStatusMessage() called with text='' and timeout=0"));
}

TEST_F(DisplayPrivateStatusMessageTest, AHiddenDisplayKeepsItsMessageUntilItIsShown)
{
    display->setCurrent(&menu);
    EXPECT_THAT(logged([&] { display->setStatusMessage("Saved", 5000); }),
                ElementsAre("setStatusMessage() called with text='Saved' and timeout=5000", "Created status widget"));
    EXPECT_EQ(textOnScreen(), "none");
    display->show();
    EXPECT_EQ(textOnScreen(), "Saved");
}

TEST_F(DisplayPrivateStatusMessageTest, OnAHiddenDisplayAMessageIsReplacedAndTakenDownToo)
{
    display->setStatusMessage("Saving", 5000);
    display->setStatusMessage("Saved", 5000);
    display->show();
    EXPECT_EQ(textOnScreen(), "Saved");
    display->hide();
    display->setStatusMessage("", 0);
    display->show();
    EXPECT_EQ(textOnScreen(), "none");
}

TEST_F(DisplayPrivateStatusMessageTest, HidingTakesTheMessageOffTheScreenAndShowingPutsItBackOnTop)
{
    given({&menu, &popup});
    display->setStatusMessage("Saved", 5000);
    display->hide();
    EXPECT_EQ(textOnScreen(), "none");
    EXPECT_EQ(gpPresent->First(), nullptr);
    display->show();
    EXPECT_EQ(textOnScreen(), "Saved");
    EXPECT_EQ(popup.widget()->NextSibling(), onScreen());
}

TEST_F(DisplayPrivateStatusMessageTest, HidingWithNothingCurrentLeavesTheMessage)
{
    given({});
    display->setStatusMessage("Saved", 5000);
    display->hide();
    EXPECT_EQ(textOnScreen(), "Saved");
}

TEST_F(DisplayPrivateStatusMessageTest, AMessageStaysAboveWhatBecomesCurrentLater)
{
    given({&menu});
    display->setStatusMessage("Saved", 5000);
    display->setSystemWindowSize(2);
    display->setCurrent(&other);
    display->setCurrent(&popup);
    EXPECT_EQ(onScreen()->NextSibling(), nullptr);
    display->widgetDismissed(popup.getPrivateImpl());
    EXPECT_EQ(onScreen()->NextSibling(), nullptr);
    EXPECT_TRUE(hasFocus(other));
}

TEST_F(DisplayPrivateStatusMessageTest, ShowingAShownDisplayKeepsTheMessage)
{
    given({&menu});
    display->setStatusMessage("Saved", 5000);
    const StatusMessage* const message = onScreen();
    display->show();
    EXPECT_EQ(onScreen(), message);
}

TEST_F(DisplayPrivateStatusMessageTest, ClearingTheScreenTakesTheMessageOffItUntilItIsShownAgain)
{
    given({&menu});
    display->setStatusMessage("Saved", 5000);
    display->setCurrent(nullptr);
    EXPECT_EQ(textOnScreen(), "none");
    display->setCurrent(&other);
    EXPECT_EQ(textOnScreen(), "none");
    display->show();
    EXPECT_EQ(textOnScreen(), "Saved");
}

TEST_F(DisplayPrivateStatusMessageTest, AMessageNotifiesNobody)
{
    given({&menu});
    display->setStatusMessage("Saved", 5000);
    display->setStatusMessage("", 0);
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateStatusMessageTest, TheMessageGoesWithItsDisplay)
{
    given({&menu});
    display->setStatusMessage("Saved", 5000);
    display.reset();
    EXPECT_EQ(gpPresent->First(), nullptr);
}

namespace {

/// Looks at the screen when the toolkit is about to stop.
class LookingStartUp : public doubles::FakeStartUp {
public:
    LookingStartUp(const PegThing& menu, std::vector<std::string>& seen) : mMenu(menu), mSeen(seen) {}

    void cleanUp() override
    {
        if (gpPresent->First() != nullptr)
            mSeen.push_back("something on the screen");
        if (mMenu.Parent() != nullptr)
            mSeen.push_back("menu not handed back");
        mSeen.push_back("stopped");
    }

private:
    const PegThing& mMenu;
    std::vector<std::string>& mSeen;
};

} // namespace

TEST_F(DisplayPrivateStatusMessageTest, MessageWindowAndScreenAreGoneBeforeTheToolkitStops)
{
    std::vector<std::string> seen;
    display = std::make_unique<DisplayAPI::DisplayPrivate>(false, FULL_PANEL, KVX, "", "", "", nullptr, nullptr,
                                                           new LookingStartUp(*menu.widget(), seen), false);
    given({&menu});
    display->setSystemWindowSize(2);
    display->setStatusMessage("Saved", 5000);
    display.reset();
    EXPECT_THAT(seen, ElementsAre("stopped"));
}

TEST(DisplayPrivateToolkitEndTest, ADisplayWithAMessageAndAWindowStopsTheToolkitAndMayBeMadeAgain)
{
    for (const char* hardware : {FULL_PANEL, SMALL_PANEL, FULL_PANEL}) {
        auto display = std::make_unique<DisplayAPI::DisplayPrivate>(false, hardware, KVX, "", "", "", nullptr, nullptr,
                                                                    nullptr, false);
        doubles::Screen menu("menu");
        display->show();
        display->setCurrent(&menu);
        display->setSystemWindowText(0, "noon");
        display->setSystemWindowSize(2);
        display->setStatusMessage("Saved", 5000);
        ASSERT_NE(menu.widget()->NextSibling(), nullptr);
        display.reset();
        EXPECT_EQ(gpPresent, nullptr);
        EXPECT_EQ(menu.widget()->Parent(), nullptr);
        EXPECT_TRUE(menu.getPrivateImpl()->ownsWidget());
    }
    KestrelApplication::getCurrentApplication()->setHardwareVariant(1);
}

TEST_F(DisplayPrivateStatusMessageTest, AHiddenMessageGoesWithItsDisplayToo)
{
    display->setStatusMessage("Saved", 5000);
    display.reset();
    EXPECT_EQ(textOnScreen(), "none");
}

TEST_F(DisplayPrivateStatusMessageTest, DisplaysKeepMessagesOfTheirOwn)
{
    given({&menu});
    display->setStatusMessage("Saved", 5000);
    const auto another = makeAnother(FULL_PANEL, SIP);
    another->show();
    another->setStatusMessage("", 0);
    EXPECT_EQ(textOnScreen(), "Saved");
}

TEST_F(DisplayPrivateStatusMessageTest, TheLongestTimeoutIsLoggedAsItIs)
{
    given({&menu});
    EXPECT_EQ(logged([&] { display->setStatusMessage("Stay", 0x7FFFFFFF); })[0],
              "setStatusMessage() called with text='Stay' and timeout=2147483647");
}

TEST_F(DisplayPrivateTimedMessageTest, AMessageStandsForItsTimeAndThenGoes)
{
    given({&menu});
    display->setStatusMessage("Saved", 5000);
    pass(4999);
    EXPECT_EQ(textOnScreen(), "Saved");
    pass(1);
    EXPECT_EQ(textOnScreen(), "none");
    EXPECT_TRUE(hasFocus(menu));
}

TEST_F(DisplayPrivateTimedMessageTest, AMessageWithoutATimeStaysUntilItIsTakenDown)
{
    given({&menu});
    display->setStatusMessage("Stay", 0);
    pass(1000000);
    EXPECT_EQ(textOnScreen(), "Stay");
    display->setStatusMessage("", 0);
    EXPECT_EQ(textOnScreen(), "none");
}

TEST_F(DisplayPrivateTimedMessageTest, AMessageThatHasGoneIsReplaced)
{
    given({&menu});
    display->setStatusMessage("Saving", 10);
    pass(10);
    display->setStatusMessage("Saved", 10);
    EXPECT_EQ(textOnScreen(), "Saved");
    pass(9);
    EXPECT_EQ(textOnScreen(), "Saved") << "the first one's time does not count";
}

TEST_F(DisplayPrivateTimedMessageTest, AMessageThatHasGoneShowsNothingWhenTheDisplayIsShownAgain)
{
    given({&menu});
    display->setStatusMessage("Saved", 10);
    pass(10);
    display->hide();
    display->show();
    EXPECT_TRUE(onScreen() == nullptr || onScreen()->Area().bottom < onScreen()->Area().top);
}

TEST_F(DisplayPrivateTimedMessageTest, ADisplayWhoseMessageHasGoneEnds)
{
    given({&menu});
    display->setStatusMessage("Saved", 10);
    pass(10);
    display.reset();
    EXPECT_EQ(gpPresent->First(), nullptr);
}
