#include "widgets/Peg_TreeListItem.h"

#include "host/lcd/Lcd.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/RowsOwner.h"
#include "support/RunningToolkit.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gtest/gtest.h>

#include <map>

namespace {

/// A tree a(b(c) d) e in a list, made of what the letters name.
class PegTreeListItemTest : public testing::Test { // NOLINT(readability-identifier-naming)
protected:
    PegTreeListItemTest()
    {
        item("a").append(item("b"));
        item("b").append(item("c"));
        item("a").append(item("d"));
        list.append(&item("a"));
        list.append(&item("e"));
    }

    Peg_TreeListItem& item(const std::string& letter)
    {
        auto& place = mItems[letter];
        if (place == nullptr)
            place = std::make_unique<Peg_TreeListItem>(ICC::fromUTF8toUNICODE(letter));
        return *place;
    }

    void destroy(const std::string& letter) { mItems.erase(letter); }

    std::string shown() const { return test::lettersOf(list); }

    test::StartedToolkit toolkit;
    KestrelListBoxWithTitle list;

private:
    std::map<std::string, std::unique_ptr<Peg_TreeListItem>> mItems;
};

TEST_F(PegTreeListItemTest, IsClosedAtFirst)
{
    EXPECT_EQ(shown(), "[a]e");
    EXPECT_FALSE(item("a").isOpen());
    EXPECT_TRUE(item("a").canBeOpened());
    EXPECT_FALSE(item("e").canBeOpened());
}

TEST_F(PegTreeListItemTest, OpeningShowsWhatStandsBelowAndWhatIsOpenThere)
{
    item("a").setOpen(true);
    EXPECT_EQ(shown(), "[a]bde");
    item("a").setOpen(false);
    item("b").setOpen(true);
    EXPECT_EQ(shown(), "[a]e");
    item("a").setOpen(true);
    EXPECT_EQ(shown(), "[a]bcde");
}

TEST_F(PegTreeListItemTest, ClosingTakesTheCurrentRowAlong)
{
    item("a").setAllOpen(true);
    list.setCurrentRow(2);
    ASSERT_EQ(shown(), "ab[c]de");
    item("a").setOpen(false);
    EXPECT_EQ(shown(), "[a]e");
    list.setCurrentRow(1);
    item("a").setOpen(true);
    item("a").setOpen(false);
    EXPECT_EQ(shown(), "a[e]");
}

TEST_F(PegTreeListItemTest, AllBelowOpensAndCloses)
{
    item("a").setAllOpen(true);
    EXPECT_EQ(shown(), "[a]bcde");
    item("a").setAllOpen(false);
    item("a").setOpen(true);
    EXPECT_EQ(shown(), "[a]bde");
}

TEST_F(PegTreeListItemTest, NewRowIsShownWhereItsParentIsOpen)
{
    item("b").append(item("f"));
    EXPECT_EQ(shown(), "[a]e");
    item("a").setAllOpen(true);
    item("b").append(item("g"));
    item("a").append(item("h"));
    EXPECT_EQ(shown(), "[a]bcfgdhe");
}

TEST_F(PegTreeListItemTest, BranchThatIsOpenAlreadyIsShownWithAllOfIt)
{
    item("x").append(item("y"));
    item("x").setOpen(true);
    item("a").setOpen(true);
    item("a").append(item("x"));
    EXPECT_EQ(shown(), "[a]bdxye");
}

TEST_F(PegTreeListItemTest, OneThatIsOpenBeforeItHasAnythingShowsWhatComes)
{
    item("e").setOpen(true);
    EXPECT_FALSE(item("e").showsChildren());
    item("e").append(item("f"));
    EXPECT_EQ(shown(), "[a]ef");
}

TEST_F(PegTreeListItemTest, WayBackStandsBehindTheRowsWhileTheyAreShown)
{
    item("a").setWayBack(true);
    EXPECT_EQ(shown(), "[a]e");
    item("a").setOpen(true);
    EXPECT_EQ(shown(), "[a]bd←e");
    item("a").append(item("f"));
    item("b").setOpen(true);
    EXPECT_EQ(shown(), "[a]bcdf←e");
    item("a").setWayBack(false);
    EXPECT_EQ(shown(), "[a]bcdfe");
    item("a").setWayBack(true);
    item("a").setOpen(false);
    EXPECT_EQ(shown(), "[a]e");
}

TEST_F(PegTreeListItemTest, WayBackIsAlignedWithTheRowsWhileItStandsThere)
{
    item("a").setWayBack(true);
    item("a").setOpen(true);
    gpPresent->Add(&list);
    const auto left = [](const std::string& beginning) {
        host::Lcd::current()->paint();
        for (const host::TextRun& run : host::Lcd::current()->picture().texts)
            if (run.text.starts_with(beginning))
                return static_cast<int>(run.area.left);
        return -1;
    };
    const int indented = left("d");
    EXPECT_EQ(left("←"), indented);
    for (const bool aligned : {true, false}) {
        for (const char* row : {"a", "b", "d"})
            item(row).setAligned(aligned);
        EXPECT_EQ(left("d") < indented, aligned);
        EXPECT_EQ(left("←"), left("d"));
    }
}

TEST_F(PegTreeListItemTest, WayBackOfTheLastBranchIsBeforeTheNextOneAbove)
{
    item("a").setWayBack(true);
    item("d").setWayBack(true);
    item("d").append(item("f"));
    item("a").setAllOpen(true);
    EXPECT_EQ(shown(), "[a]bcdf←←e");
    EXPECT_EQ(item("f").row(), 4);
    const auto* const inner = dynamic_cast<Peg_TreeListItem*>(list.itemAt(5));
    ASSERT_NE(inner, nullptr);
    EXPECT_TRUE(inner->isWayBack());
    EXPECT_EQ(inner->parent(), &item("d"));
    EXPECT_FALSE(item("d").isWayBack());
}

TEST_F(PegTreeListItemTest, EmptyBranchHasNoWayBack)
{
    item("e").setWayBack(true);
    item("e").setOpen(true);
    EXPECT_EQ(shown(), "[a]e");
    item("e").append(item("f"));
    EXPECT_EQ(shown(), "[a]ef←");
    destroy("f");
    EXPECT_EQ(shown(), "[a]e");
}

TEST_F(PegTreeListItemTest, DestroyedOneLeavesListAndParentAndWhatStandsBelowIsFree)
{
    item("a").setAllOpen(true);
    destroy("b");
    EXPECT_EQ(shown(), "[a]de");
    EXPECT_EQ(item("c").parent(), nullptr);
    EXPECT_EQ(item("c").row(), -1);
    destroy("a");
    EXPECT_EQ(shown(), "[e]");
    EXPECT_EQ(item("d").parent(), nullptr);
}

TEST_F(PegTreeListItemTest, LevelIsHowManyStandAbove)
{
    EXPECT_EQ(item("a").level(), 0);
    EXPECT_EQ(item("d").level(), 1);
    EXPECT_EQ(item("c").level(), 2);
}

TEST_F(PegTreeListItemTest, InactiveAndProtectedOnesAreNotForTheUserToOpen)
{
    item("a").setInactive(true);
    EXPECT_FALSE(item("a").canBeOpened());
    item("a").setInactive(false);
    item("a").setProtected(true);
    EXPECT_FALSE(item("a").canBeOpened());
    item("a").setOpen(true);
    EXPECT_EQ(shown(), "[a]bde");
}

} // namespace
