// What a selection field shows, and how the user chooses.

#include "DisplayAPI/SelectionField.h"

#include "DisplayAPI/ItemPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "host/lcd/Lcd.h"
#include "unit/host/variants/form/FormVariantTest.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::inBar;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class SelectionFieldPrivateTest : public test::FormVariantTest {
protected:
    SelectionFieldPrivateTest() { fill(); }
    ~SelectionFieldPrivateTest() override { form.reset(); }

    void fill()
    {
        form->append(field);
        for (MenuCommand* choice : {home.get(), work.get(), mobile.get()})
            field->appendSelection(choice);
    }

    /// Another form on the screen, with another field.
    void renew()
    {
        form = std::make_unique<Form>(Form::HALF_AND_HALF);
        field = new SelectionField("Kind", PhonebookItem::ICON_HOME, none.get(), form.get(), true);
        fill();
        open();
    }

    static std::unique_ptr<MenuCommand> choice(const char* text) { return std::make_unique<MenuCommand>(text, 0); }

    /// The three choices over the form: as many as there is room for.
    static std::string choices() { return inBar("Home") + inBar("Work") + (isSmall() ? "" : inBar("Mobile")); }

    /// On two lines the choices leave nothing.
    static std::string besideChoices(const std::string& items) { return isSmall() ? "" : items; }

    std::unique_ptr<MenuCommand> none = choice("None"), home = choice("Home"), work = choice("Work"),
                                 mobile = choice("Mobile");
    SelectionField* field = new SelectionField("Kind", PhonebookItem::ICON_HOME, none.get(), form.get(), true);
};

TEST_P(SelectionFieldPrivateTest, ShowsItsContentsUntilSomethingIsSelected)
{
    open();
    EXPECT_EQ(shown(), asText(item("Kind", "None")));
    EXPECT_EQ(field->getSelectionIndex(), -1);
    EXPECT_EQ(field->getSelectionCommand(), nullptr);
    field->setSelectionIndex(1);
    EXPECT_EQ(shown(), asText(item("Kind", "Work")));
    EXPECT_EQ(field->getSelectionCommand(), work.get());
    field->displayCurrentSelection(false);
    EXPECT_EQ(shown(), asText(item("Kind", "None")));
    field->setFieldContents(mobile.get());
    EXPECT_EQ(shown(), asText(item("Kind", "Mobile")));
    field->displayCurrentSelection(true);
    field->setSelectionIndex(-1);
    field->setFieldContents(nullptr);
    EXPECT_EQ(shown(), asText(item("Kind", "")));
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(SelectionFieldPrivateTest, ChoicesThatThereAreNotAreIgnored)
{
    field->setSelectionCommand(mobile.get());
    EXPECT_EQ(field->getSelectionIndex(), 2);
    for (const int index : {-2, 3})
        field->setSelectionIndex(index);
    field->setSelectionCommand(none.get());
    field->setSelectionCommand(nullptr);
    EXPECT_EQ(field->getSelectionIndex(), 2);
}

TEST_P(SelectionFieldPrivateTest, LeftAndRightGoToTheNextChoice)
{
    open();
    press(PK_RIGHT);
    EXPECT_EQ(field->getSelectionIndex(), 0);
    press({PK_LEFT, PK_RIGHT, PK_RIGHT, PK_RIGHT});
    EXPECT_EQ(field->getSelectionIndex(), 2);
    EXPECT_THAT(raised, ElementsAre("changed", "changed", "changed"));
    changeLanguage("ar");
    press(PK_RIGHT);
    EXPECT_EQ(field->getSelectionIndex(), 1);
}

TEST_P(SelectionFieldPrivateTest, OkShowsAllChoicesAndTakesOne)
{
    field->setSelectionIndex(0);
    open();
    EXPECT_EQ(field->getHighlightedIndex(), -1);
    press(PK_OK);
    EXPECT_EQ(field->getHighlightedIndex(), 0);
    EXPECT_EQ(shown(), asText(besideChoices(item("Kind", "Home")) + choices()));
    press(PK_DOWN);
    EXPECT_EQ(field->getHighlightedIndex(), 1);
    EXPECT_EQ(field->getSelectionIndex(), 0);
    press(PK_OK);
    EXPECT_EQ(field->getHighlightedIndex(), -1);
    EXPECT_EQ(field->getSelectionIndex(), 1);
    EXPECT_EQ(shown(), asText(item("Kind", "Work")));
    EXPECT_THAT(raised, ElementsAre("choices", "changed"));
}

/// On two lines they cover everything; elsewhere a part of the title and of each row can be seen beside them.
TEST_P(SelectionFieldPrivateTest, WhatTheChoicesCoverIsNotTold)
{
    form->setTitle("Entry");
    for (const char* label : {"b", "c", "d", "e", "f", "g"})
        form->append(new SelectionField(label, home.get(), form.get(), true));
    open();
    press(PK_OK);
    EXPECT_THAT(shown(), HasSubstr(choices()));
    EXPECT_EQ(shown().find("caption:Entry") != std::string::npos, !isSmall());
    EXPECT_EQ(shown().find("string0:Kind") != std::string::npos, !isSmall());
    press(PK_LEFT);
    EXPECT_THAT(shown(), HasSubstr("string0:Kind"));
}

TEST_P(SelectionFieldPrivateTest, LeftLeavesTheChoicesAndTheSameOneIsNoChange)
{
    field->setSelectionIndex(2);
    open();
    press({PK_OK, PK_UP, PK_LEFT});
    EXPECT_EQ(field->getHighlightedIndex(), -1);
    EXPECT_EQ(shown(), asText(item("Kind", "Mobile")));
    press({PK_OK, PK_OK});
    EXPECT_EQ(field->getSelectionIndex(), 2);
    EXPECT_THAT(raised, ElementsAre("choices", "choices"));
}

TEST_P(SelectionFieldPrivateTest, ApplicationIsInformedOfOkWhereItWantsToBe)
{
    field->setInformAppOnOk(true);
    open();
    press({PK_OK, PK_DOWN, PK_OK});
    press({PK_OK, PK_OK});
    EXPECT_THAT(raised, ElementsAre("choices", "Work", "changed", "choices", "Work"));
    press(PK_RIGHT);
    EXPECT_EQ(raised.back(), "changed");
}

TEST_P(SelectionFieldPrivateTest, ReadOnlyItStaysAsItIsAndItsChoicesGo)
{
    open();
    press(PK_OK);
    field->setReadOnlyMode(true);
    EXPECT_TRUE(field->getReadOnlyMode());
    EXPECT_EQ(field->getHighlightedIndex(), -1);
    press({PK_RIGHT, PK_OK, PK_LEFT});
    EXPECT_EQ(field->getSelectionIndex(), -1);
    EXPECT_THAT(raised, ElementsAre("choices", "ok", "back"));
}

TEST_P(SelectionFieldPrivateTest, ClearedFieldHasNoChoices)
{
    field->setSelectionIndex(1);
    open();
    press(PK_OK);
    field->clearSelections(mobile.get());
    EXPECT_EQ(field->getSelectionIndex(), -1);
    EXPECT_EQ(shown(), asText(item("Kind", "Mobile")));
    press({PK_OK, PK_LEFT});
    EXPECT_THAT(raised, ElementsAre("choices", "ok", "back"));
    field->clearSelections(nullptr);
    EXPECT_EQ(shown(), asText(item("Kind", "Mobile")));
}

TEST_P(SelectionFieldPrivateTest, PopupOverTheChoicesGivesThemBack)
{
    open();
    press({PK_OK, PK_DOWN});
    PopupNotification popup;
    popup.setText("News");
    popup.show();
    popup.dismiss();
    EXPECT_EQ(field->getHighlightedIndex(), 1);
    press(PK_OK);
    EXPECT_EQ(field->getSelectionIndex(), 1);
}

TEST_P(SelectionFieldPrivateTest, DeletedChoiceKeepsItsTextAndIsNoCommand)
{
    field->setSelectionIndex(1);
    field->setInformAppOnOk(true);
    open();
    work.reset();
    changeLanguage("de");
    EXPECT_EQ(shown(), asText(item("Kind", "Work")));
    EXPECT_EQ(field->getSelectionCommand(), nullptr);
    press({PK_OK, PK_OK});
    EXPECT_THAT(raised, ElementsAre("choices"));
}

TEST_P(SelectionFieldPrivateTest, TextsFollowTheLanguage)
{
    MenuCommand translated(new TranslationInfo("other", &dictionary), 0);
    field->clearSelections(nullptr);
    field->appendSelection(&translated);
    field->setFieldContents(&translated);
    field->setLabel("Sort");
    open();
    changeLanguage("de");
    EXPECT_EQ(shown(), asText(item("Sort", "de:other")));
    press(PK_OK);
    EXPECT_EQ(shown(), asText(besideChoices(item("Sort", "de:other")) + inBar("de:other")));
}

TEST_P(SelectionFieldPrivateTest, EndOfTheFieldTakesItsChoicesOff)
{
    open();
    press(PK_OK);
    form->clear();
    EXPECT_EQ(shown(), asText(""));
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("choices", "back"));
}

TEST_P(SelectionFieldPrivateTest, AnswersWithNothingWhenItsFormHasGone)
{
    open();
    field->setSelectionIndex(1);
    delete field->getPrivateImpl()->getWidget();
    field->setSelectionIndex(0);
    field->setFieldContents(work.get());
    field->appendSelection(work.get());
    field->displayCurrentSelection(false);
    field->setReadOnlyMode(true);
    field->setLabel("Sort");
    field->clearSelections(none.get());
    EXPECT_EQ(field->getSelectionIndex(), -1);
    EXPECT_EQ(field->getHighlightedIndex(), -1);
    EXPECT_EQ(field->getSelectionCommand(), nullptr);
    EXPECT_FALSE(field->getReadOnlyMode());
}

TEST_P(SelectionFieldPrivateTest, FormThatItStandsInRaisesItsChoices)
{
    auto former = std::make_unique<Form>(Form::HALF_AND_HALF);
    for (Form* const madeFor : {former.get(), static_cast<Form*>(nullptr)}) {
        auto* const other = new SelectionField("Sort", none.get(), madeFor, true);
        form->append(other);
        other->appendSelection(home.get());
        other->setInformAppOnOk(true);
        form->setSelected(other);
        former.reset();
        open();
        raised.clear();
        press({PK_OK, PK_OK});
        EXPECT_THAT(raised, ElementsAre("choices", "Home", "changed"));
    }
}

TEST_P(SelectionFieldPrivateTest, NewFormatsLeaveTheChoices)
{
    open();
    press(PK_OK);
    display.dateFormatChanged("mm/dd/yyyy");
    EXPECT_EQ(field->getHighlightedIndex(), 0);
    press(PK_OK);
    EXPECT_EQ(field->getSelectionIndex(), 0);
}

TEST_P(SelectionFieldPrivateTest, AnotherFieldThatIsSelectedTakesTheChoicesOff)
{
    auto* const other = new SelectionField("Sort", none.get(), form.get(), true);
    form->append(other);
    open();
    press(PK_OK);
    form->setSelected(other);
    EXPECT_EQ(field->getHighlightedIndex(), -1);
    EXPECT_EQ(form->getSelected(), other);
}

TEST_P(SelectionFieldPrivateTest, FieldThatGoesToAnotherFormTakesItsChoicesOff)
{
    open();
    press(PK_OK);
    Form other(Form::HALF_AND_HALF);
    other.append(field);
    EXPECT_EQ(field->getHighlightedIndex(), -1);
    EXPECT_EQ(shown(), asText(""));
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("choices", "back"));
}

TEST_P(SelectionFieldPrivateTest, FirstChoiceShowsThatThereIsOne)
{
    field->clearSelections(none.get());
    open();
    host::Lcd::current()->paint();
    const auto before = host::Lcd::current()->picture().pixels;
    field->appendSelection(home.get());
    host::Lcd::current()->paint();
    EXPECT_NE(host::Lcd::current()->picture().pixels, before);
}

TEST_P(SelectionFieldPrivateTest, WhatTheApplicationChangesIsToldOnce)
{
    open();
    const std::vector<std::function<void()>> changes{[&] { field->setSelectionIndex(1); },
                                                     [&] { field->setSelectionCommand(home.get()); },
                                                     [&] { field->setFieldContents(work.get()); },
                                                     [&] { field->displayCurrentSelection(false); },
                                                     [&] { field->setLabel("Sort"); },
                                                     [&] { field->appendSelection(none.get()); },
                                                     [&] { field->clearSelections(work.get()); },
                                                     [&] { field->setReadOnlyMode(true); },
                                                     [&] { form->setReadonly(true); }};
    for (std::size_t i = 0; i < changes.size(); ++i)
        EXPECT_EQ(changesBy(changes[i]), 1) << i;
}

TEST_P(SelectionFieldPrivateTest, ContentsOfADeletedCommandAreEmpty)
{
    open();
    MenuCommand* const gone = work.get();
    field->clearSelections(nullptr);
    work.reset();
    field->setFieldContents(gone);
    EXPECT_EQ(shown(), asText(item("Kind", "")));
}

TEST_P(SelectionFieldPrivateTest, WhoHearsOfItsChoicesMayDeleteTheForm)
{
    open();
    deleteFormAt("choices");
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("choices"));
}

TEST_P(SelectionFieldPrivateTest, WhoIsInformedOfAChoiceMayDeleteTheForm)
{
    field->setInformAppOnOk(true);
    open();
    deleteFormAt("Home");
    press({PK_OK, PK_OK});
    EXPECT_THAT(raised, ElementsAre("choices", "Home"));
}

TEST_P(SelectionFieldPrivateTest, WhoIsToldOfAChangeMayDeleteTheForm)
{
    const std::vector<std::function<void()>> changes{[&] { field->setLabel("Sort"); },
                                                     [&] { press(PK_RIGHT); },
                                                     [&] { press(PK_OK); },
                                                     [&] { form->clear(); },
                                                     [&] { form->setReadonly(true); },
                                                     [&] { field->clearSelections(nullptr); },
                                                     [&] { field->appendSelection(field->getCommands().front()); }};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        renew();
        deleteFormWhenTold(changes[i]);
        EXPECT_EQ(form, nullptr) << i;
    }
}

INSTANTIATE_ON_PANELS(SelectionFieldPrivateTest);

} // namespace
