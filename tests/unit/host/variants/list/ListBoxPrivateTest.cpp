#include "unit/host/variants/list/ListVariantTest.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/ListItem.h"
#include "apps/examples/TwoLineRow.h"
#include "utilities/Rect.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelApplication.h"

using namespace DisplayAPI;
using testing::InSequence;
using testing::Return;

namespace {

/// What the lists of both panels do.
template <typename Variant>
class ListBoxPrivateTest : public test::ListVariantTest<Variant> {
protected:
    using Row = typename Variant::Row;

    ListBoxPrivateTest() { this->attach(list); }

    typename Variant::ListBox list{&this->owner, false};
    Row a{std::string("a"), true}, b{std::string("b"), true}, c{std::string("c"), true};
};

TYPED_TEST_SUITE(ListBoxPrivateTest, test::Variants);

TYPED_TEST(ListBoxPrivateTest, KnowsItsFacade)
{
    EXPECT_EQ(this->list.getParent(), &this->owner);
}

TYPED_TEST(ListBoxPrivateTest, IsAFullScreen)
{
    EXPECT_TRUE(this->list.hideOldWidgetOnFocusGained());
}

TYPED_TEST(ListBoxPrivateTest, StatusLinesTakeRoomOnTheFullPanel)
{
    const bool isFullPanel = std::is_same_v<TypeParam, test::PlainVariant>;
    EXPECT_EQ(this->list.hasSystemWindow(), isFullPanel);
    this->list.append(&this->a);
    const auto topOfRows = [this] { return this->boxOf(this->list).rowArea(0).top; };
    const int top = topOfRows();

    this->list.setSysWindowText("Line 1", 0);
    this->list.setSysWindowSize(1);
    EXPECT_EQ(topOfRows() > top, isFullPanel);
    this->list.setSysWindowSize(0);
    EXPECT_EQ(topOfRows(), top);

    this->list.setSystemWindowText(0, "Größe");
    this->list.setSystemWindowSize(1);
    EXPECT_EQ(topOfRows() > top, isFullPanel);
}

TYPED_TEST(ListBoxPrivateTest, KeepsRowsInOrder)
{
    this->list.append(&this->b);
    this->list.insertAt(&this->a, -1);
    this->list.insertAt(&this->c, 100);
    EXPECT_EQ(this->list.size(), 3);
    EXPECT_EQ(test::lettersOf(this->boxOf(this->list)), "a[b]c");
}

TYPED_TEST(ListBoxPrivateTest, RemovesTheRowWhateverTheIndex)
{
    for (auto* row : {&this->a, &this->b, &this->c})
        this->list.append(row);
    this->list.removeAt(-7, &this->c);
    this->list.remove(&this->a);
    this->list.remove(&this->a);
    this->list.remove(nullptr);
    EXPECT_EQ(test::lettersOf(this->boxOf(this->list)), "[b]");
    this->list.clear();
    EXPECT_EQ(this->list.size(), 0);
}

TYPED_TEST(ListBoxPrivateTest, NullRowIsIgnored)
{
    this->list.append(nullptr);
    this->list.insertAt(nullptr, 0);
    EXPECT_EQ(this->list.size(), 0);
}

TYPED_TEST(ListBoxPrivateTest, Selects)
{
    EXPECT_EQ(this->list.getSelectedIndex(), -1);
    for (auto* row : {&this->a, &this->b, &this->c})
        this->list.append(row);
    EXPECT_EQ(this->list.getSelectedIndex(), 0);
    this->list.setSelectedIndex(2);
    EXPECT_EQ(this->list.getSelectedIndex(), 2);
    this->list.setSelectedIndex(3);
    this->list.setSelectedIndex(-1);
    EXPECT_EQ(this->list.getSelectedIndex(), 2);
    this->list.setSelected(&this->b);
    EXPECT_EQ(this->list.getSelectedIndex(), 1);
    this->list.setSelected(nullptr);
    EXPECT_EQ(this->list.getSelectedIndex(), 1);
}

TYPED_TEST(ListBoxPrivateTest, RowThatDiesLeavesTheList)
{
    this->list.append(&this->a);
    {
        typename TypeParam::Row passing(std::string("x"), true);
        this->list.append(&passing);
        EXPECT_EQ(this->list.size(), 2);
    }
    EXPECT_EQ(test::lettersOf(this->boxOf(this->list)), "[a]");
}

TYPED_TEST(ListBoxPrivateTest, KeysBecomeCommands)
{
    this->list.append(&this->a);
    InSequence order;
    EXPECT_CALL(this->listener, postCommandAction(List::SELECT_COMMAND(), &this->owner));
    EXPECT_CALL(this->listener, postCommandAction(List::RIGHT_COMMAND(), &this->owner));
    this->press(this->list, PK_OK);
    this->press(this->list, PK_RIGHT);
    this->press(this->list, PK_LEFT);
}

TYPED_TEST(ListBoxPrivateTest, LeftGoesBackWhereThereIsAWayBack)
{
    typename TypeParam::ListBox withBack(&this->owner, true);
    this->attach(withBack);
    EXPECT_CALL(this->listener, postCommandAction(List::BACK_COMMAND(), &this->owner));
    this->press(withBack, PK_LEFT);
}

TYPED_TEST(ListBoxPrivateTest, RemovedListenerHearsNothing)
{
    this->list.append(&this->a);
    this->list.removeCommandListener(&this->listener);
    EXPECT_CALL(this->listener, postCommandAction).Times(0);
    this->press(this->list, PK_OK);
}

TYPED_TEST(ListBoxPrivateTest, ChangesOfAListOnScreenReachTheDisplay)
{
    this->putOnScreen(this->list);
    this->list.append(&this->a);
    this->list.append(&this->b);
    this->press(this->list, PK_DOWN);
    this->list.setTitle("Title");
    this->list.setSelectionHighlight(false);
    this->list.remove(&this->a);
    EXPECT_EQ(this->display.changes, 6);
    this->putAway(this->list);
}

TYPED_TEST(ListBoxPrivateTest, ChangesOfAListOffScreenDoNot)
{
    this->list.append(&this->a);
    this->list.setTitle("Title");
    this->list.setSelectedIndex(0);
    EXPECT_EQ(this->display.changes, 0);
}

TYPED_TEST(ListBoxPrivateTest, ListThatIsShownTellsTheDisplay)
{
    this->list.show();
    EXPECT_EQ(this->display.changes, 1);
}

TYPED_TEST(ListBoxPrivateTest, TellsTheDisplayOfOneItHasJoinedUntilItLeaves)
{
    typename TypeParam::ListBox joining(&this->owner, false);
    joining.join(&this->list);
    joining.show();
    joining.disjoin();
    joining.show();
    EXPECT_EQ(this->display.changes, 1);
}

TYPED_TEST(ListBoxPrivateTest, HideTakesTheWidgetOffTheScreenAndBack)
{
    this->putOnScreen(this->list);
    this->list.hide();
    EXPECT_EQ(this->list.getWidget()->Parent(), nullptr);
    this->list.hide();
}

TYPED_TEST(ListBoxPrivateTest, WidgetOnScreenOutlivesTheList)
{
    auto shortLived = std::make_unique<typename TypeParam::ListBox>(&this->owner, true);
    this->putOnScreen(*shortLived);
    PegThing* widget = shortLived->getWidget();
    shortLived.reset();
    EXPECT_EQ(widget->Parent(), gpPresent);
    widget->Message(test::keyMessage(PK_OK));
    widget->Message(test::keyMessage(PK_LEFT));
}

TYPED_TEST(ListBoxPrivateTest, ListOutlivesItsWidget)
{
    this->list.append(&this->a);
    this->putOnScreen(this->list);
    delete this->list.getWidget();
    EXPECT_EQ(this->list.getWidget(), nullptr);
    EXPECT_EQ(this->list.size(), 0);
    EXPECT_EQ(this->list.getSelectedIndex(), -1);
    EXPECT_EQ(this->list.serialise(), "");
    EXPECT_FALSE(this->list.hasCaption());
    this->list.append(&this->b);
    this->list.remove(&this->a);
    this->list.setTitle("Title");
    this->list.setSelectedIndex(0);
    this->list.clear();
    this->list.hide();
}

TYPED_TEST(ListBoxPrivateTest, TitleIsTheCaption)
{
    EXPECT_FALSE(this->list.hasCaption());
    this->list.setTitle("Größe");
    EXPECT_TRUE(this->list.hasCaption());
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(this->boxOf(this->list).title()), "Größe");
}

TYPED_TEST(ListBoxPrivateTest, TranslatedTitleFollowsTheLocale)
{
    testing::StrictMock<doubles::MockTranslator> translator;
    EXPECT_CALL(translator, translate("Title")).WillOnce(Return("Title")).WillOnce(Return("Titel"));
    TranslationInfo title("Title", &translator, " 1");
    this->list.setTitle(&title);
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(this->boxOf(this->list).title()), "Title 1");
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("de"));
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(this->boxOf(this->list).title()), "Titel 1");
}

TYPED_TEST(ListBoxPrivateTest, RowsFollowTheLocale)
{
    testing::StrictMock<doubles::MockTranslator> translator;
    EXPECT_CALL(translator, translate("Calls")).WillOnce(Return("Calls")).WillOnce(Return("Anrufe"));
    TranslationInfo text("Calls", &translator);
    auto* const row = new ListItem(&text, true);
    this->owner.append(row);
    this->list.append(row->getPrivateImplemetation());
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("de"));
    EXPECT_EQ(row->getText(), "Anrufe");
}

TYPED_TEST(ListBoxPrivateTest, PlainTitleReplacesATranslatedOne)
{
    TranslationInfo title("Title", nullptr);
    this->list.setTitle(&title);
    this->list.setTitle("Other");
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("de"));
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(this->boxOf(this->list).title()), "Other");
    this->list.setTitle(static_cast<TranslationInfo*>(nullptr));
    EXPECT_FALSE(this->list.hasCaption());
}

TYPED_TEST(ListBoxPrivateTest, SerialisesTitleAndRowsInView)
{
    EXPECT_EQ(this->list.serialise(), "object:\nname:KestrelListBox\nend:\n");
    this->list.setTitle("Menu");
    this->list.append(&this->a);
    EXPECT_EQ(this->list.serialise(), "object:\nname:KestrelListBox\ncaption:Menu\n"
                                      "subitem:\nname:KestrelListBoxItem\nstring0:a\nendsubitem:\n"
                                      "end:\n");
}

TYPED_TEST(ListBoxPrivateTest, RowsOfOtherKindsDescribeThemselves)
{
    examples::TwoLineRow row(ICC::fromUTF8toUNICODE("Ada"), ICC::fromUTF8toUNICODE("+44"));
    this->boxOf(this->list).append(&row);
    EXPECT_EQ(this->list.serialise(), "object:\nname:KestrelListBox\n"
                                      "subitem:\nname:TwoLineRow\nstring0:Ada\nstring1:+44\nendsubitem:\n"
                                      "end:\n");
}

TYPED_TEST(ListBoxPrivateTest, SerialisesRowsThatAreVisible)
{
    this->list.append(&this->a);
    this->list.append(&this->b);
    const std::string second = "object:\nname:KestrelListBox\n"
                               "subitem:\nname:KestrelListBoxItem\nstring0:b\nendsubitem:\n"
                               "end:\n";
    EXPECT_EQ(this->list.serialise({{0, 30, 100, 3}}), second);
    EXPECT_EQ(this->list.serialise({{0, 30, 100, 3}, {300, 0, 10, 10}}), second);
    EXPECT_EQ(this->list.serialise(std::vector<DisplayAPIUtils::Rect>{}), "");
}

} // namespace
