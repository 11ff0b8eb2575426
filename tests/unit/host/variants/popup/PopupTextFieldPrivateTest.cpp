// What a text-field popup shows, and what becomes of the field that it edits.

#include "DisplayAPI/PopupTextField.h"

#include "DisplayAPI/Form.h"
#include "support/ItemChanges.h"
#include "unit/host/variants/Told.h"
#include "unit/host/variants/popup/PopupVariantTest.h"
#include "variants/popup/PopupTextFieldPrivate.h"

#include <thread>

using namespace DisplayAPI;
using test::inBar;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class PopupTextFieldPrivateTest : public test::PopupVariantTest<PopupTextField> {
protected:
    PopupTextFieldPrivateTest() : PopupVariantTest(static_cast<PopupTextFieldPrivateIfc*>(nullptr))
    {
        field->setMaxFieldLength(8);
        make(field.get(), true);
    }
    ~PopupTextFieldPrivateTest() override { popup.reset(); }

    void make(TextField* edited, bool leftGoesBack)
    {
        popup = std::make_unique<PopupTextField>(edited, leftGoesBack);
        popup->addCommandListener(&listener);
    }

    void open() { display.setCurrent(popup.get()); }
    void press(std::initializer_list<int> keys)
    {
        for (const int key : keys)
            PopupVariantTest::press(key);
    }

    /// The small panel has no room for a header: the label stands before the text.
    static std::string asText(const std::string& label, const std::string& text, const std::string& rest = "")
    {
        const std::string header = isSmall() || label.empty() ? "" : "caption:" + label + "\n";
        return PopupVariantTest::asText("PopupTextField",
                                        header + "string0:" + (isSmall() ? label : "") + text + "\n" + rest);
    }

    std::unique_ptr<TextField> field =
        std::make_unique<TextField>("Name", TextField::ICON_NONE, "Ada", TextField::NAME);
    MenuCommand save{"Save", 1}, cancel{"Cancel", 2};
};

TEST_P(PopupTextFieldPrivateTest, ComesUpWithTheLabelAndTheTextOfItsField)
{
    field->setString("Bert");
    open();
    EXPECT_EQ(popup->getText(), "Bert");
    EXPECT_EQ(shown(), asText("Name", "Bert"));
    EXPECT_EQ(display.getCurrent(), popup.get());
}

TEST_P(PopupTextFieldPrivateTest, OffTheScreenItsTextIsWhatItWillShow)
{
    field->setString("Ada 12");
    popup->setFieldType(TextField::NUMBER);
    EXPECT_EQ(popup->getText(), "12");
    field->setMaxFieldLength(1);
    field->setString("34");
    EXPECT_EQ(popup->getText(), "3");
    open();
    EXPECT_EQ(popup->getText(), "3");
}

TEST_P(PopupTextFieldPrivateTest, WhatIsTypedTakesThePlaceOfWhatTheApplicationHasSetMeanwhile)
{
    open();
    field->setString("Bert");
    EXPECT_EQ(popup->getText(), "Ada");
    press({'2'});
    EXPECT_EQ(field->getString(), "Adaa");
}

TEST_P(PopupTextFieldPrivateTest, WhatIsTypedIsTheFieldsAtOnce)
{
    open();
    press({'0', '2'});
    EXPECT_EQ(popup->getText(), "Ada A");
    EXPECT_EQ(field->getString(), "Ada A");
    press({'3', '3', '4', '5'});
    EXPECT_EQ(field->getString(), "Ada Aegj");
    press({'6'});
    EXPECT_EQ(field->getString(), "Ada Aegj");
    EXPECT_EQ(shown(), asText("Name", "Ada Aegj"));
}

TEST_P(PopupTextFieldPrivateTest, ClearingEmptiesTheFieldToo)
{
    open();
    popup->clearText();
    EXPECT_EQ(popup->getText(), "");
    EXPECT_EQ(field->getString(), "");
}

TEST_P(PopupTextFieldPrivateTest, FieldMayGoBeforeIt)
{
    open();
    field.reset();
    press({'2'});
    EXPECT_EQ(popup->getText(), "Adaa");
    popup->clearText();
    display.setCurrent(&list);
    open();
    EXPECT_EQ(popup->getText(), "");
}

TEST_P(PopupTextFieldPrivateTest, WithoutAFieldItHasATextOfItsOwn)
{
    make(nullptr, true);
    open();
    press({'2'});
    EXPECT_EQ(popup->getText(), "a");
    EXPECT_EQ(shown(), asText("", "a"));
    popup->dismiss();
    open();
    EXPECT_EQ(popup->getText(), "a");
}

TEST_P(PopupTextFieldPrivateTest, TypeIsTheFieldsUntilThePopupHasOne)
{
    field->setString("");
    field->setFieldType(TextField::NUMBER);
    open();
    press({'2', '3'});
    EXPECT_EQ(popup->getText(), "23");
    popup->setFieldType(TextField::PASSWORD);
    EXPECT_EQ(shown(), asText("Name", "••"));
    popup->dismiss();
    popup->setFieldType(TextField::FieldType(99));
    open();
    press({'4'});
    EXPECT_EQ(popup->getText(), "23g");
}

TEST_P(PopupTextFieldPrivateTest, LabelFollowsTheLanguage)
{
    const std::unique_ptr<TranslationInfo> own(translated("own")), fields(translated("field"));
    field->setLabel(fields.get());
    open();
    EXPECT_EQ(shown(), asText("en:field", "Ada"));
    changeLanguage("de");
    EXPECT_EQ(shown(), asText("de:field", "Ada"));
    popup->setLabel(own.get());
    changeLanguage("fr");
    EXPECT_EQ(shown(), asText("fr:own", "Ada"));
    popup->setLabel(nullptr);
    EXPECT_EQ(shown(), asText("", "Ada"));
}

TEST_P(PopupTextFieldPrivateTest, ArrowsMoveInTheTextAndThenTakeItOff)
{
    field->setString("ac");
    open();
    press({PK_LEFT, '2'});
    EXPECT_EQ(popup->getText(), "aac");
    press({PK_LEFT, PK_LEFT});
    EXPECT_TRUE(isOnScreen());
    press({PK_LEFT});
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(display.getCurrent(), &list);
    EXPECT_THAT(raised, ElementsAre("hidden"));
}

TEST_P(PopupTextFieldPrivateTest, FirstLeftBehindATextReadFromTheRightStays)
{
    field->setString("زوي");
    open();
    changeLanguage("ar");
    press({'0', PK_LEFT});
    EXPECT_TRUE(isOnScreen());
    press({PK_LEFT});
    EXPECT_FALSE(isOnScreen());
}

TEST_P(PopupTextFieldPrivateTest, ScreenAsTextNeverHasAPassword)
{
    field->setFieldType(TextField::PASSWORD);
    open();
    press({'2'});
    EXPECT_EQ(shown(), asText("Name", "••••"));
}

TEST_P(PopupTextFieldPrivateTest, WithoutAWayBackTheSmallPanelStays)
{
    make(nullptr, false);
    open();
    press({PK_LEFT});
    EXPECT_EQ(isOnScreen(), isSmall());
}

TEST_P(PopupTextFieldPrivateTest, CommandsAreRaisedAndLeaveItOnScreen)
{
    popup->addCommand(&save);
    popup->addCommand(nullptr);
    popup->addCommand(&cancel);
    popup->setDefaultCommand(&cancel);
    open();
    EXPECT_EQ(shown(), asText("Name", "Ada", inBar("Save") + inBar("Cancel")));
    press({PK_OK, PK_UP, PK_OK, PK_DOWN, PK_OK, PK_UP, PK_RIGHT, PK_OK});
    EXPECT_THAT(raised, ElementsAre("Cancel", "Save", "Cancel", "Cancel"));
    EXPECT_TRUE(isOnScreen());
    popup->clearCommands();
    press({PK_OK});
    EXPECT_EQ(raised.size(), 4U);
    EXPECT_EQ(shown(), asText("Name", "Ada"));
}

TEST_P(PopupTextFieldPrivateTest, CommandThatHasGoneIsRaisedNoMore)
{
    auto doomed = std::make_unique<MenuCommand>("Doomed", 3);
    popup->addCommand(doomed.get());
    open();
    doomed.reset();
    press({PK_OK});
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(PopupTextFieldPrivateTest, TimeWithoutAKeyTakesItOff)
{
    popup->setTimeout(3000);
    open();
    time.pass(2000);
    press({'2'});
    time.pass(2999);
    EXPECT_TRUE(isOnScreen());
    time.pass(1);
    EXPECT_FALSE(isOnScreen());
    EXPECT_THAT(raised, ElementsAre("hidden"));
    open();
    popup->setTimeout(0);
    time.pass(100'000);
    EXPECT_TRUE(isOnScreen());
}

TEST_P(PopupTextFieldPrivateTest, EveryKeyBeginsTheTimeAnew)
{
    popup->setTimeout(3000);
    open();
    for (const int key : {int(PK_LEFT), int(PK_HASH), int(PK_STAR), int(PK_HASH), int(PK_UP), int(PK_RIGHT)}) {
        time.pass(2000);
        press({key});
        EXPECT_TRUE(isOnScreen()) << key;
    }
    time.pass(2999);
    EXPECT_TRUE(isOnScreen());
    time.pass(1);
    EXPECT_FALSE(isOnScreen());
}

TEST_P(PopupTextFieldPrivateTest, SymbolsAreNoMoreOfferedWhenItComesUpAgain)
{
    for (const bool hasField : {true, false}) {
        make(hasField ? field.get() : nullptr, true);
        popup->setFieldType(TextField::NAME);
        open();
        press({'*'});
        popup->dismiss();
        open();
        press({'2'});
        EXPECT_EQ(popup->getText(), hasField ? "Adaa" : "A");
        popup->dismiss();
    }
}

TEST_P(PopupTextFieldPrivateTest, TextIsThatOfTheFieldWhileItIsNotOnTheScreen)
{
    field->setString("Bert");
    EXPECT_EQ(popup->getText(), "Bert");
    open();
    popup->setFieldType(TextField::NUMBER);
    EXPECT_EQ(popup->getText(), "");
    EXPECT_EQ(field->getString(), "");
    popup->dismiss();
    field->setString("12");
    EXPECT_EQ(popup->getText(), "12");
    popup->clearText();
    EXPECT_EQ(popup->getText(), "");
}

TEST_P(PopupTextFieldPrivateTest, ListenersMayComeAndGoOnOtherThreadsWhileTheUserTypes)
{
    test::ItemChanges changes, other;
    popup->addItemStateListener(&changes);
    open();
    std::thread worker([&] {
        for (int i = 0; i < 200; ++i) {
            popup->addItemStateListener(&other);
            popup->removeItemStateListener(&other);
        }
    });
    for (int i = 0; i < 8; ++i)
        press({'1', '2'});
    worker.join();
    EXPECT_THAT(changes.take(), AllOf(Not(IsEmpty()), Each(field.get())));
    other.take();
    popup->clearText();
    press({'2'});
    EXPECT_THAT(changes.take(), ElementsAre(field.get()));
    EXPECT_THAT(other.take(), IsEmpty());
}

TEST_P(PopupTextFieldPrivateTest, TellsOnceThatItIsHidden)
{
    popup->dismiss();
    EXPECT_THAT(raised, IsEmpty());
    open();
    popup->dismiss();
    popup->dismiss();
    EXPECT_THAT(raised, ElementsAre("hidden"));
    popup->removeCommandListener(&listener);
    open();
    popup->dismiss();
    EXPECT_EQ(raised.size(), 1U);
}

TEST_P(PopupTextFieldPrivateTest, ItemStateListenersAreToldOfTheField)
{
    test::ItemChanges changes;
    popup->addItemStateListener(&changes);
    popup->addItemStateListener(&changes);
    popup->addItemStateListener(nullptr);
    open();
    popup->clearText();
    EXPECT_THAT(changes.take(), IsEmpty());
    press({'2'});
    EXPECT_THAT(changes.take(), ElementsAre(field.get()));
    field.reset();
    press({'3'});
    EXPECT_THAT(changes.take(), ElementsAre(nullptr));
    popup->removeItemStateListener(&changes);
    press({'4'});
    EXPECT_THAT(changes.take(), IsEmpty());
}

TEST_P(PopupTextFieldPrivateTest, ReadOnlyFieldIsShownAndStays)
{
    field->setReadOnlyMode(true);
    open();
    press({'2'});
    EXPECT_EQ(popup->getText(), "Ada");
    EXPECT_EQ(field->getString(), "Ada");
}

TEST_P(PopupTextFieldPrivateTest, FieldsFormShowsWhatIsTyped)
{
    Form form(Form::HALF_AND_HALF);
    TextField* const inForm = field.release();
    form.append(inForm);
    display.setCurrent(&form);
    open();
    press({'0', '2'});
    popup->dismiss();
    EXPECT_EQ(display.getCurrent(), &form);
    EXPECT_EQ(inForm->getString(), "Ada A");
    popup.reset();
    display.setCurrent(&list);
}

TEST_P(PopupTextFieldPrivateTest, ClearingOffTheScreenIsToldByTheFieldsForm)
{
    Form form(Form::HALF_AND_HALF);
    TextField* const inForm = field.release();
    form.append(inForm);
    display.setCurrent(&form);
    test::Told told(display);
    popup->clearText();
    EXPECT_EQ(told.take(), 1);
    EXPECT_EQ(inForm->getString(), "");
    popup.reset();
    display.setCurrent(&list);
}

TEST_P(PopupTextFieldPrivateTest, AnswersWithNothingWhenItsWidgetHasGone)
{
    delete side().getWidget();
    EXPECT_EQ(popup->getText(), "");
    EXPECT_EQ(shown(), "");
    popup->clearText();
    popup->addCommand(&save);
    popup->setDefaultCommand(&save);
    popup->clearCommands();
    popup->setLabel(nullptr);
    popup->setFieldType(TextField::NUMBER);
    popup->setTimeout(3);
    popup->dismiss();
    EXPECT_EQ(field->getString(), "Ada");
}

INSTANTIATE_ON_PANELS(PopupTextFieldPrivateTest);

} // namespace
