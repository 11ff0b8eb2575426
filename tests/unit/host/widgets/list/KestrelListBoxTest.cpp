#include "widgets/KestrelListBox.h"

#include "host/lcd/Geometry.h"
#include "support/RowsOwner.h"
#include "widgets/KestrelListBoxWP1.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using namespace test;

namespace {

class KestrelListBoxTest : public testing::Test {
protected:
    KestrelListBoxTest() { list->setMessageTarget(&target); }

    void press(int key) { list->Message(keyMessage(key)); }

    RowsOwner rows;
    MessageNotes target;
    std::unique_ptr<KestrelListBox> list = std::make_unique<KestrelListBoxWithTitle>();
};

TEST_F(KestrelListBoxTest, HasTheTypeOfItsPanel)
{
    EXPECT_EQ(list->Type(), TYPE_LIST_WITH_TITLE);
    EXPECT_EQ(KestrelListBoxWP1().Type(), TYPE_LIST_WP1);
}

TEST_F(KestrelListBoxTest, TakesThePanelOfItsVariant)
{
    EXPECT_EQ(list->Area(), (PegRect{0, 0, 239, 127}));
    EXPECT_EQ(KestrelListBoxWP1().Area(), (PegRect{0, 0, 207, 41}));
}

TEST_F(KestrelListBoxTest, StartsEmpty)
{
    EXPECT_EQ(list->numItems(), 0);
    EXPECT_EQ(list->currentRow(), -1);
    EXPECT_EQ(list->itemAt(0), nullptr);
}

TEST_F(KestrelListBoxTest, AtItsEndsUpAndDownGoOnToItsParent)
{
    MessageNotes parent;
    parent.Add(list.get());
    rows.append(*list, "ab");
    press(PK_DOWN);
    EXPECT_THAT(parent.take(), IsEmpty());
    press(PK_DOWN);
    press(PK_UP);
    press(PK_UP);
    EXPECT_THAT(parent.take(), ElementsAre(Pair(PM_KEY, PK_DOWN), Pair(PM_KEY, PK_UP)));
    EXPECT_EQ(lettersOf(*list), "[a]b");
    parent.Remove(list.get());
}

TEST_F(KestrelListBoxTest, FirstRowBecomesCurrent)
{
    rows.append(*list, "ab");
    EXPECT_EQ(lettersOf(*list), "[a]b");
}

TEST_F(KestrelListBoxTest, IgnoresNull)
{
    list->append(nullptr);
    list->insert(nullptr, 0);
    list->remove(nullptr);
    list->itemChanged(nullptr);
    EXPECT_EQ(list->numItems(), 0);
    EXPECT_EQ(list->rowOf(nullptr), -1);
}

TEST_F(KestrelListBoxTest, InsertsWithinBounds)
{
    rows.append(*list, "bc");
    list->insert(rows.make("a"), -5);
    list->insert(rows.make("d"), 100);
    list->insert(rows.make("x"), 2);
    EXPECT_EQ(lettersOf(*list), "a[b]xcd");
}

TEST_F(KestrelListBoxTest, AppendedAgainARowMoves)
{
    rows.append(*list, "abc");
    list->append(list->itemAt(0));
    EXPECT_EQ(lettersOf(*list), "[b]ca");
}

TEST_F(KestrelListBoxTest, RowStandsInOneListOnly)
{
    KestrelListBoxWithTitle other;
    rows.append(other, "ab");
    list->append(other.itemAt(0));
    EXPECT_EQ(lettersOf(*list), "[a]");
    EXPECT_EQ(lettersOf(other), "[b]");
}

TEST_F(KestrelListBoxTest, FindsRows)
{
    rows.append(*list, "abcde");
    for (int row = 0; row < 5; ++row)
        EXPECT_EQ(list->rowOf(list->itemAt(row)), row);
    EXPECT_EQ(list->rowOf(rows.make("x")), -1);
}

TEST_F(KestrelListBoxTest, FindsRowsWhileTheyGoFromEitherEnd)
{
    rows.append(*list, "abcdef");
    const auto* third = list->itemAt(2);
    list->remove(list->itemAt(0));
    list->remove(list->itemAt(4));
    EXPECT_EQ(list->rowOf(third), 1);
}

TEST_F(KestrelListBoxTest, CurrentItemStaysWhereRowsComeAndGoAroundIt)
{
    rows.append(*list, "abcd");
    list->setCurrentRow(2);
    list->insert(rows.make("x"), 0);
    EXPECT_EQ(lettersOf(*list), "xab[c]d");
    list->remove(list->itemAt(1));
    list->remove(list->itemAt(3));
    EXPECT_EQ(lettersOf(*list), "xb[c]");
}

TEST_F(KestrelListBoxTest, RemovedCurrentItemHandsOnToTheNextOne)
{
    rows.append(*list, "abc");
    list->setCurrentRow(1);
    list->remove(list->itemAt(1));
    EXPECT_EQ(lettersOf(*list), "a[c]");
    list->remove(list->itemAt(1));
    EXPECT_EQ(lettersOf(*list), "[a]");
    list->remove(list->itemAt(0));
    EXPECT_EQ(list->currentRow(), -1);
}

TEST_F(KestrelListBoxTest, ForeignRowIsNotRemoved)
{
    KestrelListBoxWithTitle other;
    rows.append(other, "a");
    rows.append(*list, "b");
    list->remove(other.itemAt(0));
    EXPECT_EQ(lettersOf(other), "[a]");
    EXPECT_EQ(lettersOf(*list), "[b]");
}

TEST_F(KestrelListBoxTest, ClearLetsRowsLive)
{
    rows.append(*list, "ab");
    auto* first = list->itemAt(0);
    list->clear();
    EXPECT_EQ(list->numItems(), 0);
    EXPECT_EQ(list->currentRow(), -1);
    EXPECT_EQ(textOf(first), "a");
    list->append(first);
    EXPECT_EQ(lettersOf(*list), "[a]");
}

TEST_F(KestrelListBoxTest, RowsOutlivingTheListAreFree)
{
    rows.append(*list, "a");
    auto* row = list->itemAt(0);
    list.reset();
    KestrelListBoxWithTitle other;
    other.append(row);
    EXPECT_EQ(lettersOf(other), "[a]");
}

TEST_F(KestrelListBoxTest, SetCurrentRowIgnoresRowsThatAreNotThereAndTellsNobody)
{
    rows.append(*list, "abc");
    list->setCurrentRow(1);
    list->setCurrentRow(3);
    list->setCurrentRow(-1);
    EXPECT_EQ(lettersOf(*list), "a[b]c");
    EXPECT_THAT(target.take(), IsEmpty());
}

TEST_F(KestrelListBoxTest, UpAndDownMoveAndStopAtTheEnds)
{
    rows.append(*list, "ab");
    press(PK_UP);
    EXPECT_THAT(target.take(), IsEmpty());
    press(PK_DOWN);
    press(PK_DOWN);
    EXPECT_EQ(lettersOf(*list), "a[b]");
    EXPECT_THAT(target.take(), ElementsAre(Pair(PM_CURRENT_CHANGED, 1)));
    press(PK_UP);
    EXPECT_THAT(target.take(), ElementsAre(Pair(PM_CURRENT_CHANGED, 0)));
}

TEST_F(KestrelListBoxTest, TellsWhatTheUserChooses)
{
    rows.append(*list, "abc");
    list->setCurrentRow(2);
    press(PK_OK);
    press(PK_RIGHT);
    press(PK_LEFT);
    EXPECT_THAT(target.take(), ElementsAre(Pair(PM_CLICKED, 2), Pair(PM_RIGHT, 2), Pair(PM_LEFT, 2)));
}

TEST_F(KestrelListBoxTest, EmptyListOnlyGoesLeftAndLeavesTheOtherKeysToTheParent)
{
    MessageNotes parent;
    parent.Add(list.get());
    for (int key : {PK_UP, PK_DOWN, PK_OK, PK_RIGHT, PK_LEFT})
        press(key);
    EXPECT_THAT(target.take(), ElementsAre(Pair(PM_LEFT, -1)));
    EXPECT_THAT(parent.take(),
                ElementsAre(Pair(PM_KEY, PK_UP), Pair(PM_KEY, PK_DOWN), Pair(PM_KEY, PK_OK), Pair(PM_KEY, PK_RIGHT)));
    parent.Remove(list.get());
}

TEST_F(KestrelListBoxTest, LeftGoesToTheParentWhereAskedFor)
{
    MessageNotes parent;
    parent.Add(list.get());
    rows.append(*list, "ab");
    list->setTellsLeft(false);
    press(PK_LEFT);
    EXPECT_THAT(target.take(), IsEmpty());
    EXPECT_THAT(parent.take(), ElementsAre(Pair(PM_KEY, PK_LEFT)));
    parent.Remove(list.get());
}

TEST_F(KestrelListBoxTest, WithoutTargetKeysOnlyMove)
{
    rows.append(*list, "ab");
    list->setMessageTarget(nullptr);
    for (int key : {PK_DOWN, PK_OK, PK_RIGHT, PK_LEFT})
        press(key);
    EXPECT_EQ(lettersOf(*list), "a[b]");
}

TEST_F(KestrelListBoxTest, OtherKeysGoToTheParent)
{
    MessageNotes parent;
    parent.Add(list.get());
    for (int key : {static_cast<int>(PK_0), static_cast<int>(PK_STAR), static_cast<int>(PK_HOOK)})
        press(key);
    EXPECT_THAT(parent.take(), ElementsAre(Pair(PM_KEY, PK_0), Pair(PM_KEY, PK_STAR), Pair(PM_KEY, PK_HOOK)));
    parent.Remove(list.get());
}

TEST_F(KestrelListBoxTest, KeypadGoesToTheTargetWhereAskedFor)
{
    MessageNotes parent;
    parent.Add(list.get());
    list->setTellsKeypad(true);
    for (int key : {static_cast<int>(PK_0), static_cast<int>(PK_HASH), static_cast<int>(PK_HOOK)})
        press(key);
    EXPECT_THAT(target.take(), ElementsAre(Pair(PM_KEY, PK_0), Pair(PM_KEY, PK_HASH)));
    EXPECT_THAT(parent.take(), ElementsAre(Pair(PM_KEY, PK_HOOK)));
    parent.Remove(list.get());
}

TEST_F(KestrelListBoxTest, TargetMayDeleteTheList)
{
    struct Deleter : PegThing {
        int Message(const PegMessage&) override
        {
            list->reset();
            return 0;
        }
        std::unique_ptr<KestrelListBox>* list;
    } deleter;
    deleter.list = &list;
    rows.append(*list, "a");
    list->setMessageTarget(&deleter);
    press(PK_OK);
    EXPECT_EQ(list, nullptr);
}

TEST_F(KestrelListBoxTest, SixRowsAreInViewBelowATitleAndSevenWithoutOne)
{
    rows.append(*list, "abcdefghi");
    EXPECT_TRUE(host::isEmpty(list->rowArea(7)));
    EXPECT_FALSE(host::isEmpty(list->rowArea(6)));
    list->setTitle(ICC::fromUTF8toUNICODE("Title"));
    EXPECT_TRUE(host::isEmpty(list->rowArea(6)));
    EXPECT_FALSE(host::isEmpty(list->rowArea(5)));
}

TEST_F(KestrelListBoxTest, ScrollsTheCurrentRowIntoView)
{
    list->setTitle(ICC::fromUTF8toUNICODE("Title"));
    rows.append(*list, "abcdefghij");
    list->setCurrentRow(7);
    EXPECT_EQ(list->topRow(), 2);
    list->setCurrentRow(4);
    EXPECT_EQ(list->topRow(), 2);
    list->setCurrentRow(1);
    EXPECT_EQ(list->topRow(), 1);
}

TEST_F(KestrelListBoxTest, ViewNeverEndsBelowTheLastRow)
{
    list->setTitle(ICC::fromUTF8toUNICODE("Title"));
    rows.append(*list, "abcdefghij");
    list->setCurrentRow(9);
    while (list->numItems() > 7)
        list->remove(list->itemAt(0));
    EXPECT_EQ(list->topRow(), 1);
    while (list->numItems() > 3)
        list->remove(list->itemAt(0));
    EXPECT_EQ(list->topRow(), 0);
}

TEST_F(KestrelListBoxTest, RowsAboveTheViewDoNotMoveIt)
{
    list->setTitle(ICC::fromUTF8toUNICODE("Title"));
    rows.append(*list, "abcdefghij");
    list->setCurrentRow(9);
    const auto* top = list->itemAt(list->topRow());
    list->insert(rows.make("x"), 0);
    EXPECT_EQ(list->itemAt(list->topRow()), top);
}

TEST_F(KestrelListBoxTest, SmallerAreaKeepsTheCurrentRowInView)
{
    rows.append(*list, "abcdefg");
    list->setCurrentRow(6);
    list->Resize({0, 0, 239, 39});
    EXPECT_EQ(list->topRow(), 5);
    list->Resize({0, 0, 239, 5});
    EXPECT_TRUE(host::isEmpty(list->rowArea(6)));
}

TEST_F(KestrelListBoxTest, InAnExclusiveListTheCurrentRowAloneIsMarked)
{
    rows.append(*list, "abc");
    auto* first = list->itemAt(0);
    auto* second = list->itemAt(1);
    EXPECT_FALSE(first->isMarked());
    list->setExclusive(true);
    EXPECT_TRUE(first->isMarked());
    press(PK_DOWN);
    EXPECT_FALSE(first->isMarked());
    EXPECT_TRUE(second->isMarked());
    list->remove(second);
    EXPECT_FALSE(second->isMarked());
    EXPECT_TRUE(list->itemAt(1)->isMarked());
}

TEST_F(KestrelListBoxTest, InsertedRowsLeaveTheMarkWhereItIs)
{
    list->setExclusive(true);
    rows.append(*list, "ab");
    list->insert(rows.make("x"), 0);
    EXPECT_FALSE(list->itemAt(0)->isMarked());
    EXPECT_TRUE(list->itemAt(1)->isMarked());
    EXPECT_FALSE(list->itemAt(2)->isMarked());
}

TEST_F(KestrelListBoxTest, TickerTakesTheLastRowsPlace)
{
    rows.append(*list, "abcdefghi");
    list->setTitle(ICC::fromUTF8toUNICODE("Title"));
    EXPECT_TRUE(host::isEmpty(list->tickerArea()));
    list->setTickerShown(true);
    EXPECT_EQ(list->tickerArea(), (PegRect{0, 111, 239, 127}));
    EXPECT_FALSE(host::isEmpty(list->rowArea(4)));
    EXPECT_TRUE(host::isEmpty(list->rowArea(5)));
    list->setTickerShown(false);
    EXPECT_FALSE(host::isEmpty(list->rowArea(5)));
}

TEST_F(KestrelListBoxTest, TickerKeepsTheCurrentRowInView)
{
    rows.append(*list, "abcdefg");
    list->setCurrentRow(6);
    list->setTickerShown(true);
    EXPECT_FALSE(host::isEmpty(list->rowArea(6)));
}

TEST_F(KestrelListBoxTest, OnTwoLinesTheTickerTakesTheTitlesPlace)
{
    KestrelListBoxWP1 twoLines;
    rows.append(twoLines, "ab");
    twoLines.setTickerShown(true);
    EXPECT_EQ(twoLines.tickerArea(), (PegRect{9, 0, 200, 18}));
    EXPECT_EQ(twoLines.rowArea(0).top, 21);
    EXPECT_TRUE(host::isEmpty(twoLines.rowArea(1)));
}

} // namespace
