#include "kit/DetailsRow.h"
#include "unit/host/variants/telephony/LogRowVariantTest.h"

using namespace DisplayAPI;
using namespace host::icons;
using testing::ElementsAre;

namespace {

using Row = kit::DetailsRow<ForwardedItem>;

class ForwardedItemPrivateTest : public test::LogRowVariantTest {
protected:
    Row& addForwarded(CallPartyIdentifier* caller, CallPartyIdentifier* target, std::string when)
    {
        auto* const row = new Row(caller, target, when);
        list.append(row);
        return *row;
    }
};

TEST_P(ForwardedItemPrivateTest, EachPartOfItHasALine)
{
    auto& row = addForwarded(&ada, &number, "22.11.2026\n10:41");
    EXPECT_EQ(shown(), asText("ForwardedItem", "string0:Ada\nstring1:4712\nstring2:22.11.2026\nstring3:10:41\n"));
    EXPECT_EQ(lookOf(row).lines[0].icon, &FORWARDED);
    EXPECT_EQ(lookOf(row).lines[1].icon, &FORWARD);
}

TEST_P(ForwardedItemPrivateTest, UnknownPartiesFollowTheLanguage)
{
    auto& row = addForwarded(nullptr, &nobody, "10:41");
    EXPECT_THAT(linesOf(row), ElementsAre("en:Caller.Unknown.XXX", "en:Caller.Unknown.XXX", "10:41"));
    changeLanguage("de");
    EXPECT_THAT(linesOf(row), ElementsAre("de:Caller.Unknown.XXX", "de:Caller.Unknown.XXX", "10:41"));
}

TEST_P(ForwardedItemPrivateTest, WithoutATargetThereIsNoLineOfIt)
{
    EXPECT_THAT(linesOf(addForwarded(&ada, nullptr, "10:41")), ElementsAre("Ada", "10:41"));
}

TEST_P(ForwardedItemPrivateTest, IsAForwardedCall)
{
    EXPECT_EQ(addForwarded(&ada, nullptr, "").details().iconType(), CallLogMainItem::ICON_FORWARDED);
}

INSTANTIATE_TEST_SUITE_P(Panel, ForwardedItemPrivateTest, testing::Values(host::Variant::PLAIN, host::Variant::NARROW),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
