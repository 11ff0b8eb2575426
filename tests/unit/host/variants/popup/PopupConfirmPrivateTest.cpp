// What a popup that asks shows and tells, and when it goes.

#include "DisplayAPI/PopupConfirm.h"
#include "unit/host/variants/popup/PopupVariantTest.h"
#include "utilities/CallPartyIdentifier.h"

using namespace DisplayAPI;
using test::inBar;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int TIMEOUT = 5000;

class PopupConfirmPrivateTest : public test::PopupVariantTest<PopupConfirm> {
protected:
    PopupConfirmPrivateTest() : PopupVariantTest(true)
    {
        popup->addCommandListener(&listener);
        popup->setText("Delete?");
        popup->addCommand(yes.get());
        popup->addCommand(no.get());
    }

    ~PopupConfirmPrivateTest() override { popup.reset(); }

    static std::string asText(const std::string& lines) { return PopupVariantTest::asText("PopupConfirm", lines); }
    std::string answers() const { return inBar("Yes") + inBar("No"); }

    std::unique_ptr<Command> yes = std::make_unique<Command>("Yes", Command::OK);
    std::unique_ptr<Command> no = std::make_unique<MenuCommand>("No", 2);
};

TEST_P(PopupConfirmPrivateTest, AnswerIsRaisedThenItGoesAndTellsThatItIsHidden)
{
    popup->show();
    EXPECT_EQ(display.getCurrent(), popup.get());
    press(PK_RIGHT);
    EXPECT_TRUE(popup->selectionHasChanged());
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("No", "hidden"));
    EXPECT_EQ(popup->getSelectedIndex(), 1);
    popup->show();
    EXPECT_EQ(popup->getSelectedIndex(), 0);
    EXPECT_FALSE(popup->selectionHasChanged());
}

TEST_P(PopupConfirmPrivateTest, LeftOfTheFirstAnswerGoesBack)
{
    popup->show();
    press(PK_RIGHT);
    press(PK_LEFT);
    EXPECT_TRUE(isOnScreen());
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("hidden"));
}

TEST_P(PopupConfirmPrivateTest, WithoutAWayBackTheSmallPanelStays)
{
    popup = std::make_unique<PopupConfirm>(false);
    popup->show();
    press(PK_LEFT);
    EXPECT_EQ(isOnScreen(), isSmall());
}

TEST_P(PopupConfirmPrivateTest, DismissalTellsOnceThatItIsHidden)
{
    popup->dismiss();
    EXPECT_THAT(raised, IsEmpty());
    popup->show();
    popup->dismiss();
    popup->dismiss();
    EXPECT_THAT(raised, ElementsAre("hidden"));
    popup->show();
    popup->dismiss();
    EXPECT_THAT(raised, ElementsAre("hidden", "hidden"));
}

TEST_P(PopupConfirmPrivateTest, HidesWhenItsTimeWithoutAKeyIsUp)
{
    popup->setTimeout(TIMEOUT);
    popup->show();
    time.pass(TIMEOUT - 1);
    press(PK_RIGHT);
    time.pass(TIMEOUT - 1);
    press(PK_STAR);
    time.pass(TIMEOUT - 1);
    popup->show();
    time.pass(TIMEOUT - 1);
    EXPECT_TRUE(isOnScreen());
    time.pass(1);
    EXPECT_THAT(raised, ElementsAre("hidden"));
    EXPECT_FALSE(time.isTimerRunning());
}

TEST_P(PopupConfirmPrivateTest, NoTimeOrLessIsForEver)
{
    for (const int milliseconds : {0, -1}) {
        popup->setTimeout(milliseconds);
        popup->show();
        time.pass(100 * TIMEOUT);
        EXPECT_TRUE(isOnScreen());
        popup->setTimeout(TIMEOUT);
        popup->setTimeout(milliseconds);
        time.pass(100 * TIMEOUT);
        EXPECT_TRUE(isOnScreen());
    }
}

TEST_P(PopupConfirmPrivateTest, OnlyWhatHidItselfTells)
{
    List other(0);
    popup->show();
    display.setCurrent(&other);
    EXPECT_THAT(raised, IsEmpty()) << "another screen";
    display.setCurrent(&list);
    popup->show();
    popup.reset();
    EXPECT_THAT(raised, IsEmpty()) << "deleted";
}

TEST_P(PopupConfirmPrivateTest, HasNothingToTellWhenItsDisplayHasBeenEmptied)
{
    popup->setTimeout(TIMEOUT);
    popup->show();
    display.setCurrent(nullptr);
    display.setCurrent(&list);
    time.pass(TIMEOUT);
    popup->dismiss();
    EXPECT_THAT(raised, IsEmpty());
    popup->show();
    popup->dismiss();
    EXPECT_THAT(raised, ElementsAre("hidden"));
}

TEST_P(PopupConfirmPrivateTest, TimeOfAnEarlierShowDoesNotCountWhereAnotherScreenHasTakenItsPlace)
{
    List other(0);
    popup->setTimeout(TIMEOUT);
    popup->show();
    display.setCurrent(&other);
    EXPECT_FALSE(time.isTimerRunning());
    display.setCurrent(&list);
}

TEST_P(PopupConfirmPrivateTest, StaysUnderAnotherPopupAndOnAHiddenDisplay)
{
    PopupConfirm other(true);
    popup->show();
    press(PK_RIGHT);
    other.show();
    EXPECT_TRUE(isOnScreen());
    other.dismiss();
    display.hide();
    display.show();
    EXPECT_EQ(display.getCurrent(), popup.get());
    EXPECT_EQ(popup->getSelectedIndex(), 1);
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(PopupConfirmPrivateTest, ListenerMayDeleteItWithTheAnswerOrAtTheEnd)
{
    for (const char* last : {"Yes", "WIDGET_IS_HIDDEN_EVENT"}) {
        popup = std::make_unique<PopupConfirm>(true);
        popup->addCommandListener(&listener);
        popup->addCommand(yes.get());
        ON_CALL(listener, postCommandAction).WillByDefault([&](Command* command, auto*) {
            if (command->getBasicText() == last)
                popup.reset();
        });
        popup->show();
        press(PK_OK);
        EXPECT_EQ(popup, nullptr);
        EXPECT_EQ(display.getCurrent(), &list);
    }
}

TEST_P(PopupConfirmPrivateTest, ObserverMayDeleteItWhenItGoes)
{
    testing::NiceMock<doubles::MockDisplayEvent> observer;
    popup->show();
    display.subscribe(&observer);
    ON_CALL(observer, displayChanged).WillByDefault([this](auto&&...) { popup.reset(); });
    press(PK_LEFT);
    display.unSubscribe();
    EXPECT_EQ(popup, nullptr);
    EXPECT_EQ(display.getCurrent(), &list);
}

TEST_P(PopupConfirmPrivateTest, DeletedAnswerKeepsItsTextAndRaisesNothing)
{
    popup->show();
    yes.reset();
    changeLanguage("de");
    EXPECT_EQ(shown(), asText("caption:Delete?\n" + answers()));
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("hidden"));
}

TEST_P(PopupConfirmPrivateTest, AnswersAreRemovedOneByOneOrAtOnce)
{
    popup->setDefaultCommand(no.get());
    EXPECT_EQ(popup->getSelectedIndex(), 1);
    popup->removeCommand(yes.get());
    popup->removeCommand(yes.get());
    popup->addCommand(nullptr);
    popup->show();
    EXPECT_EQ(shown(), asText("caption:Delete?\n" + inBar("No")));
    popup->clearCommands();
    EXPECT_EQ(popup->getSelectedIndex(), -1);
    EXPECT_EQ(shown(), asText("caption:Delete?\n"));
    press(PK_OK);
    EXPECT_TRUE(isOnScreen());
}

TEST_P(PopupConfirmPrivateTest, LinesStandInTheirPlaces)
{
    popup->setLine1PrefixText("Now:");
    popup->setLine2PrefixText("Entry");
    popup->show();
    EXPECT_EQ(shown(),
              asText("caption:Now: Delete?\n" + (isSmall() ? "" : std::string("string0:Entry\n")) + answers()));
    popup->setLine2Text("Ada");
    popup->setState(static_cast<PopupConfirm::PopupState>(77));
    popup->clearCommands();
    EXPECT_EQ(shown(), asText("caption:Now: Delete?\nstring0:Entry Ada\n"));
    EXPECT_EQ(side().serialise(std::vector<DisplayAPIUtils::Rect>()), "");
}

TEST_P(PopupConfirmPrivateTest, TranslationsFollowTheLanguage)
{
    popup->clearCommands();
    popup->setLine1PrefixText(translated("a"));
    popup->setText(translated("b"));
    popup->setLine2PrefixText(translated("c"));
    popup->setLine2Text(translated("d"));
    popup->show();
    changeLanguage("de");
    EXPECT_EQ(shown(), asText("caption:de:a de:b\nstring0:de:c de:d\n"));
    popup->setLine2PrefixText(static_cast<TranslationInfo*>(nullptr));
    popup->setPartyDetails({}, 1);
    EXPECT_EQ(shown(), asText("caption:de:a de:Caller.Unknown.XXX\nstring0:de:d\n"));
}

TEST_P(PopupConfirmPrivateTest, ObserverLearnsOfWhatLooksDifferent)
{
    testing::NiceMock<doubles::MockDisplayEvent> observer;
    popup->show();
    display.subscribe(&observer);
    EXPECT_CALL(observer, displayChanged).Times(3);
    popup->setText("Really?");
    press(PK_RIGHT);
    popup->clearCommands();
    testing::Mock::VerifyAndClearExpectations(&observer);
    popup->dismiss();
    EXPECT_CALL(observer, displayChanged).Times(0);
    popup->setText("Delete?");
    display.unSubscribe();
}

TEST_P(PopupConfirmPrivateTest, KeepsQuietWhenTheDisplayHasTakenTheWidgetAlong)
{
    popup->show();
    delete side().getWidget();
    popup->setText("Really?");
    popup->setState(PopupConfirm::WARNING);
    popup->setTimeout(TIMEOUT);
    popup->addCommand(yes.get());
    popup->removeCommand(yes.get());
    popup->setDefaultCommand(no.get());
    popup->clearCommands();
    changeLanguage("de");
    EXPECT_EQ(popup->getSelectedIndex(), -1);
    EXPECT_EQ(shown(), "");
    popup->show();
    popup->dismiss();
    display.setCurrent(&list);
}

INSTANTIATE_ON_PANELS(PopupConfirmPrivateTest);

} // namespace
