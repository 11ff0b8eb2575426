#include "DisplayAPI/CallLogMainItem.h"

#include "unit/host/variants/telephony/LogRowVariantTest.h"
#include "widgets/KestrelListBoxWithTitle.h"

using namespace DisplayAPI;
using namespace host::icons;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using CallLogMainItemPrivateTest = test::LogRowVariantTest;

TEST_P(CallLogMainItemPrivateTest, ShowsPartyAndText)
{
    add<CallLogMainItem>(&ada, "10:41", CallLogMainItem::ICON_MISSED, true, true);
    EXPECT_EQ(shown(), asText("CallLogMainItem", "string0:Ada\nstring1:10:41\n"));
}

TEST_P(CallLogMainItemPrivateTest, PartyIsNameOrNumberOrUnknown)
{
    for (const auto& [party, text] : {std::pair(&ada, "Ada"),
                                      {&number, "4712"},
                                      {&nobody, "en:Caller.Unknown.XXX"},
                                      {nullptr, "en:Caller.Unknown.XXX"}})
        EXPECT_THAT(linesOf(add<CallLogMainItem>(party, "", 0, false, false)), ElementsAre(text));
}

TEST_P(CallLogMainItemPrivateTest, UnknownFollowsTheLanguageAndNamesDoNot)
{
    auto& unknown = add<CallLogMainItem>(nullptr, "10:41", 1, true, true);
    auto& known = add<CallLogMainItem>(&ada, "10:42", 1, true, true);
    const host::LinesLook before = lookOf(known);
    changeLanguage("de");
    EXPECT_THAT(linesOf(unknown), ElementsAre("de:Caller.Unknown.XXX"));
    EXPECT_EQ(endOf(unknown), "10:41");
    EXPECT_EQ(lookOf(known), before);
}

TEST_P(CallLogMainItemPrivateTest, UnknownIsTranslatedByWhoeverTranslatesNow)
{
    DisplayablePrivate::commonTranslator = nullptr;
    auto& unknown = add<CallLogMainItem>(nullptr, "10:41", 1, true, true);
    EXPECT_THAT(linesOf(unknown), ElementsAre("Caller.Unknown.XXX"));
    DisplayablePrivate::commonTranslator = &dictionary;
    changeLanguage("de");
    EXPECT_THAT(linesOf(unknown), ElementsAre("de:Caller.Unknown.XXX"));
}

TEST_P(CallLogMainItemPrivateTest, EachIconHasItsPictureAndUnknownOnesNone)
{
    const std::vector<const host::Icon*> icons{nullptr,    &DIALLED,   &MISSED_CALL, &RECEIVED,
                                               &FORWARDED, &FORWARDED, &NO_ENTRY,    &BELL_OFF};
    for (int icon = 0; icon < static_cast<int>(icons.size()); ++icon)
        EXPECT_EQ(lookOf(add<CallLogMainItem>(&ada, "", icon, false, false)).lines.front().icon,
                  icons[static_cast<std::size_t>(icon)])
            << icon;
    for (const int icon : {-1, 8, 77})
        EXPECT_EQ(lookOf(add<CallLogMainItem>(&ada, "", icon, false, false)).lines.front().icon, nullptr);
}

TEST_P(CallLogMainItemPrivateTest, NewOnesAreBoldUntilTheyAreNot)
{
    auto& entry = add<CallLogMainItem>(&ada, "10:41", 1, true, false);
    EXPECT_TRUE(lookOf(entry).lines.front().bold);
    entry.setbold(false);
    EXPECT_FALSE(lookOf(entry).lines.front().bold);
    EXPECT_FALSE(lookOf(add<CallLogMainItem>(&ada, "", 1, false, false)).lines.front().bold);
    entry.setbold(true);
    EXPECT_TRUE(lookOf(entry).lines.front().bold);
    EXPECT_THAT(linesOf(entry), ElementsAre("Ada"));
}

TEST_P(CallLogMainItemPrivateTest, MarkTellsOfMore)
{
    EXPECT_THAT(lookOf(add<CallLogMainItem>(&ada, "", 1, true, true)).marks, ElementsAre(&MORE));
    EXPECT_THAT(lookOf(add<CallLogMainItem>(&ada, "", 1, true, false)).marks, IsEmpty());
}

TEST_P(CallLogMainItemPrivateTest, RowThatIsReleasedIsNotDeletedWithItsSide)
{
    std::unique_ptr<KestrelListBoxItem> row;
    {
        CallLogMainItem entry(&ada, "", 1, false, false);
        entry.getPrivateImpl()->releaseOwnership();
        row.reset(entry.getPrivateImpl()->getKestrelListItem());
    }
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(row->DataGet()), "Ada");
}

TEST_P(CallLogMainItemPrivateTest, RowThatIsTakenBackGoesWithItsSide)
{
    KestrelListBoxWithTitle box;
    {
        CallLogMainItem entry(&ada, "", 1, false, false);
        box.append(entry.getPrivateImpl()->getKestrelListItem());
        entry.getPrivateImpl()->releaseOwnership();
        entry.getPrivateImpl()->gainOwnership();
    }
    EXPECT_EQ(box.numItems(), 0);
}

INSTANTIATE_ON_PANELS(CallLogMainItemPrivateTest);

} // namespace
