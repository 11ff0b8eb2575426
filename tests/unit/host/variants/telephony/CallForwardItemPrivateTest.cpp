#include "DisplayAPI/CallForwardItem.h"

#include "unit/host/variants/telephony/LogRowVariantTest.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using namespace host::icons;
using testing::ElementsAre;

namespace {

class CallForwardItemPrivateTest : public test::LogRowVariantTest {
protected:
    CallForwardItem& addRow(CallLogMainItem::IconType icon = CallLogMainItem::ICON_FORWARDING_BUSY)
    {
        return add<CallForwardItem>(icon, "Busy", false, false);
    }

    static KestrelListBoxItem& itemOf(CallForwardItem& row) { return *row.getPrivateImpl()->getKestrelListItem(); }

    TranslationInfo outside{"Outside", &dictionary}, inside{"Inside", &dictionary}, nowhere{"Nowhere", &dictionary};
};

constexpr TranslationInfo* NO_TEXT = nullptr;

} // namespace

TEST_P(CallForwardItemPrivateTest, HasACheckMarkThatItsOperationsTurn)
{
    CallForwardItem& row = addRow();
    EXPECT_TRUE(itemOf(row).hasMark());
    EXPECT_FALSE(row.getCheck());
    row.check();
    row.check();
    EXPECT_TRUE(row.getCheck());
    row.swapCheck();
    EXPECT_FALSE(row.getCheck());
    row.swapCheck();
    EXPECT_TRUE(row.getCheck());
    row.uncheck();
    EXPECT_FALSE(row.getCheck());
}

TEST_P(CallForwardItemPrivateTest, ObserverIsToldOfEachTurnOfTheMark)
{
    CallForwardItem& row = addRow();
    EXPECT_EQ(changesBy([&] { row.check(); }), 1);
    EXPECT_EQ(changesBy([&] { row.check(); }), 0);
    EXPECT_EQ(changesBy([&] { row.swapCheck(); }), 1);
}

TEST_P(CallForwardItemPrivateTest, BeginsAsItIsMade)
{
    auto& row = add<CallForwardItem>(CallLogMainItem::ICON_FORWARDING_ALWAYS, &nowhere, true, true);
    EXPECT_TRUE(row.getCheck());
    EXPECT_TRUE(itemOf(row).hasMark());
    EXPECT_TRUE(lookOf(row).dimmed);
    EXPECT_EQ(row.iconType(), CallLogMainItem::ICON_FORWARDING_ALWAYS);
    auto& plain = add<CallForwardItem>(&nowhere);
    EXPECT_FALSE(plain.getCheck());
    EXPECT_FALSE(lookOf(plain).dimmed);
    EXPECT_EQ(plain.iconType(), CallLogMainItem::NO_ICON);
    EXPECT_THAT(linesOf(plain), ElementsAre("en:Nowhere"));
}

TEST_P(CallForwardItemPrivateTest, MainTextIsTheOneSetLastInWhicheverForm)
{
    CallForwardItem& row = addRow();
    row.setTextMain(&nowhere);
    EXPECT_THAT(linesOf(row), ElementsAre("en:Nowhere"));
    row.setTextMain("4711");
    EXPECT_EQ(row.getText(), "4711");
    EXPECT_EQ(row.ListItem::getText(), "4711");
    row.setTextMain(NO_TEXT);
    EXPECT_EQ(row.getText(), "");
}

TEST_P(CallForwardItemPrivateTest, BranchesStandInTheirOrderBelow)
{
    CallForwardItem& row = addRow();
    row.setTextBranch(&nowhere, &inside, CallForwardItem::BRANCH_LINE_2);
    row.setTextBranch("4711", &outside, CallForwardItem::BRANCH_LINE_1);
    row.setTextBranch("4712", NO_TEXT, static_cast<CallForwardItem::eCallForwardBranchLine>(77));
    if (isSmall())
        EXPECT_THAT(linesOf(row), ElementsAre("Busy", "en:Outside 4711, en:Inside en:Nowhere, 4712"));
    else
        EXPECT_THAT(linesOf(row), ElementsAre("Busy", "en:Outside 4711", "en:Inside en:Nowhere", "4712"));
}

TEST_P(CallForwardItemPrivateTest, BranchOfNoTextTakesNoRoom)
{
    CallForwardItem& row = addRow();
    row.setTextBranch("4711", &outside, CallForwardItem::BRANCH_LINE_1);
    row.setTextBranch("", &inside, CallForwardItem::BRANCH_LINE_1);
    EXPECT_THAT(linesOf(row), ElementsAre("Busy", "en:Inside"));
    row.setTextBranch(NO_TEXT, NO_TEXT, CallForwardItem::BRANCH_LINE_1);
    EXPECT_THAT(linesOf(row), ElementsAre("Busy"));
}

TEST_P(CallForwardItemPrivateTest, BranchesAreTakenAway)
{
    CallForwardItem& row = addRow();
    row.setTextBranch("4711", &outside, CallForwardItem::BRANCH_LINE_1);
    row.cleanBranches();
    EXPECT_THAT(linesOf(row), ElementsAre("Busy"));
}

TEST_P(CallForwardItemPrivateTest, TranslationsFollowTheLanguage)
{
    auto& row = add<CallForwardItem>(&nowhere);
    row.setTextBranch("4711", &outside, CallForwardItem::BRANCH_LINE_1);
    changeLanguage("de");
    EXPECT_THAT(linesOf(row), ElementsAre("de:Nowhere", "de:Outside 4711"));
    dictionary.language = "fr:";
    row.localeChanged("fr");
    EXPECT_THAT(linesOf(row), ElementsAre("fr:Nowhere", "fr:Outside 4711"));
}

TEST_P(CallForwardItemPrivateTest, ReadOnlyOneIsGreyAndHasItsMarkWhereThatIsSaid)
{
    CallForwardItem& row = addRow();
    for (const bool mark : {true, false}) {
        row.setReadonly(true, mark);
        EXPECT_TRUE(lookOf(row).dimmed);
        EXPECT_EQ(itemOf(row).hasMark(), mark);
        row.check();
        EXPECT_TRUE(row.getCheck());
        row.setReadonly(false, mark);
        EXPECT_FALSE(lookOf(row).dimmed);
        EXPECT_TRUE(itemOf(row).hasMark());
    }
}

TEST_P(CallForwardItemPrivateTest, IconIsShownUntilItIsNot)
{
    CallForwardItem& row = addRow();
    EXPECT_EQ(lookOf(row).lines.front().icon, &NO_ENTRY);
    row.setCFIconVisible(false);
    EXPECT_EQ(lookOf(row).lines.front().icon, nullptr);
    EXPECT_FALSE(lookOf(row).hasIcons);
    EXPECT_EQ(row.iconType(), CallLogMainItem::ICON_FORWARDING_BUSY);
    row.setCFIconVisible(true);
    EXPECT_EQ(lookOf(row).lines.front().icon, &NO_ENTRY);
}

TEST_P(CallForwardItemPrivateTest, UnknownIconsAreNone)
{
    for (const int icon : {-1, 0, 8, 77})
        EXPECT_FALSE(lookOf(addRow(static_cast<CallLogMainItem::IconType>(icon))).hasIcons) << icon;
}

TEST_P(CallForwardItemPrivateTest, ToolkitRowGoesWithWhoeverOwnsIt)
{
    std::unique_ptr<KestrelListBoxItem> item;
    {
        CallForwardItem row(&nowhere);
        row.getPrivateImpl()->releaseOwnership();
        item.reset(&itemOf(row));
    }
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(item->DataGet()), "en:Nowhere");
    CallForwardItem row(&nowhere);
    row.getPrivateImpl()->releaseOwnership();
    row.getPrivateImpl()->gainOwnership(); // or else it leaks
}

INSTANTIATE_ON_PANELS(CallForwardItemPrivateTest);
