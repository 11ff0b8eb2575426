// Where the parts of a form stand on each panel, and whose the keys are.

#include "host/widgets/form/FormWindow.h"

#include "host/Phone.h"
#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"
#include "unit/host/widgets/form/TestFormField.h"

#include <gmock/gmock.h>

using host::FormField;
using host::FormWindow;
using test::TestFormField;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Notes what it hears of a form.
struct Heard : host::FormListener {
    void valueChanged(FormField& field) override { notes.push_back("value " + ICC::fromUNICODEtoUTF8(field.value())); }
    void choicesShown(FormField&) override { notes.emplace_back("choices"); }
    void chosen(FormField&, bool) override { notes.emplace_back("chosen"); }
    void lookChanged() override { notes.emplace_back("look"); }
    void currentChanged() override { notes.emplace_back("current"); }
    void commandChosen(int command) override { notes.push_back("command " + std::to_string(command)); }
    void formKey(int key) override { notes.push_back("key " + std::to_string(key)); }

    std::vector<std::string> notes;
};

/// The panel of toolkits that are started while it lives.
struct ChosenPanel {
    explicit ChosenPanel(host::Variant variant) { host::setVariant(variant); }
    ChosenPanel(const ChosenPanel&) = delete;
    ChosenPanel& operator=(const ChosenPanel&) = delete;
    ~ChosenPanel() { host::setVariant(host::Variant::PLAIN); }
};

class FormWindowTest : public testing::TestWithParam<host::Variant> {
protected:
    FormWindowTest()
    {
        window->setListener(&heard);
        gpPresent->Add(window);
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    TestFormField* append(const std::string& label, bool takes = true)
    {
        auto* const field = new TestFormField(label, takes);
        window->append(field);
        return field;
    }

    void setCommands(const std::vector<std::string>& texts)
    {
        window->bar().setCommands(test::pegs(texts));
        window->fitBar();
    }

    /// As test::keyCode() has them.
    void press(const std::string& keys)
    {
        for (const char key : keys)
            window->Message({.wType = PM_KEY, .iData = test::keyCode(key)});
    }

    ChosenPanel panel{GetParam()};
    test::StartedToolkit toolkit;
    Heard heard;
    FormWindow* window = new FormWindow(50); ///< the manager's
};

TEST_P(FormWindowTest, FillsThePanelAndGivesTheTitleItsPlaceAtTheTop)
{
    EXPECT_EQ(window->Area(), gpPresent->Area());
    EXPECT_TRUE(host::isEmpty(window->titleArea()));
    const FormField* const field = append("Name");
    EXPECT_EQ(field->Area().top, 0);
    window->setTitle(test::peg("Entry"));
    EXPECT_EQ(window->titleArea().top, 0);
    EXPECT_EQ(field->Area().top, window->titleArea().bottom + 1);
    window->setTitle({});
    EXPECT_EQ(field->Area().top, 0);
}

TEST_P(FormWindowTest, UpAndDownGoFromFieldToFieldAndTell)
{
    const FormField* const first = append("Name");
    const FormField* const second = append("Number");
    EXPECT_EQ(window->current(), first);
    EXPECT_TRUE(first->hasFocus());
    press("v");
    EXPECT_EQ(window->current(), second);
    press("v^^");
    EXPECT_EQ(window->current(), first);
    EXPECT_THAT(heard.notes,
                ElementsAre("current", "key " + std::to_string(PK_DOWN), "current", "key " + std::to_string(PK_UP)));
}

TEST_P(FormWindowTest, CurrentFieldGetsTheKeysAndOthersAreTold)
{
    FormField* const first = append("Name");
    append("Number");
    press("7");
    static_cast<TestFormField*>(first)->showChoices();
    press("<!");
    EXPECT_THAT(heard.notes,
                ElementsAre("value 7", "choices", "key " + std::to_string(PK_LEFT), "key " + std::to_string(PK_OK)));
}

TEST_P(FormWindowTest, CommandsAreBelowTheLastFieldAndAboveTheFirst)
{
    setCommands({"Save", "Cancel"});
    const FormField* const first = append("Name");
    const FormField* const last = append("Number");
    press("^");
    EXPECT_TRUE(window->bar().hasFocus());
    EXPECT_FALSE(first->hasFocus());
    press(">!");
    press("v");
    EXPECT_TRUE(first->hasFocus());
    press("vv");
    EXPECT_FALSE(last->hasFocus());
    press("!");
    press("^");
    EXPECT_TRUE(last->hasFocus());
    EXPECT_THAT(heard.notes, ElementsAre("look", "look", "command 1", "look", "current", "look", "command 1", "look"));
}

TEST_P(FormWindowTest, WithoutFieldsTheCommandsHaveTheKeys)
{
    setCommands({"Save"});
    EXPECT_TRUE(window->bar().hasFocus());
    append("Heading", false);
    EXPECT_TRUE(window->bar().hasFocus());
    const FormField* const field = append("Name");
    EXPECT_TRUE(field->hasFocus());
    EXPECT_FALSE(window->bar().hasFocus());
    press("v");
    setCommands({});
    EXPECT_TRUE(field->hasFocus());
}

/// On two lines the bar takes the field's place while the user is in it.
TEST_P(FormWindowTest, BarStandsAtTheFootOrInThePlaceOfTheField)
{
    window->setTitle(test::peg("Entry"));
    const FormField* const field = append("Name");
    setCommands({"Save"});
    EXPECT_EQ(host::isEmpty(window->bar().Area()), isSmall());
    EXPECT_FALSE(host::isEmpty(field->Area()));
    press("v");
    EXPECT_EQ(window->bar().Area().bottom, gpPresent->Area().bottom);
    EXPECT_EQ(host::isEmpty(field->Area()), isSmall());
    EXPECT_FALSE(host::isEmpty(window->titleArea()));
    press("^");
    EXPECT_FALSE(host::isEmpty(field->Area()));
}

TEST_P(FormWindowTest, CommandsHaveTheKeysWhenTheLastFieldHasGone)
{
    FormField* const field = append("Name");
    setCommands({"Save"});
    delete field;
    EXPECT_TRUE(window->bar().hasFocus());
    EXPECT_FALSE(host::isEmpty(window->bar().Area()));
}

TEST_P(FormWindowTest, UserStaysInTheFieldsWhenCommandsComeBack)
{
    const FormField* const first = append("Name");
    append("Number");
    setCommands({"Save"});
    press("vv");
    setCommands({});
    press("^");
    setCommands({"Save"});
    EXPECT_TRUE(first->hasFocus());
    EXPECT_FALSE(window->bar().hasFocus());
}

TEST_P(FormWindowTest, UserStaysInTheBarWhileCommandsAreReplaced)
{
    append("Name");
    setCommands({"Save"});
    press("v");
    setCommands({});
    setCommands({"Keep"});
    EXPECT_TRUE(window->bar().hasFocus());
}

TEST_P(FormWindowTest, LabelThatComesLaterGetsItsLine)
{
    auto* const above = new FormWindow(100);
    gpPresent->Add(above);
    auto* const first = new TestFormField("");
    auto* const second = new TestFormField("");
    above->append(first);
    above->append(second);
    first->setLabel(test::peg("Kind"));
    EXPECT_EQ(host::heightOf(first->Area()), first->heightFor(100));
    first->setLabel({});
    EXPECT_EQ(host::heightOf(first->Area()), host::Field::lineHeight());
    const FormField* const last = isSmall() ? first : second;
    EXPECT_EQ(last->Area().bottom + 1, (isSmall() ? 1 : 2) * host::Field::lineHeight());
}

TEST_P(FormWindowTest, TitleThatMovesLeavesNothingBehind)
{
    append("Name");
    window->setTitle(test::peg("Entry"));
    for (const int lines : {1, 2, 0}) {
        for (int line = 0; line < 2; ++line)
            window->status().setText(line, line < lines ? "Busy" : "");
        window->status().setLines(lines);
        host::Lcd::current()->paint();
        const auto shown = host::Lcd::current()->picture().pixels;
        window->Invalidate();
        host::Lcd::current()->paint();
        EXPECT_EQ(shown, host::Lcd::current()->picture().pixels) << lines;
    }
}

TEST_P(FormWindowTest, CurrentFieldStaysInSight)
{
    window->setTitle(test::peg("Entry"));
    for (int i = 0; i < 20; ++i)
        append("Field " + std::to_string(i));
    for (int i = 0; i < 20; ++i) {
        EXPECT_FALSE(host::isEmpty(window->current()->Area())) << i;
        EXPECT_GT(window->current()->Area().top, window->titleArea().bottom) << i;
        press("v");
    }
}

TEST_P(FormWindowTest, DeletedFieldGivesItsPlaceToTheNextOne)
{
    const FormField* const first = append("Name");
    FormField* const second = append("Number");
    FormField* const third = append("Group");
    press("v");
    delete second;
    EXPECT_EQ(window->current(), third);
    EXPECT_TRUE(third->hasFocus());
    delete third;
    EXPECT_EQ(window->current(), first);
    EXPECT_TRUE(first->hasFocus());
    delete first;
    EXPECT_EQ(window->current(), nullptr);
    EXPECT_THAT(heard.notes, ElementsAre("current"));
}

TEST_P(FormWindowTest, FieldThatIsAppendedAgainGoesToTheEndWithTheFocus)
{
    FormField* const first = append("Name");
    const FormField* const second = append("Number");
    window->append(first);
    EXPECT_EQ(window->current(), first);
    press("^");
    EXPECT_EQ(window->current(), second);
    EXPECT_EQ(window->column().count(), 2);
}

TEST_P(FormWindowTest, ReadOnlyFormTakesNoValues)
{
    FormField* const field = append("Name");
    window->setReadOnly(true);
    const FormField* const later = append("Number");
    EXPECT_TRUE(later->isLocked());
    EXPECT_FALSE(later->isReadOnly());
    press("7v");
    EXPECT_EQ(field->value(), test::peg("0"));
    EXPECT_EQ(window->current(), later);
    window->setReadOnly(false);
    field->setReadOnly(true);
    EXPECT_TRUE(field->isLocked());
    EXPECT_FALSE(later->isLocked());
}

TEST_P(FormWindowTest, OnlyFieldsOfItsOwnBecomeTheCurrentOne)
{
    const FormField* const first = append("Name");
    const FormField* const heading = append("Heading", false);
    const TestFormField stranger("Stranger");
    window->setCurrent(heading);
    window->setCurrent(&stranger);
    window->setCurrent(nullptr);
    EXPECT_EQ(window->current(), first);
    EXPECT_THAT(heard.notes, IsEmpty());
}

TEST_P(FormWindowTest, LabelsAboveTakeALineOfTheirOwnWhereThereIsRoom)
{
    TestFormField field("Name");
    const int line = host::Field::lineHeight();
    EXPECT_EQ(field.heightFor(100), line);
    field.setLabelShare(100);
    EXPECT_EQ(field.heightFor(100), isSmall() ? line : 2 * line);
    field.setLabel({});
    EXPECT_EQ(field.heightFor(100), line);
}

INSTANTIATE_TEST_SUITE_P(Panel, FormWindowTest,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
