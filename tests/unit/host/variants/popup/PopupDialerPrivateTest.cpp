// What a dialer shows, holds and tells.

#include "support/Dictionary.h"
#include "support/ItemChanges.h"
#include "unit/host/variants/popup/DialerVariantTest.h"
#include "utilities/Rect.h"
#include "utilities/TranslationInfo.h"

#include <functional>

using namespace DisplayAPI;
using test::inBar;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class PopupDialerPrivateTest : public test::DialerVariantTest {
protected:
    ~PopupDialerPrivateTest() override { dialer.reset(); }

    TranslationInfo* translated(const std::string& key) { return new TranslationInfo(key, &dictionary); }

    void changeLanguage(const char* language)
    {
        dictionary.language = std::string(language) + ":";
        display.localeChanged(language);
    }

    /// The small panel has no room for a header above two lines.
    static std::string aboveTwoLines(const std::string& header)
    {
        return isSmall() ? std::string() : "caption:" + header + "\n";
    }

    test::Dictionary dictionary;
};

TEST_P(PopupDialerPrivateTest, DigitsStarAndHashAreTyped)
{
    dialer->show();
    EXPECT_EQ(display.getCurrent(), dialer.get());
    type("0301*#9");
    EXPECT_EQ(dialer->getLineEditText(), "0301*#9");
    EXPECT_EQ(shown(), asText("string0:0301*#9\n"));
}

TEST_P(PopupDialerPrivateTest, LongZeroIsAPlus)
{
    dialer->show();
    press('0');
    EXPECT_EQ(dialer->getLineEditText(), "0");
    time.pass(700);
    EXPECT_EQ(dialer->getLineEditText(), "+");
    release('0');
    type("490");
    time.pass(700);
    EXPECT_EQ(dialer->getLineEditText(), "+490");
}

TEST_P(PopupDialerPrivateTest, ZeroThatIsHeldWhileSomethingElseComesStaysAZero)
{
    dialer->show();
    press('0');
    press('1');
    time.pass(700);
    press('0');
    dialer->setLineEditText("2");
    time.pass(700);
    EXPECT_EQ(dialer->getLineEditText(), "2");
    press('0');
    display.setCurrent(&list);
    time.pass(700);
    EXPECT_EQ(dialer->getLineEditText(), "20");
}

TEST_P(PopupDialerPrivateTest, ZeroThatIsHeldStaysAZeroWhenTheApplicationStepsIn)
{
    dialer->show();
    const std::vector<std::function<void()>> steps{[this] { dialer->setIgnoreKeypadEvents(true); },
                                                   [this] { dialer->setMode(PopupDialer::HIDDEN); },
                                                   [this] { dialer->dismiss(); }};
    for (const auto& step : steps) {
        dialer->setIgnoreKeypadEvents(false);
        dialer->setLineEditText("");
        press('0');
        step();
        time.pass(700);
        EXPECT_EQ(dialer->getLineEditText(), "0");
    }
}

TEST_P(PopupDialerPrivateTest, LeftDeletesAndThenGoesBack)
{
    dialer->addCommand(dial.get());
    dialer->addCommand(save.get());
    dialer->setLineEditText("12");
    dialer->show();
    press(PK_RIGHT);
    press(PK_LEFT);
    press(PK_LEFT);
    EXPECT_EQ(dialer->getLineEditText(), "");
    EXPECT_EQ(dialer->getSelectedIndex(), 1);
    EXPECT_TRUE(isOnScreen());
    raised.clear();
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("back"));
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(display.getCurrent(), &list);
}

TEST_P(PopupDialerPrivateTest, WithoutAWayBackTheSmallPanelStays)
{
    auto other = std::make_unique<PopupDialer>(false, 3);
    other->addCommandListener(&listener);
    dialer.swap(other);
    dialer->show();
    raised.clear();
    press(PK_LEFT);
    EXPECT_EQ(isOnScreen(), isSmall());
    EXPECT_EQ(raised.empty(), isSmall());
}

TEST_P(PopupDialerPrivateTest, SoftKeysAreRaisedAndLeaveItOnScreen)
{
    dialer->addCommand(dial.get());
    dialer->addCommand(nullptr);
    dialer->addCommand(save.get());
    dialer->show();
    raised.clear();
    press(PK_OK);
    press(PK_RIGHT);
    press(PK_OK);
    press(PK_UP);
    press(PK_OK);
    press(PK_DOWN);
    press(PK_DOWN);
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("Dial", "Save", "Dial", "Save"));
    EXPECT_TRUE(isOnScreen());
}

TEST_P(PopupDialerPrivateTest, SelectionBeginsAtTheDefaultCommand)
{
    dialer->setDefaultCommand(save.get());
    EXPECT_EQ(dialer->getSelectedIndex(), -1);
    dialer->addCommand(dial.get());
    EXPECT_EQ(dialer->getSelectedIndex(), 0);
    dialer->addCommand(save.get());
    EXPECT_EQ(dialer->getSelectedIndex(), 1);
    dialer->show();
    EXPECT_FALSE(dialer->selectionHasChanged());
    press(PK_UP);
    EXPECT_TRUE(dialer->selectionHasChanged());
    EXPECT_EQ(dialer->getSelectedIndex(), 0);
    dialer->setDefaultCommand(save.get());
    EXPECT_EQ(dialer->getSelectedIndex(), 0);
    dialer->dismiss();
    dialer->show();
    EXPECT_FALSE(dialer->selectionHasChanged());
    EXPECT_EQ(dialer->getSelectedIndex(), 1);
}

TEST_P(PopupDialerPrivateTest, DefaultThatIsAddedLateLeavesTheUserWhereHeIs)
{
    MenuCommand edit("Edit", 3);
    dialer->setDefaultCommand(save.get());
    dialer->addCommand(dial.get());
    dialer->addCommand(&edit);
    dialer->show();
    press(PK_DOWN);
    dialer->addCommand(save.get());
    EXPECT_EQ(dialer->getSelectedIndex(), 1);
    dialer->clearCommands();
}

TEST_P(PopupDialerPrivateTest, ClearingForgetsTheDefault)
{
    dialer->setDefaultCommand(save.get());
    dialer->addCommand(dial.get());
    dialer->clearCommands();
    dialer->addCommand(dial.get());
    dialer->addCommand(save.get());
    EXPECT_EQ(dialer->getSelectedIndex(), 0);
}

TEST_P(PopupDialerPrivateTest, IsStillThereWhenItSaysThatItGoesBack)
{
    dialer->show();
    const Displayable* current = nullptr;
    EXPECT_CALL(listener, postCommandAction(PopupDialer::BackCommand(), dialer.get())).WillOnce([&](auto*, auto*) {
        current = display.getCurrent();
    });
    press(PK_LEFT);
    EXPECT_EQ(current, dialer.get());
    EXPECT_EQ(display.getCurrent(), &list);
}

TEST_P(PopupDialerPrivateTest, KeysThatMoveNothingChangeNoSelection)
{
    dialer->show();
    for (const int key : {PK_UP, PK_DOWN, PK_OK, PK_RIGHT, PK_HOOK})
        press(key);
    dialer->addCommand(dial.get());
    press(PK_DOWN);
    EXPECT_FALSE(dialer->selectionHasChanged());
}

TEST_P(PopupDialerPrivateTest, CommandsAreRemovedOneByOneOrAtOnce)
{
    dialer->addCommand(dial.get());
    dialer->addCommand(save.get());
    dialer->removeCommand(dial.get());
    dialer->removeCommand(dial.get());
    dialer->show();
    EXPECT_EQ(dialer->getSelectedIndex(), 0);
    EXPECT_EQ(shown(), asText("string0:\n" + inBar("Save")));
    dialer->clearCommands();
    EXPECT_EQ(dialer->getSelectedIndex(), -1);
    EXPECT_EQ(shown(), asText("string0:\n"));
}

TEST_P(PopupDialerPrivateTest, CommandThatIsDeletedMeanwhileKeepsItsTextAndRaisesNothing)
{
    dialer->addCommand(dial.get());
    dialer->show();
    raised.clear();
    dial.reset();
    changeLanguage("de");
    EXPECT_THAT(shown(), HasSubstr("Dial"));
    press(PK_OK);
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(PopupDialerPrivateTest, TextsStandInTheirPlaces)
{
    dialer->setLine1PrefixText("To: ");
    dialer->setText("Number?");
    dialer->setLine2Text("Ada");
    dialer->setStimulusText("Line 2");
    dialer->show();
    EXPECT_EQ(shown(), asText("string0:To: Number?\nstring1:Ada\n"));
    dialer->showStimulusTextInHeader(true);
    type("1");
    EXPECT_EQ(shown(), asText(aboveTwoLines("Line 2") + "string0:To: 1\nstring1:Ada\n"));
    dialer->setLine2Text("");
    EXPECT_EQ(shown(), asText("caption:Line 2\nstring0:To: 1\n"));
    dialer->addCommand(dial.get());
    EXPECT_EQ(shown(), asText(aboveTwoLines("Line 2") + "string0:To: 1\n" + inBar("Dial")));
    dialer->removeCommand(dial.get());
    dialer->clearStimulusText();
    EXPECT_EQ(shown(), asText("string0:To: 1\n"));
}

TEST_P(PopupDialerPrivateTest, SecondLineGivesWayToCommandsOnTwoLines)
{
    dialer->setLine2Text("Ada");
    dialer->addCommand(dial.get());
    dialer->show();
    EXPECT_EQ(shown(), asText((isSmall() ? "string0:\n" : "string0:\nstring1:Ada\n") + inBar("Dial")));
}

TEST_P(PopupDialerPrivateTest, ShowsWhatIsVisibleOfIt)
{
    dialer->addCommand(dial.get());
    dialer->show();
    const PegRect box = side().getWidget()->Area();
    const DisplayAPIUtils::Rect above(box.left, box.top, 200, 15), foot(box.left, box.bottom - 12, 200, 8);
    EXPECT_EQ(side().serialise(std::vector{above}), asText("string0:\n"));
    EXPECT_EQ(side().serialise(std::vector{foot}), asText(inBar("Dial")));
    EXPECT_EQ(side().serialise(std::vector<DisplayAPIUtils::Rect>()), "");
}

TEST_P(PopupDialerPrivateTest, TranslationsFollowTheLanguageUntilTheUserTypes)
{
    dialer->setLine1PrefixText(translated("to "));
    dialer->setText(translated("number"));
    dialer->setLine2Text(translated("two"));
    dialer->setStimulusText(translated("key"));
    dialer->showStimulusTextInHeader(true);
    dialer->show();
    changeLanguage("de");
    EXPECT_EQ(shown(), asText(aboveTwoLines("de:key") + "string0:de:to de:number\nstring1:de:two\n"));
    dialer->setLineEditText(translated("a"));
    changeLanguage("fr");
    EXPECT_EQ(dialer->getLineEditText(), "fr:a");
    type("1");
    changeLanguage("en");
    EXPECT_EQ(dialer->getLineEditText(), "fr:a1");
}

TEST_P(PopupDialerPrivateTest, IgnoredKeypadTypesNothing)
{
    dialer->show();
    dialer->setIgnoreKeypadEvents(true);
    type("1*#");
    EXPECT_EQ(dialer->getLineEditText(), "");
    dialer->setIgnoreKeypadEvents(false);
    type("1");
    EXPECT_EQ(dialer->getLineEditText(), "1");
}

TEST_P(PopupDialerPrivateTest, ModesChangeWhatKeysType)
{
    dialer->show();
    dialer->setMode(PopupDialer::HIDDEN);
    type("110");
    EXPECT_EQ(shown(), asText("string0:\u2022\u2022\u2022\n"));
    EXPECT_EQ(dialer->getLineEditText(), "110");
    dialer->setLineEditText("");
    dialer->setEditMode();
    type("2#22");
    EXPECT_EQ(dialer->getLineEditText(), "Ab");
    EXPECT_EQ(shown(), asText("string0:Ab\n"));
    dialer->setMode(static_cast<PopupDialer::eMode>(7));
    type("2");
    EXPECT_EQ(dialer->getLineEditText(), "Ab2");
}

TEST_P(PopupDialerPrivateTest, ListenersHearWhatTheUserChanges)
{
    test::ItemChanges changes, other;
    dialer->addItemStateListener(&changes);
    dialer->addItemStateListener(&changes);
    dialer->addItemStateListener(&other);
    dialer->addItemStateListener(nullptr);
    dialer->removeItemStateListener(&other);
    dialer->show();
    dialer->setLineEditText("3");
    type("1");
    EXPECT_THAT(changes.take(), ElementsAre(nullptr));
    press(PK_LEFT);
    EXPECT_THAT(changes.take(), ElementsAre(nullptr));
    EXPECT_THAT(other.take(), IsEmpty());
}

TEST_P(PopupDialerPrivateTest, EditFieldIsToldWhenItComesIntoView)
{
    dialer->show();
    EXPECT_THAT(raised, ElementsAre("edit"));
    raised.clear();
    dialer->setText("Number?");
    EXPECT_THAT(raised, IsEmpty());
    type("12");
    EXPECT_THAT(raised, ElementsAre("edit"));
    raised.clear();
    dialer->dismiss();
    EXPECT_THAT(raised, IsEmpty());
    dialer->show();
    EXPECT_THAT(raised, ElementsAre("edit"));
}

TEST_P(PopupDialerPrivateTest, ShowingBringsItToTheTopAndTellsTheObserver)
{
    testing::NiceMock<doubles::MockDisplayEvent> observer;
    PopupDialer other(true, 3);
    dialer->show();
    other.show();
    EXPECT_EQ(display.getCurrent(), &other);
    display.subscribe(&observer);
    EXPECT_CALL(observer, displayChanged).Times(testing::AtLeast(1));
    dialer->show();
    testing::Mock::VerifyAndClearExpectations(&observer);
    EXPECT_EQ(display.getCurrent(), dialer.get());
    EXPECT_CALL(observer, displayChanged).Times(1);
    dialer->show();
    testing::Mock::VerifyAndClearExpectations(&observer);
    EXPECT_CALL(observer, displayChanged).Times(testing::AtLeast(1));
    dialer->dismiss();
    testing::Mock::VerifyAndClearExpectations(&observer);
    display.unSubscribe();
    EXPECT_EQ(display.getCurrent(), &other);
}

TEST_P(PopupDialerPrivateTest, ComesToTheTopAfterItWasCoveredOnAHiddenDisplay)
{
    PopupDialer other(true, 3);
    display.hide();
    dialer->show();
    other.show();
    display.show();
    dialer->show();
    EXPECT_EQ(display.getCurrent(), dialer.get());
    EXPECT_TRUE(isOnScreen());
}

TEST_P(PopupDialerPrivateTest, StatusLinesStandAboveItAsLongAsItIsOnScreen)
{
    display.setSystemWindowText(0, "Line 1");
    display.setSystemWindowSize(1);
    display.setCurrent(dialer.get());
    const PegThing* const box = side().getWidget();
    const PegThing* const strip = box->NextSibling();
    ASSERT_NE(strip, nullptr);
    EXPECT_EQ(strip->Type() == TYPE_SYSTEM_WINDOW, isSmall());
    EXPECT_TRUE(isSmall() || strip->Area().bottom < box->Area().top);
    dialer->dismiss();
    EXPECT_EQ(side().getWidget()->NextSibling(), nullptr);
}

TEST_P(PopupDialerPrivateTest, ComesUpAfterItWasDismissedOnAHiddenDisplay)
{
    display.hide();
    dialer->show();
    dialer->dismiss();
    display.show();
    dialer->show();
    EXPECT_EQ(display.getCurrent(), dialer.get());
    EXPECT_TRUE(isOnScreen());
}

TEST_P(PopupDialerPrivateTest, DismissingWhatIsNotOnScreenDoesNothing)
{
    dialer->dismiss();
    dialer->show();
    dialer->dismiss();
    dialer->dismiss();
    EXPECT_EQ(display.getCurrent(), &list);
    dialer->show();
    EXPECT_TRUE(isOnScreen());
}

TEST_P(PopupDialerPrivateTest, KeepsItsTextsWhenTheDisplayHasTakenTheWidgetAlong)
{
    display.setCurrent(dialer.get());
    delete side().getWidget();
    EXPECT_EQ(side().getWidget(), nullptr);
    dialer->setText("Number?");
    dialer->setLineEditText("1");
    dialer->setMode(PopupDialer::HIDDEN);
    dialer->setIgnoreKeypadEvents(true);
    dialer->addCommand(dial.get());
    dialer->setDefaultCommand(dial.get());
    dialer->removeCommand(dial.get());
    dialer->clearCommands();
    changeLanguage("de");
    EXPECT_EQ(dialer->getLineEditText(), "");
    EXPECT_EQ(dialer->getSelectedIndex(), -1);
    EXPECT_EQ(shown(), "");
    dialer->show();
    dialer->dismiss();
    display.setCurrent(&list);
}

INSTANTIATE_ON_PANELS(PopupDialerPrivateTest);

} // namespace
