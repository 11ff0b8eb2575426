// What a text field shows, and what the user does on it.

#include "DisplayAPI/TextField.h"

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/ItemPrivateIfc.h"
#include "DisplayAPI/SliderItem.h"
#include "support/ItemChanges.h"
#include "unit/host/variants/form/FormVariantTest.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelTextEdit.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TextFieldPrivateTest : public test::FormVariantTest {
protected:
    TextFieldPrivateTest() { form->append(field); }
    ~TextFieldPrivateTest() override { form.reset(); }

    TextField* field = new TextField("Name", TextField::ICON_PERSON, "", TextField::TEXT); ///< the form's
};

TEST_P(TextFieldPrivateTest, ShowsItsLabelAndText)
{
    field->setString("Zoë");
    open();
    EXPECT_EQ(shown(), asText(item("Name", "Zoë")));
    EXPECT_EQ(field->getString(), "Zoë");
    EXPECT_EQ(field->getLabel(), "Name");
    EXPECT_EQ(field->size(), 3);
}

TEST_P(TextFieldPrivateTest, UserTypesAndTheFormsListenersHearOfIt)
{
    open();
    press({'2', '2', '3'});
    EXPECT_EQ(field->getString(), "bd");
    EXPECT_THAT(raised, ElementsAre("changed", "changed", "changed"));
    EXPECT_EQ(shown(), asText(item("Name", "bd")));
}

TEST_P(TextFieldPrivateTest, WhatTheApplicationSetsIsNotToldToTheListeners)
{
    open();
    field->setString("Ada");
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(TextFieldPrivateTest, ItemStateListenersHearOfAChange)
{
    test::ItemChanges changes;
    form->addItemStateListener(&changes);
    open();
    field->setString("4");
    EXPECT_THAT(changes.take(), IsEmpty());
    press('5');
    EXPECT_THAT(changes.take(), ElementsAre(field));
}

TEST_P(TextFieldPrivateTest, LeftAndRightMoveInTheTextAndAreTheFormsAtItsEnds)
{
    field->setFieldType(TextField::NUMBER);
    field->setString("12");
    open();
    press({PK_RIGHT, PK_LEFT, '7', PK_LEFT, PK_LEFT});
    EXPECT_EQ(field->getString(), "172");
    EXPECT_THAT(raised, ElementsAre("changed"));
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("changed", "back"));
}

TEST_P(TextFieldPrivateTest, HeldOkLeadsToTheFormsCommandsForOneOfThem)
{
    Command copy("Copy", Command::ITEM), paste("Paste", Command::ITEM);
    form->append(new TextField("Number", TextField::ICON_NONE, "", TextField::NUMBER));
    form->addCommand(&copy);
    form->addCommand(&paste);
    open();
    press({'2', PK_OK});
    time.pass(600);
    release(PK_OK);
    press(PK_RIGHT);
    EXPECT_EQ(form->getSelected(), field);
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("changed", "Paste"));
    press('3');
    EXPECT_EQ(field->getString(), "ad");
    press(PK_OK);
    time.pass(600);
    release(PK_OK);
    press({PK_LEFT, PK_LEFT, '4'});
    EXPECT_EQ(field->getString(), "adg");
    press(PK_DOWN);
    EXPECT_NE(form->getSelected(), field);
    EXPECT_THAT(raised, ElementsAre("changed", "Paste", "changed", "changed", "current"));
}

TEST_P(TextFieldPrivateTest, WithCommandsOkIsTheFormsWhenItGoesUp)
{
    Command copy("Copy", Command::ITEM);
    form->addCommand(&copy);
    open();
    release(PK_OK);
    press(PK_OK);
    EXPECT_THAT(raised, IsEmpty());
    release(PK_OK);
    release(PK_OK);
    EXPECT_THAT(raised, ElementsAre("ok"));
    press(PK_OK);
    PopupNotification call;
    display.setCurrent(&call);
    time.pass(1000);
    call.dismiss();
    release(PK_OK);
    EXPECT_THAT(raised, ElementsAre("ok"));
    press({PK_OK, PK_OK, '2'});
    time.pass(1000);
    release(PK_OK);
    EXPECT_THAT(raised, ElementsAre("ok", "changed"));
}

TEST_P(TextFieldPrivateTest, UpAndDownLeaveItAndTheCursorStays)
{
    auto* const other = new TextField("Number", TextField::ICON_NONE, "", TextField::NUMBER);
    field->setFieldType(TextField::NUMBER);
    field->setString("12");
    form->append(other);
    open();
    press({PK_LEFT, PK_DOWN, '5', PK_UP, '9'});
    EXPECT_EQ(field->getString(), "192");
    EXPECT_EQ(other->getString(), "5");
    EXPECT_THAT(raised, ElementsAre("current", "changed", "current", "changed"));
}

TEST_P(TextFieldPrivateTest, OkRaisesTheCommandThatItIsGiven)
{
    Command next("Next", Command::ITEM);
    open();
    press(PK_OK);
    field->setInformAppOnOk(&next);
    press(PK_OK);
    form->setAlternativeCommandHandling(true);
    field->setInformAppOnOk(true);
    press(PK_OK);
    field->setInformAppOnOk(false);
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("ok", "Next", "ok", "save"));
}

TEST_P(TextFieldPrivateTest, OkOfACommandThatHasGoneIsTheForms)
{
    auto next = std::make_unique<Command>("Next", Command::ITEM);
    field->setInformAppOnOk(next.get());
    next.reset();
    open();
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("ok"));
}

TEST_P(TextFieldPrivateTest, OtherItemsOkIsTheForms)
{
    Command next("Next", Command::ITEM);
    field->setInformAppOnOk(&next);
    form->append(new SliderItem("Volume"));
    open();
    press({PK_DOWN, PK_OK});
    EXPECT_THAT(raised, ElementsAre("current", "ok"));
}

TEST_P(TextFieldPrivateTest, ReadOnlyItKeepsItsTextAndTheKeysAreTheForms)
{
    Command next("Next", Command::ITEM);
    field->setString("12");
    field->setInformAppOnOk(&next);
    open();
    EXPECT_FALSE(field->getReadOnlyMode());
    field->setReadOnlyMode(true);
    EXPECT_TRUE(field->getReadOnlyMode());
    press({'5', PK_LEFT, PK_OK});
    field->setReadOnlyMode(false);
    form->setReadonly(true);
    EXPECT_FALSE(field->getReadOnlyMode());
    press({'5', PK_LEFT});
    EXPECT_EQ(field->getString(), "12");
    EXPECT_THAT(raised, ElementsAre("back", "Next", "back"));
    form->setReadonly(false);
    press('5');
    EXPECT_EQ(field->getString(), "12j");
}

TEST_P(TextFieldPrivateTest, MaximumCutsOffWhatIsBeyond)
{
    field->setString("Ångström");
    field->setMaxFieldLength(3);
    EXPECT_EQ(field->getString(), "Ång");
    open();
    press('2');
    EXPECT_EQ(field->getString(), "Ång");
    EXPECT_THAT(raised, IsEmpty());
    field->setMaxFieldLength(-1);
    EXPECT_EQ(field->getString(), "");
    EXPECT_EQ(field->size(), 0);
}

TEST_P(TextFieldPrivateTest, PasswordIsShownAsDots)
{
    field->setFieldType(TextField::PASSWORD);
    field->setString("Zoë");
    open();
    EXPECT_EQ(shown(), asText(item("Name", "•••")));
    EXPECT_EQ(field->getString(), "Zoë");
    field->setFieldType(TextField::FieldType(99));
    EXPECT_EQ(shown(), asText(item("Name", "Zoë")));
}

TEST_P(TextFieldPrivateTest, WordsOfANameBeginWithACapitalLetter)
{
    field->setFieldType(TextField::NAME);
    open();
    press({'2', '3', '0', '4'});
    EXPECT_EQ(field->getString(), "Ad G");
}

TEST_P(TextFieldPrivateTest, TypeSaysWhatTheKeysType)
{
    const std::vector<std::pair<int, std::string>> typed{
        {TextField::TEXT, "adg"},
        {TextField::NUMBER, "234"},
        {TextField::TELEPHONE_NUMBER, "234"},
        {TextField::PASSWORD, "adg"},
        {TextField::IP_ADDRESS, "234"},
        {TextField::DATE, "234"},
        {TextField::TIME, "23:4"},
        {TextField::NAME, "Adg"},
        {-1, "adg"},
        {99, "adg"},
    };
    open();
    for (const auto& [type, expected] : typed) {
        field->setFieldType(TextField::FieldType(type));
        field->setString("");
        press({'2', '3', '4'});
        EXPECT_EQ(field->getString(), expected) << type;
    }
}

TEST_P(TextFieldPrivateTest, WhatDoesNotBelongThereIsLeftOut)
{
    field->setFieldType(TextField::NUMBER);
    field->setString("a1b2");
    EXPECT_EQ(field->getString(), "12");
}

TEST_P(TextFieldPrivateTest, TranslatedTextsFollowTheLanguageUntilTheUserTypes)
{
    TranslationInfo label("name", &dictionary), text("ada", &dictionary);
    field->setLabel(&label);
    field->setString(&text);
    open();
    changeLanguage("de");
    EXPECT_EQ(shown(), asText(item("de:name", "de:ada")));
    EXPECT_EQ(field->getLabel(), "de:name");
    press('2');
    changeLanguage("fr");
    EXPECT_EQ(field->getString().substr(0, 6), "de:ada");
    field->setString(static_cast<TranslationInfo*>(nullptr));
    EXPECT_EQ(field->getString(), "");
}

TEST_P(TextFieldPrivateTest, TranslationThatIsCutOffFollowsTheLanguage)
{
    TranslationInfo text("ada", &dictionary);
    field->setString(&text);
    field->setMaxFieldLength(5);
    EXPECT_EQ(field->getString(), "en:ad");
    open();
    changeLanguage("de");
    EXPECT_EQ(field->getString(), "de:ad");
}

TEST_P(TextFieldPrivateTest, PopupAndAppendGiveItBackAsItWas)
{
    field->setFieldType(TextField::NUMBER);
    field->setString("12");
    open();
    press(PK_LEFT);
    PopupNotification call;
    display.setCurrent(&call);
    form->append(new TextField("Number", TextField::ICON_NONE, "", TextField::NUMBER));
    call.dismiss();
    press('5');
    EXPECT_EQ(field->getString(), "152");
    EXPECT_EQ(form->getSelected(), field);
}

TEST_P(TextFieldPrivateTest, KeyThatIsHeldWhenAPopupComesActsNoMore)
{
    field->setFieldType(TextField::TELEPHONE_NUMBER);
    field->setString("12");
    open();
    press('0');
    PopupNotification call;
    display.setCurrent(&call);
    time.pass(5000);
    call.dismiss();
    EXPECT_EQ(field->getString(), "120");
    press(PK_LEFT);
    display.setCurrent(&call);
    time.pass(5000);
    EXPECT_EQ(field->getString(), "120");
}

TEST_P(TextFieldPrivateTest, ScreenAsTextNeverHasAPassword)
{
    field->setFieldType(TextField::PASSWORD);
    open();
    press({'2', '3'});
    EXPECT_EQ(shown(), asText(item("Name", "••")));
    time.pass(2000);
    EXPECT_EQ(shown(), asText(item("Name", "••")));
    EXPECT_EQ(field->getString(), "ad");
}

TEST_P(TextFieldPrivateTest, FirstLeftBehindATextReadFromTheRightStays)
{
    field->setString("زوي");
    open();
    changeLanguage("ar");
    press({'0', PK_LEFT});
    EXPECT_THAT(raised, ElementsAre("changed"));
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("changed", "back"));
}

TEST_P(TextFieldPrivateTest, SameTypeAndSameTranslationLeaveTheCursorAlone)
{
    TranslationInfo text("12", &dictionary);
    dictionary.language = "";
    field->setString(&text);
    field->setFieldType(TextField::TEXT);
    open();
    press({PK_LEFT, PK_HASH, PK_HASH, PK_HASH});
    field->setFieldType(TextField::TEXT);
    display.localeChanged("de");
    press('5');
    EXPECT_EQ(field->getString(), "152");
}

/// The dictionary says its language first, whatever the key.
TEST_P(TextFieldPrivateTest, FormsSpellerLanguageIsTypedWhileTheUserIsThere)
{
    test::Dictionary russian;
    russian.language = "я";
    form->setSpellerLanguage(&russian);
    const PegString own = KestrelTextEdit::msKeypad2lower;
    open();
    press('2');
    EXPECT_EQ(field->getString(), "я");
    changeLanguage("de");
    press('3');
    EXPECT_EQ(field->getString(), "яя");
    PopupNotification call;
    display.setCurrent(&call);
    EXPECT_EQ(KestrelTextEdit::msKeypad2lower, own);
    call.dismiss();
    press('4');
    EXPECT_EQ(field->getString(), "яяя");
    form->setSpellerLanguage(nullptr);
    EXPECT_EQ(KestrelTextEdit::msKeypad2lower, own);
    press('5');
    EXPECT_EQ(field->getString(), "яяяj");
}

TEST_P(TextFieldPrivateTest, SpellerLanguageEndsWithTheForm)
{
    test::Dictionary russian;
    russian.language = "я";
    const PegString own = KestrelTextEdit::msKeypad2lower;
    form->setSpellerLanguage(&russian);
    EXPECT_EQ(KestrelTextEdit::msKeypad2lower, own);
    open();
    EXPECT_NE(KestrelTextEdit::msKeypad2lower, own);
    display.setCurrent(nullptr);
    EXPECT_EQ(KestrelTextEdit::msKeypad2lower, own);
    open();
    form.reset();
    EXPECT_EQ(KestrelTextEdit::msKeypad2lower, own);
}

/// A dismissed form is told no loss of the focus.
TEST_P(TextFieldPrivateTest, FormsOfTwoDisplaysGiveTheKeypadBackInAnyOrder)
{
    test::Dictionary russian, greek;
    russian.language = "я";
    greek.language = "ω";
    const auto language = [] { return ICC::fromUNICODEtoUTF8(KestrelTextEdit::msKeypad2lower).substr(0, 2); };
    const std::string own = language();
    const auto dismiss = [](Form& shown) {
        auto* const side = dynamic_cast<DisplayablePrivate*>(shown.getPrivateImpl());
        side->widgetDismissed(side);
    };
    Display second{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    second.show();
    Form other(Form::HALF_AND_HALF);
    form->setSpellerLanguage(&russian);
    other.setSpellerLanguage(&greek);
    for (Form* first : {form.get(), &other}) {
        open();
        second.setCurrent(&other);
        EXPECT_EQ(language(), "ω");
        dismiss(*first);
        EXPECT_EQ(language(), first == &other ? "я" : "ω");
        dismiss(first == &other ? *form : other);
        EXPECT_EQ(language(), own);
    }
}

TEST_P(TextFieldPrivateTest, MadeForReadingItIsReadOnly)
{
    TranslationInfo label("name", &dictionary), text("ada", &dictionary);
    auto* const other = new TextField(&label, TextField::ICON_NONE, &text, TextField::TEXT, true);
    form->append(other);
    EXPECT_TRUE(other->getReadOnlyMode());
    EXPECT_EQ(other->getString(), "en:ada");
}

TEST_P(TextFieldPrivateTest, AnotherLanguageOfTheFieldAloneIsToldOnce)
{
    TranslationInfo label("name", &dictionary), text("ada", &dictionary);
    field->setLabel(&label);
    field->setString(&text);
    open();
    dictionary.language = "de:";
    EXPECT_EQ(changesBy([&] { field->localeChanged("de"); }), 1);
    EXPECT_EQ(shown(), asText(item("de:name", "de:ada")));
    const int alone = changesBy([&] { changeLanguage("fr"); });
    form->append(new TextField(&label, TextField::ICON_NONE, &text, TextField::TEXT, false));
    EXPECT_EQ(changesBy([&] { changeLanguage("de"); }), alone);
}

TEST_P(TextFieldPrivateTest, FormMayEndWhenAKeyIsTold)
{
    open();
    deleteFormAt("changed");
    press('2');
    EXPECT_EQ(form, nullptr);
}

TEST_P(TextFieldPrivateTest, AnswersWithNothingWhenItsFormHasGone)
{
    field->setString("Ada");
    delete field->getPrivateImpl()->getWidget();
    EXPECT_EQ(field->getString(), "");
    EXPECT_EQ(field->size(), -1);
    EXPECT_FALSE(field->getReadOnlyMode());
    field->setString("Bo");
    field->setFieldType(TextField::NUMBER);
    field->setMaxFieldLength(3);
    field->setIcon(TextField::ICON_HOME);
    field->setReadOnlyMode(true);
    field->setLabel("Number");
    EXPECT_EQ(field->getLabel(), "Number");
}

TEST_P(TextFieldPrivateTest, WhatTheApplicationChangesIsToldOnce)
{
    open();
    const std::vector<std::function<void()>> changes{
        [&] { field->setString("Ada"); },
        [&] { field->setLabel("Number"); },
        [&] { field->setIcon(TextField::ICON_HOME); },
        [&] { field->setFieldType(TextField::PASSWORD); },
        [&] { field->setMaxFieldLength(2); },
        [&] { field->setReadOnlyMode(true); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i)
        EXPECT_EQ(changesBy(changes[i]), 1) << i;
}

INSTANTIATE_ON_PANELS(TextFieldPrivateTest);

} // namespace
