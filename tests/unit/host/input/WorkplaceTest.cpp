#include "host/input/Workplace.h"

#include "host/widgets/form/ChoiceField.h"
#include "host/widgets/form/FormWindow.h"
#include "host/widgets/form/TextEntryField.h"
#include "host/widgets/popup/PopupBox.h"
#include "host/widgets/tab/TabWindow.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"
#include "widgets/KestrelListBoxItem.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gmock/gmock.h>

using host::Choices;
using host::Workplace;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Kind = Choices::Kind;

namespace {

class WorkplaceTest : public testing::Test {
protected:
    template <typename Window>
    Window* open(Window* window)
    {
        gpPresent->Add(window);
        gpPresent->MoveFocusTree(window);
        return window;
    }

    static host::TextEntryField* addText(host::FormWindow& form, const std::string& label, host::EditKind kind)
    {
        auto* const field = new host::TextEntryField;
        field->setLabel(test::peg(label));
        field->setKind(kind);
        form.append(field);
        return field;
    }

    test::StartedToolkit toolkit;
};

TEST_F(WorkplaceTest, WithoutAFocusThereIsNothing)
{
    const Workplace place = Workplace::read();
    EXPECT_EQ(place.window, nullptr);
    EXPECT_EQ(place.withKeys(), nullptr);
    EXPECT_EQ(Workplace::type("x"), Workplace::Typed::NOWHERE);
}

TEST_F(WorkplaceTest, RowsAreFoundByTheirTexts)
{
    auto* const list = open(new KestrelListBoxWithTitle);
    list->setTitle(test::peg("Names"));
    std::vector<std::unique_ptr<KestrelListBoxItem>> rows;
    for (const char* name : {"Ada", "Adam", "Bob", "Ada"})
        list->append(rows.emplace_back(std::make_unique<KestrelListBoxItem>(test::peg(name))).get());
    list->setCurrentRow(2);
    const Workplace place = Workplace::read({"Ada", "Zoë"});
    EXPECT_EQ(place.title, "Names");
    ASSERT_NE(place.withKeys(), nullptr);
    const Choices& found = *place.withKeys();
    EXPECT_EQ(found.kind, Kind::ROWS);
    EXPECT_THAT(found.texts, ElementsAre("Bob"));
    EXPECT_THAT(found.found, ElementsAre(0, 3));
    EXPECT_THAT(found.similar, ElementsAre(1));
    EXPECT_THAT(found.names, ElementsAre("Ada", "Adam", "Bob", "Ada"));
}

TEST_F(WorkplaceTest, RowThatLeadsBackIsNotFound)
{
    auto* const list = open(new KestrelListBoxWithTitle);
    KestrelListBoxItem row(test::peg("Ada")), back(KestrelListBoxItem::wayBackText());
    list->append(&row);
    list->append(&back);
    list->setCurrentRow(0);
    EXPECT_FALSE(Workplace::read().withKeys()->isAtBack);
    list->setCurrentRow(1);
    const Workplace place = Workplace::read({"←", "Ada"});
    EXPECT_TRUE(place.withKeys()->isAtBack);
    EXPECT_THAT(place.withKeys()->found, ElementsAre(0));
    EXPECT_THAT(place.withKeys()->names, ElementsAre("Ada"));
}

TEST_F(WorkplaceTest, FormHasItsFieldsByTheirLabelsAndItsCommands)
{
    auto* const form = open(new host::FormWindow(50));
    addText(*form, "Name", host::EditKind::NAME)->setText(test::peg("Number"));
    addText(*form, "Number", host::EditKind::PHONE_NUMBER);
    form->bar().setCommands(test::pegs({"Save"}));
    form->fitBar();
    const Workplace place = Workplace::read({"Number"});
    ASSERT_THAT(place.choices, SizeIs(2));
    EXPECT_THAT(place.choices[0].texts, ElementsAre("Name", "Number"));
    EXPECT_THAT(place.choices[0].found, ElementsAre(1));
    EXPECT_TRUE(place.choices[0].hasKeys);
    EXPECT_EQ(place.choices[1].kind, Kind::BAR);
    EXPECT_FALSE(place.choices[1].hasKeys);
    EXPECT_EQ(place.choices[1].behind, PK_RIGHT);
}

TEST_F(WorkplaceTest, ValuesOfAFieldHaveAllKeys)
{
    auto* const form = open(new host::FormWindow(50));
    auto* const field = new host::ChoiceField;
    field->append({test::peg("Classic")});
    field->append({test::peg("Marimba")});
    form->append(field);
    form->Message({.wType = PM_KEY, .iData = PK_OK});
    const Workplace place = Workplace::read({"Marimba"});
    ASSERT_THAT(place.choices, SizeIs(1));
    EXPECT_EQ(place.choices[0].kind, Kind::VALUES);
    EXPECT_TRUE(place.choices[0].hasKeys && place.choices[0].isRing);
    EXPECT_THAT(place.choices[0].found, ElementsAre(1));
}

TEST_F(WorkplaceTest, PopupHasItsTitleItsLinesAndItsCommands)
{
    auto* const box = open(new host::PopupBox);
    box->setHeader(host::PopupBox::Line(test::peg("Ada")));
    box->setBody({host::PopupBox::Line(test::peg("Line 1"))});
    box->setCommands(test::pegs({"Answer", "Reject"}));
    const Workplace place = Workplace::read();
    EXPECT_EQ(place.title, "Ada");
    EXPECT_THAT(place.lines, ElementsAre("Line 1"));
    ASSERT_NE(place.withKeys(), nullptr);
    EXPECT_THAT(place.withKeys()->texts, ElementsAre("Answer"));
    EXPECT_THAT(place.withKeys()->names, IsEmpty()) << "where nothing is looked for";
}

TEST_F(WorkplaceTest, TabsStandAbovePages)
{
    auto* const tabs = open(new host::TabWindow(nullptr, true));
    tabs->bar().append(test::peg("All"));
    tabs->bar().append(test::peg("Missed"));
    tabs->bar().setCurrent(1);
    tabs->setPlace(host::TabWindow::BAR);
    const Workplace place = Workplace::read({"All"});
    ASSERT_NE(place.withKeys(), nullptr);
    EXPECT_EQ(place.withKeys()->kind, Kind::TABS);
    EXPECT_THAT(place.withKeys()->texts, ElementsAre("Missed"));
    EXPECT_THAT(place.withKeys()->found, ElementsAre(0));
}

TEST_F(WorkplaceTest, TextGoesIntoTheLineThatIsTypedIntoAsFarAsThatTakesIt)
{
    auto* const form = open(new host::FormWindow(50));
    auto* const name = addText(*form, "Name", host::EditKind::PASSWORD);
    EXPECT_EQ(Workplace::type("gehe\u00EFm"), Workplace::Typed::TAKEN);
    EXPECT_EQ(Workplace::read().edited->text, "gehe\u00EFm") << "in full, though dots are shown";
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(name->text()), "gehe\u00EFm");
    auto* const number = addText(*form, "Number", host::EditKind::PHONE_NUMBER);
    form->setCurrent(number);
    EXPECT_EQ(Workplace::type("+49x3"), Workplace::Typed::OTHERWISE);
    EXPECT_EQ(Workplace::read().edited->text, "+493");
    form->setReadOnly(true);
    EXPECT_EQ(Workplace::type("1"), Workplace::Typed::NOWHERE);
}

} // namespace
