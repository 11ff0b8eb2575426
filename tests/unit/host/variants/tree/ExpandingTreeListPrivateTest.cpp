#include "DisplayAPI/Display.h"
#include "DisplayAPI/ExpandingTreeList.h"
#include "DisplayAPI/ExpandingTreeListItem.h"
#include "DisplayAPI/ExpandingTreeListPrivateIfc.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/List.h"
#include "doubles/Mocks.h"
#include "support/RowsOwner.h"
#include "unit/host/variants/OnPanel.h"
#include "unit/host/variants/Told.h"
#include "utilities/TranslationInfo.h"
#include "variants/list/ListItemPrivate.h"
#include "widgets/Peg_TreeListItem.h"

#include <gmock/gmock.h>

using namespace DisplayAPI;
using testing::HasSubstr;

namespace {

/// Rows a(b(c) d) e on the screen.
class ExpandingTreeListPrivateTest : public testing::TestWithParam<host::Variant> {
protected:
    ExpandingTreeListPrivateTest()
    {
        display.show();
        for (const auto& [text, level] : {std::pair{"a", 0}, {"b", 1}, {"c", 2}, {"d", 1}, {"e", 0}})
            append(text, level);
        list.addCommandListener(&listener);
        display.setCurrent(&list);
    }

    ~ExpandingTreeListPrivateTest() override { display.setCurrent(nullptr); }

    void append(const char* text, int level) { list.append(new ExpandingTreeListItem(text, level)); }

    static std::string back() { return GetParam() == host::Variant::WP1 ? "←" : ""; }

    KestrelListBox& box() { return *dynamic_cast<KestrelListBox*>(list.getPrivateImpl()->getWidget()); }
    std::string shown() { return test::lettersOf(box()); }
    void press(int key) { box().Message(test::keyMessage(key)); }

    test::OnPanel panel{GetParam()};
    testing::StrictMock<doubles::MockCommandListener> listener;
    Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    ExpandingTreeList list{true};
};

TEST_P(ExpandingTreeListPrivateTest, RowsOpenAndCloseInPlace)
{
    EXPECT_EQ(shown(), "[a]e" + back());
    press(PK_RIGHT);
    EXPECT_EQ(shown(), "[a]bde" + back());
    press(PK_LEFT);
    press(PK_OK);
    EXPECT_EQ(shown(), "[a]bde" + back());
}

TEST_P(ExpandingTreeListPrivateTest, IndexCountsAllRows)
{
    press(PK_OK);
    press(PK_RIGHT);
    press(PK_DOWN);
    EXPECT_EQ(shown(), "ab[d]e" + back());
    EXPECT_EQ(list.getSelectedIndex(), 3);
    EXPECT_EQ(list.getSelected(), list.getExpandingItemsList()[3]);
}

TEST_P(ExpandingTreeListPrivateTest, ObserverIsToldOnceOfALocale)
{
    TranslationInfo text{"Row", nullptr};
    list.append(new ExpandingTreeListItem(&text, 0));
    list.append(new ExpandingTreeListItem(&text, 0));
    test::Told told(display);
    list.localeChanged("de_DE");
    EXPECT_EQ(told.take(), 1) << "from the application";
    display.localeChanged("de_DE");
    EXPECT_EQ(told.take(), 1) << "from the display";
    list.clear();
}

/// Nobody but a request of its own does so.
TEST_P(ExpandingTreeListPrivateTest, RowWhoseSideHasGoneIsLeftAlone)
{
    press(PK_OK);
    for (const int gone : {4, 1}) {
        GuiRequestEvent destroy(list.getExpandingItemsList()[static_cast<std::size_t>(gone)], 2);
        destroy.requesterWidget()->processGuiRequest(destroy);
    }
    EXPECT_EQ(shown(), "[a]d" + back());
    append("f", 1);
    EXPECT_EQ(shown(), "[a]df" + back());
    list.align();
    list.setReadonly(1, true);
    list.setReadonly(4, true);
    EXPECT_EQ(list.getSelectedIndex(), 0);
    press(PK_DOWN);
    EXPECT_EQ(list.getSelectedIndex(), 3);
}

TEST_P(ExpandingTreeListPrivateTest, RowBelongsToTheLastOneThatStandsLessDeep)
{
    append("f", 5);
    append("g", 3);
    append("h", -1);
    append("i", 1);
    EXPECT_EQ(shown(), "[a]eh" + back());
    press(PK_DOWN);
    press(PK_OK);
    EXPECT_EQ(shown(), "a[e]fgh" + back());
    press(PK_DOWN);
    press(PK_DOWN);
    press(PK_DOWN);
    press(PK_OK);
    EXPECT_EQ(shown(), "aefg[h]i" + back());
}

TEST_P(ExpandingTreeListPrivateTest, OkChoosesWhatHasNothingBelowAndRightDoesWhereItIsToDoTheSame)
{
    press(PK_DOWN);
    press(PK_RIGHT);
    EXPECT_CALL(listener, postCommandAction(List::SELECT_COMMAND(), &list)).Times(2);
    press(PK_OK);
    list.setRightArrowEqualsOK(true);
    press(PK_RIGHT);
    press(PK_UP);
    press(PK_RIGHT);
    EXPECT_EQ(shown(), "[a]bde" + back());
    press(PK_RIGHT);
    EXPECT_EQ(shown(), "[a]e" + back());
    list.setRightArrowEqualsOK(false);
    press(PK_DOWN);
    press(PK_RIGHT);
}

TEST_P(ExpandingTreeListPrivateTest, LeftLeadsOutAndSoDoesTheLastRowOfTheSmallPanel)
{
    EXPECT_CALL(listener, postCommandAction(List::BACK_COMMAND(), &list)).Times(back().empty() ? 1 : 2);
    press(PK_LEFT);
    if (back().empty())
        return;
    press(PK_DOWN);
    press(PK_DOWN);
    EXPECT_EQ(shown(), "ae[←]");
    EXPECT_EQ(list.getSelectedIndex(), -1);
    EXPECT_EQ(list.getSelected(), nullptr);
    press(PK_OK);
}

TEST_P(ExpandingTreeListPrivateTest, RowThatIsOnlyReadIsNeitherOpenedNorChosen)
{
    list.setReadonly(0, true);
    list.setReadonly(4, true);
    list.setReadonly(-1, true);
    list.setReadonly(5, true);
    press(PK_OK);
    press(PK_RIGHT);
    press(PK_DOWN);
    press(PK_OK);
    EXPECT_EQ(shown(), "a[e]" + back());
    list.setReadonly(0, false);
    press(PK_UP);
    press(PK_OK);
    EXPECT_EQ(shown(), "[a]bde" + back());
}

TEST_P(ExpandingTreeListPrivateTest, ClearedListIsEmptyAndTakesNewRows)
{
    press(PK_OK);
    list.clear();
    EXPECT_EQ(list.getSelectedIndex(), -1);
    append("x", 1);
    append("y", 2);
    EXPECT_EQ(list.getSelectedIndex(), 0);
    press(PK_OK);
    EXPECT_EQ(shown(), "[x]y" + back());
}

TEST_P(ExpandingTreeListPrivateTest, RowOfAnotherKindStandsOnTopAndWhatFollowsBehindIt)
{
    list.append(new ExpandingTreeListItem(new ListItemPrivate(std::string("p"), true), 1));
    append("q", 1);
    list.setReadonly(5, true);
    EXPECT_EQ(shown(), "[a]epq" + back());
    EXPECT_CALL(listener, postCommandAction(List::SELECT_COMMAND(), &list));
    press(PK_DOWN);
    press(PK_OK);
    EXPECT_EQ(shown(), "a[e]pq" + back());
    press(PK_DOWN);
    EXPECT_EQ(list.getSelectedIndex(), 5);
    testing::Mock::VerifyAndClearExpectations(&listener);
    EXPECT_CALL(listener, postCommandAction(List::SELECT_COMMAND(), &list));
    press(PK_OK);
    press(PK_RIGHT);
}

TEST_P(ExpandingTreeListPrivateTest, RowWithoutASideCountsButIsNotShown)
{
    auto* const bare = new ExpandingTreeListItem(static_cast<ListItemPrivateIfc*>(nullptr), 0);
    list.append(bare);
    append("q", 0);
    EXPECT_EQ(shown(), "[a]eq" + back());
    list.setReadonly(5, true);
    list.align();
    box().setCurrentRow(2);
    EXPECT_EQ(list.getSelectedIndex(), 6);
    list.clear();
    append("x", 0);
    EXPECT_EQ(list.getSelectedIndex(), 0);
}

TEST_P(ExpandingTreeListPrivateTest, ObserverIsToldLastOfWhatItSees)
{
    list.clear();
    std::vector<bool> found;
    test::Told told(display, [&] { found.push_back(list.getSelected() != nullptr); });
    append("a", 0);
    EXPECT_EQ(found, std::vector{true});
    list.setReadonly(0, true);
    EXPECT_EQ(found.size(), 2u);
    list.setReadonly(0, true);
    EXPECT_EQ(found.size(), 2u);
    list.clear();
    EXPECT_EQ(found, (std::vector{true, true, false}));
}

TEST_P(ExpandingTreeListPrivateTest, WhatChangesIsPainted)
{
    test::expectPaintedAsAnew([&] { press(PK_OK); });
    test::expectPaintedAsAnew([&] { list.setReadonly(1, true); });
    test::expectPaintedAsAnew([&] { list.setReadonly(1, false); });
    test::expectPaintedAsAnew([&] { list.align(); });
    test::expectPaintedAsAnew([&] { list.unalign(); });
    test::expectPaintedAsAnew([&] { list.setTitle("Settings"); });
    test::expectPaintedAsAnew([&] { append("f", 1); });
    test::expectPaintedAsAnew([&] { list.clear(); });
}

TEST_P(ExpandingTreeListPrivateTest, TitleStandsAbove)
{
    list.setTitle("Settings");
    EXPECT_THAT(list.getPrivateImpl()->serialise(), HasSubstr("Settings"));
}

INSTANTIATE_ON_PANELS(ExpandingTreeListPrivateTest);

} // namespace
