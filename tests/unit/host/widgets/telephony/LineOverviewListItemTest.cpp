#include "widgets/LineOverviewListItem.h"

#include "host/Phone.h"
#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Motion.h"
#include "support/RowsOwner.h"
#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"
#include "widgets/KestrelListBoxWP1.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gmock/gmock.h>

#include <functional>
#include <set>

using testing::ElementsAre;
using namespace test;

namespace {

PegString letters(const char* text)
{
    return ICC::fromUTF8toUNICODE(text);
}

class LineOverviewListItemTest : public VirtualTime, public testing::Test {
protected:
    LineOverviewListItemTest() { row.setName(letters("Office")); }

    ~LineOverviewListItemTest() override
    {
        host::Motion::reduce(false);
        host::setVariant(host::Variant::PLAIN);
    }

    /// In a list above another row, as the panel's only widget.
    void show(host::Variant variant = host::Variant::PLAIN)
    {
        host::setVariant(variant);
        toolkit = std::make_unique<StartedToolkit>();
        if (variant == host::Variant::WP1)
            list = new KestrelListBoxWP1;
        else
            list = new KestrelListBoxWithTitle;
        list->append(&row);
        list->append(&below);
        gpPresent->Add(list);
    }

    int height() const { return host::heightOf(list->rowArea(0)); }
    int topBelow() const { return list->rowArea(1).top - list->rowArea(0).top; }

    std::vector<std::string> texts() const
    {
        std::vector<std::string> all;
        for (const PegString& text : row.describe().texts)
            all.push_back(ICC::fromUNICODEtoUTF8(text));
        return all;
    }

    static std::vector<std::uint8_t> pixels()
    {
        host::Lcd::current()->paint();
        return host::Lcd::current()->picture().pixels;
    }

    std::unique_ptr<StartedToolkit> toolkit;
    KestrelListBox* list = nullptr; ///< the manager's
    LineOverviewListItem row;
    KestrelListBoxItem below{letters("below")};
};

TEST_F(LineOverviewListItemTest, TellsPrefixAndNameAndThenTheIdentity)
{
    row.setNamePrefix(letters("Line 1"));
    row.setIdentity(letters("4711"));
    EXPECT_EQ(row.describe().name, "LineOverviewListItem");
    EXPECT_THAT(texts(), ElementsAre("Line 1 Office", "4711"));
    EXPECT_EQ(textOf(&row), "Office");
}

TEST_F(LineOverviewListItemTest, PrefixWithoutANameStandsAlone)
{
    row.setNamePrefix(letters("Line 1"));
    row.setName(PegString());
    EXPECT_THAT(texts(), ElementsAre("Line 1"));
}

TEST_F(LineOverviewListItemTest, IdentityIsASecondLineThatMovesWhatStandsBelow)
{
    show();
    const int line = height();
    row.setIdentity(letters("4711"));
    EXPECT_EQ(topBelow(), 2 * line);
    row.setIdentity(letters("4712"));
    EXPECT_EQ(topBelow(), 2 * line);
    row.setIdentity(PegString());
    EXPECT_EQ(topBelow(), line);
}

TEST_F(LineOverviewListItemTest, CurrentRowStaysInViewWhenItGrows)
{
    show();
    RowsOwner rows;
    rows.append(*list, "abcde");
    const int last = list->numItems() - 1;
    list->setCurrentRow(last);
    ASSERT_FALSE(host::isEmpty(list->rowArea(last)));
    row.setIdentity(letters("4711"));
    EXPECT_FALSE(host::isEmpty(list->rowArea(last)));
}

/// What the list tells whoever hears it of its rows.
class RowChanges : public PegThing {
public:
    int Message(const PegMessage& message) override
    {
        count += message.wType == PM_ROW_CHANGED ? 1 : 0;
        return 0;
    }

    int count = 0;
};

TEST_F(LineOverviewListItemTest, ListIsToldOnceOfAllThatHasChangedAndNotOfWhatBlinks)
{
    show();
    RowChanges changes;
    list->setMessageTarget(&changes);
    row.setIdentity(letters("4711"));
    row.setName(letters("Lab"));
    row.setHighlighted(true);
    EXPECT_EQ(changes.count, 0);
    row.tell();
    EXPECT_EQ(changes.count, 1);
    pass(2'000);
    row.setName(letters("Lab"));
    row.tell();
    EXPECT_EQ(changes.count, 1);
    list->setMessageTarget(nullptr);
}

TEST_F(LineOverviewListItemTest, OnTwoLinesTheIdentityStandsOnTheFirst)
{
    show(host::Variant::WP1);
    const int line = height();
    row.setIdentity(letters("4711"));
    EXPECT_EQ(topBelow(), line);
    EXPECT_THAT(texts(), ElementsAre("Office", "4711"));
}

/// Each of what it can be told by itself.
TEST_F(LineOverviewListItemTest, EverythingItIsToldIsSeenAndGoesAgain)
{
    const auto blank = letters("");
    const std::vector<std::pair<std::function<void()>, std::function<void()>>> changes{
        {[&] { row.setName(letters("Lab")); }, [&] { row.setName(letters("Office")); }},
        {[&] { row.setNamePrefix(letters("1")); }, [&] { row.setNamePrefix(blank); }},
        {[&] { row.setIdentity(letters("4711")); }, [&] { row.setIdentity(blank); }},
        {[&] { row.setHDIcon(true); }, [&] { row.setHDIcon(false); }},
        {[&] { row.setDimmed(true); }, [&] { row.setDimmed(false); }},
        {[&] { row.setHighlighted(true); }, [&] { row.setHighlighted(false); }}};
    show();
    list->setCurrentRow(1);
    const auto before = pixels();
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i].first();
        EXPECT_NE(pixels(), before) << i;
        changes[i].second();
        EXPECT_EQ(pixels(), before) << i;
    }
}

TEST_F(LineOverviewListItemTest, EachSignLooksDifferent)
{
    show();
    std::set<std::vector<std::uint8_t>> looks;
    for (int sign = LineOverviewListItem::NO_SIGN; sign <= LineOverviewListItem::HAS_FAILED; ++sign) {
        row.setSign(static_cast<LineOverviewListItem::Sign>(sign));
        EXPECT_TRUE(looks.insert(pixels()).second) << sign;
    }
}

TEST_F(LineOverviewListItemTest, BlinksWhileItIsHighlighted)
{
    show();
    row.setHighlighted(true);
    const auto lit = pixels();
    pass(499);
    EXPECT_EQ(pixels(), lit);
    pass(1);
    EXPECT_NE(pixels(), lit);
    pass(500);
    EXPECT_EQ(pixels(), lit);
    row.setHighlighted(false);
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(LineOverviewListItemTest, ShinesWithoutBlinkingWhereLessMotionIsWanted)
{
    show();
    host::Motion::reduce(true);
    row.setHighlighted(true);
    const auto lit = pixels();
    pass(500);
    EXPECT_EQ(pixels(), lit);
}

TEST_F(LineOverviewListItemTest, HighlightedAgainBlinksOnInItsTime)
{
    show();
    row.setHighlighted(true);
    const auto lit = pixels();
    pass(300);
    row.setHighlighted(true);
    pass(200);
    EXPECT_NE(pixels(), lit);
}

} // namespace
