#include "apps/examples/TwoLineRow.h"
#include "support/RowsOwner.h"
#include "widgets/KestrelListBoxWP1.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gmock/gmock.h>

#include <functional>

using examples::TwoLineRow;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using namespace test;

namespace {

constexpr int HEIGHT = 18;
constexpr int TOP = 1; ///< of the rows: seven of them stand in the middle of the panel

/// Rows of different heights, with marks and keys of their own.
class RowKindsTest : public testing::Test {
protected:
    RowKindsTest() { list.setMessageTarget(&target); }

    TwoLineRow& appendTwoLines(const char* first)
    {
        twoLines.push_back(std::make_unique<TwoLineRow>(letters(first), letters("second")));
        list.append(twoLines.back().get());
        return *twoLines.back();
    }

    /// "1" appends a row of one line, "2" of two.
    void append(const std::string& heights)
    {
        for (const char height : heights) {
            if (height == '1')
                list.append(rows.make("a"));
            else
                appendTwoLines("b");
        }
    }

    static PegString letters(const char* text) { return ICC::fromUTF8toUNICODE(text); }

    /// Where the row begins and ends, in rows of one line from the top.
    std::pair<double, double> place(int row)
    {
        const PegRect area = list.rowArea(row);
        return {(area.top - TOP) / double(HEIGHT), (area.bottom + 1 - TOP) / double(HEIGHT)};
    }

    bool isInView(int row) { return !host::isEmpty(list.rowArea(row)); }
    void press(int key) { list.Message(keyMessage(key)); }

    RowsOwner rows;
    std::vector<std::unique_ptr<TwoLineRow>> twoLines;
    MessageNotes target;
    KestrelListBoxWithTitle list;
};

TEST_F(RowKindsTest, StandBelowEachOtherWhateverTheirHeight)
{
    append("1212");
    EXPECT_THAT(place(0), Pair(0, 1));
    EXPECT_THAT(place(1), Pair(1, 3));
    EXPECT_THAT(place(2), Pair(3, 4));
    EXPECT_THAT(place(3), Pair(4, 6));
    EXPECT_FALSE(isInView(4));
}

TEST_F(RowKindsTest, OnlyWholeOnesAreInView)
{
    append("22221");
    EXPECT_TRUE(isInView(2));
    EXPECT_FALSE(isInView(3));
}

TEST_F(RowKindsTest, CurrentOneIsScrolledIntoViewAsAWhole)
{
    append("1112222111");
    list.setCurrentRow(5);
    EXPECT_EQ(list.topRow(), 2);
    EXPECT_THAT(place(5), Pair(5, 7));
    list.setCurrentRow(1);
    EXPECT_EQ(list.topRow(), 1);
}

TEST_F(RowKindsTest, ViewEndsWithTheLastOne)
{
    append("2222222");
    list.setCurrentRow(6);
    EXPECT_EQ(list.topRow(), 4);
    while (list.numItems() > 4)
        list.remove(list.itemAt(0));
    EXPECT_EQ(list.topRow(), 1);
    list.remove(list.itemAt(0));
    EXPECT_EQ(list.topRow(), 0);
}

TEST_F(RowKindsTest, CurrentOneThatGrowsStaysInView)
{
    append("111111");
    TwoLineRow& last = appendTwoLines("z");
    last.open(false);
    EXPECT_TRUE(isInView(6));
    list.setCurrentRow(6);
    EXPECT_EQ(list.topRow(), 0);
    last.open(true);
    EXPECT_EQ(list.topRow(), 1);
    EXPECT_THAT(place(6), Pair(5, 7));
}

TEST_F(RowKindsTest, OneThatIsHigherThanTheListIsCut)
{
    append("2");
    list.Resize({0, 0, 239, HEIGHT});
    EXPECT_EQ(list.rowArea(0).top, 0);
    EXPECT_EQ(list.rowArea(0).bottom, HEIGHT - 1);
    list.Resize({0, 0, 239, 5});
    EXPECT_FALSE(isInView(0));
}

TEST_F(RowKindsTest, KeysGoToTheCurrentOneFirst)
{
    append("1");
    TwoLineRow& row = appendTwoLines("b");
    MessageNotes parent;
    parent.Add(&list);
    press(PK_STAR);
    EXPECT_THAT(parent.take(), ElementsAre(Pair(PM_KEY, PK_STAR)));
    press(PK_DOWN);
    target.take();
    press(PK_STAR);
    press(PK_OK);
    EXPECT_TRUE(row.isChecked());
    EXPECT_THAT(parent.take(), IsEmpty());
    EXPECT_THAT(target.take(), ElementsAre(Pair(PM_CLICKED, 1)));
    parent.Remove(&list);
}

TEST_F(RowKindsTest, KeyMayDeleteTheRow)
{
    struct Leaving : KestrelListBoxItem {
        using KestrelListBoxItem::KestrelListBoxItem;

        bool key(int) override
        {
            delete this;
            return true;
        }
    };
    list.append(new Leaving{PegString()});
    press(PK_OK);
    EXPECT_EQ(list.numItems(), 0);
    EXPECT_THAT(target.take(), IsEmpty());
}

TEST_F(RowKindsTest, DescribeThemselves)
{
    EXPECT_EQ(rows.make("a")->describe().name, "KestrelListBoxItem");
    TwoLineRow& row = appendTwoLines("b");
    EXPECT_THAT(row.describe().texts, ElementsAre(letters("b"), letters("second")));
    row.open(false);
    EXPECT_THAT(row.describe().texts, ElementsAre(letters("b")));
}

/// A row that counts how often it is asked for its height.
class Asked : public KestrelListBoxItem {
public:
    explicit Asked(int& count) : KestrelListBoxItem(PegString()), mCount(count) {}

    int heightIn(const Layout& layout) const override
    {
        ++mCount;
        return layout.rowHeight;
    }

private:
    int& mCount;
};

TEST_F(RowKindsTest, OnlyThoseAroundTheViewAreAskedForTheirHeight)
{
    constexpr int ROWS = 20'000;
    constexpr int FEW = 50;
    int asked = 0;
    std::vector<std::unique_ptr<Asked>> many;
    for (int row = 0; row < ROWS; ++row) {
        many.push_back(std::make_unique<Asked>(asked));
        list.append(many.back().get());
    }
    EXPECT_LT(asked, ROWS * FEW);
    const auto count = [&](const std::function<void()>& operation) {
        asked = 0;
        operation();
        return asked;
    };
    EXPECT_LT(count([&] { list.setCurrentRow(ROWS / 2); }), FEW);
    EXPECT_LT(count([&] { press(PK_DOWN); }), FEW);
    EXPECT_LT(count([&] { list.remove(list.itemAt(10)); }), FEW);
    EXPECT_LT(count([&] { list.insert(many[10].get(), ROWS / 2); }), FEW);
    EXPECT_LT(count([&] { list.setTitle(letters("Title")); }), FEW);
    EXPECT_LT(count([&] { list.rowArea(list.topRow() + 3); }), FEW);
    list.clear();
}

} // namespace
