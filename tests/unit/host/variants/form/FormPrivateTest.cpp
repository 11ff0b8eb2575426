// What a form shows, what it raises, and where the focus is.

#include "variants/form/FormPrivate.h"

#include "DisplayAPI/Item.h"
#include "DisplayAPI/ItemPrivateIfc.h"
#include "DisplayAPI/WatchedWidget.h"
#include "support/ItemChanges.h"
#include "unit/host/variants/form/FormVariantTest.h"
#include "unit/host/widgets/form/TestFormField.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::inBar;
using test::TestFormField;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// An item whose value is a digit; an empty label is an item with nothing to show.
class Digit : public Item, private ItemPrivateIfc {
public:
    explicit Digit(const std::string& label) : field(std::in_place_type<TestFormField>, label), mIsBlank(label.empty())
    {
    }
    ~Digit() override { delete field.get(); }

    void processGuiRequest(GuiRequestEvent& request) override { signalComplete(request); }
    ItemPrivateIfc* getPrivateImpl() override { return this; }
    void localeChanged(std::string) override {}

    PegThing* getWidget() override { return mIsBlank ? nullptr : field.get(); }
    void releaseOwnership() override { isOwned = true; }
    void gainOwnership() override { isOwned = false; }
    bool isOwned = false;
    WatchedWidget<TestFormField> field;

private:
    const bool mIsBlank;
};

class FormPrivateTest : public test::FormVariantTest {
protected:
    ~FormPrivateTest() override { form.reset(); }

    Digit* append(const std::string& label)
    {
        auto* const digit = new Digit(label);
        form->append(digit);
        return digit;
    }
};

TEST_P(FormPrivateTest, ShowsTitleFieldsAndCommands)
{
    Command save("Save", Command::SAVE);
    form->setTitle("Entry");
    EXPECT_EQ(form->title(), "Entry");
    append("One");
    append("Two");
    form->addCommand(&save);
    open();
    EXPECT_EQ(shown(),
              asText("caption:Entry\n" + item("One", "0") + (isSmall() ? "" : item("Two", "0") + inBar("Save"))));
    form->clearCommands();
    EXPECT_EQ(shown(), asText("caption:Entry\n" + item("One", "0") + (isSmall() ? "" : item("Two", "0"))));
}

TEST_P(FormPrivateTest, CurrentItemIsTheFirstAndFollowsTheKeys)
{
    EXPECT_EQ(form->getSelected(), nullptr);
    Item* const first = append("One");
    Item* const second = append("Two");
    Digit* const blank = append("");
    EXPECT_EQ(form->getSelected(), first);
    open();
    press(PK_DOWN);
    EXPECT_EQ(form->getSelected(), second);
    press(PK_DOWN);
    EXPECT_EQ(form->getSelected(), second);
    form->setSelected(first);
    form->setSelected(blank);
    form->setSelected(nullptr);
    EXPECT_EQ(form->getSelected(), first);
    EXPECT_TRUE(blank->isOwned);
    EXPECT_THAT(raised, ElementsAre("current"));
}

TEST_P(FormPrivateTest, ChangedValueIsTheItemsChange)
{
    Item* const digit = append("One");
    test::ItemChanges changes;
    form->addItemStateListener(&changes);
    open();
    press('7');
    EXPECT_THAT(raised, ElementsAre("changed"));
    EXPECT_THAT(changes.take(), ElementsAre(digit));
    EXPECT_EQ(shown(), asText(item("One", "7")));
}

TEST_P(FormPrivateTest, KeysWithoutAUseGoBackOrAreOkOrSave)
{
    Digit* const digit = append("One");
    open();
    press({PK_LEFT, PK_OK, PK_RIGHT});
    form->setAlternativeCommandHandling(true);
    press(PK_OK);
    form->setAlternativeCommandHandling(false);
    press(PK_OK);
    digit->field->showChoices();
    EXPECT_THAT(raised, ElementsAre("back", "ok", "save", "ok", "choices"));
}

TEST_P(FormPrivateTest, ChosenCommandIsRaisedUnlessItIsGone)
{
    auto save = std::make_unique<Command>("Save", Command::SAVE);
    append("One");
    form->addCommand(save.get());
    form->addCommand(nullptr);
    open();
    press({PK_DOWN, PK_OK});
    EXPECT_THAT(raised, ElementsAre("Save"));
    save.reset();
    press(PK_OK);
    EXPECT_EQ(raised.size(), 1u);
    EXPECT_EQ(shown(), asText(item("One", "0") + inBar("Save")));
}

TEST_P(FormPrivateTest, ClipboardTellsWhenItChanges)
{
    EXPECT_EQ(form->getClipboard(), "");
    form->setClipboard("4711");
    form->setClipboard("4711");
    EXPECT_EQ(form->getClipboard(), "4711");
    form->setClipboard("");
    EXPECT_THAT(raised, ElementsAre("clipboard", "clipboard"));
}

TEST_P(FormPrivateTest, ReadOnlyFormIsRead)
{
    append("One");
    EXPECT_FALSE(form->isReadonly());
    form->setReadonly(true);
    EXPECT_TRUE(form->isReadonly());
    append("Two");
    open();
    press({'7', PK_DOWN, '7', PK_OK});
    EXPECT_THAT(raised, ElementsAre("current", "ok"));
}

TEST_P(FormPrivateTest, FocusIsWhereItWasAfterAPopupAndAnAppend)
{
    append("One");
    Item* const second = append("Two");
    open();
    press(PK_DOWN);
    PopupNotification popup;
    popup.setText("News");
    popup.show();
    append("Three");
    EXPECT_NE(gpPresent->Focus(), form->getPrivateImpl()->getWidget());
    popup.dismiss();
    EXPECT_EQ(gpPresent->Focus(), form->getPrivateImpl()->getWidget());
    EXPECT_EQ(form->getSelected(), second);
    press('7');
    EXPECT_THAT(raised, ElementsAre("current", "changed"));
}

TEST_P(FormPrivateTest, ClearedFormIsEmptyAndCanBeFilledAgain)
{
    Command save("Save", Command::SAVE);
    append("One");
    append("Two");
    form->addCommand(&save);
    open();
    press(PK_DOWN);
    form->clear();
    form->clearCommands();
    EXPECT_EQ(form->getSelected(), nullptr);
    EXPECT_EQ(shown(), asText(""));
    Item* const again = append("Three");
    EXPECT_EQ(form->getSelected(), again);
    EXPECT_EQ(shown(), asText(item("Three", "0")));
}

TEST_P(FormPrivateTest, TranslationsFollowTheLanguage)
{
    TranslationInfo title("title", &dictionary);
    Command save(new TranslationInfo("save", &dictionary), Command::SAVE);
    form->setTitle(&title);
    form->addCommand(&save);
    open();
    changeLanguage("de");
    EXPECT_EQ(form->title(), "de:title");
    EXPECT_EQ(shown(), asText("caption:de:title\n" + inBar("de:save")));
    form->setTitle(static_cast<TranslationInfo*>(nullptr));
    EXPECT_EQ(form->title(), "");
}

TEST_P(FormPrivateTest, AnswersWithNothingWhenItsWidgetHasGone)
{
    append("One");
    open();
    delete form->getPrivateImpl()->getWidget();
    changeLanguage("de");
    form->setTitle("Title");
    append("Two");
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(form->getItems().size(), 2u);
}

TEST_P(FormPrivateTest, ItemsThatOutliveTheScreenAreDeletedOnce)
{
    append("One");
    open();
    display.setCurrent(nullptr);
    open();
    form.reset();
    EXPECT_EQ(gpPresent->Focus(), nullptr);
}

TEST_P(FormPrivateTest, StatusLinesStandAboveTheTitleWhereThereIsRoom)
{
    append("One");
    form->setTitle("Entry");
    open();
    display.setSystemWindowText(0, "Busy");
    display.setSystemWindowSize(1);
    const std::string lines = "subitem:\nname:SystemWindow\nstring0:Busy\nendsubitem:\n";
    EXPECT_EQ(shown(), asText("caption:Entry\n" + (isSmall() ? "" : lines) + item("One", "0")));
}

TEST_P(FormPrivateTest, FieldsTurnWithTheDirectionOfReading)
{
    const Digit* const digit = append("One");
    open();
    const int left = digit->field->Area().left;
    changeLanguage("ar");
    EXPECT_GT(digit->field->Area().left, left);
}

TEST_P(FormPrivateTest, ClearedFormTellsOnce)
{
    append("One");
    append("Two");
    open();
    EXPECT_EQ(changesBy([&] { form->clear(); }), 1);
    EXPECT_EQ(changesBy([&] { form->clear(); }), 0);
}

TEST_P(FormPrivateTest, WaysIntoTheBarAndInItAreTold)
{
    Command save("Save", Command::SAVE), quit("Quit", Command::BACK);
    append("One");
    form->addCommand(&save);
    form->addCommand(&quit);
    open();
    for (const int key : {PK_DOWN, PK_RIGHT, PK_UP})
        EXPECT_EQ(changesBy([&] { press(key); }), 1) << key;
}

TEST_P(FormPrivateTest, ItemThatIsGoneIsNotSelected)
{
    Item* const first = append("One");
    auto stranger = std::make_unique<Digit>("Two");
    Item* const gone = stranger.get();
    form->setSelected(gone);
    stranger.reset();
    form->setSelected(gone);
    EXPECT_EQ(form->getSelected(), first);
}

TEST_P(FormPrivateTest, ItemGoesFromFormToForm)
{
    Item* const digit = append("One");
    Item* const stays = append("Two");
    Form other(Form::HALF_AND_HALF);
    other.append(digit);
    EXPECT_THAT(form->getItems(), ElementsAre(stays));
    EXPECT_THAT(other.getItems(), ElementsAre(digit));
    EXPECT_EQ(form->getSelected(), stays);
    EXPECT_EQ(other.getSelected(), digit);
    EXPECT_EQ(digit->getParent(), &other);
}

TEST_P(FormPrivateTest, ParentThatIsSaidBeforehandIsNoForm)
{
    auto* const digit = new Digit("One");
    digit->setParent(form.get());
    EXPECT_EQ(form->getSelected(), nullptr);
    form->append(digit);
    EXPECT_EQ(form->getSelected(), digit);
}

TEST_P(FormPrivateTest, WhoHearsOfAnotherFieldMayDeleteTheForm)
{
    append("One");
    append("Two");
    open();
    deleteFormAt("current");
    press(PK_DOWN);
    EXPECT_THAT(raised, ElementsAre("current"));
}

TEST_P(FormPrivateTest, WhoIsToldOfAnItemOrACommandMayDeleteTheForm)
{
    Command save("Save", Command::SAVE);
    Item* first = nullptr;
    const std::vector<std::function<void()>> changes{[&] { append("Two"); }, [&] { form->append(first); },
                                                     [&] { form->addCommand(&save); }, [&] { form->clearCommands(); }};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        form = std::make_unique<Form>(Form::HALF_AND_HALF);
        first = append("One");
        form->addCommand(&save);
        open();
        deleteFormWhenTold(changes[i]);
        EXPECT_EQ(form, nullptr) << i;
    }
}

TEST_P(FormPrivateTest, WhoHearsOfAnotherValueMayDeleteTheForm)
{
    append("One");
    open();
    deleteFormAt("changed");
    press('7');
    EXPECT_THAT(raised, ElementsAre("changed"));
}

INSTANTIATE_ON_PANELS(FormPrivateTest);

} // namespace
