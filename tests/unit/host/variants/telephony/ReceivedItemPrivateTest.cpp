#include "kit/DetailsRow.h"
#include "unit/host/variants/telephony/LogRowVariantTest.h"

using namespace DisplayAPI;
using testing::ElementsAre;

namespace {

using Row = kit::DetailsRow<ReceivedItem>;
using ReceivedItemPrivateTest = test::LogRowVariantTest;

TEST_P(ReceivedItemPrivateTest, EachPartOfItHasALine)
{
    auto& row = add<Row>(&ada, "22.11.2026\n10:41", "00:10");
    EXPECT_EQ(shown(), asText("ReceivedItem", "string0:Ada\nstring1:22.11.2026\nstring2:10:41\nstring3:00:10\n"));
    EXPECT_EQ(lookOf(row).lines[0].icon, &host::icons::RECEIVED);
}

TEST_P(ReceivedItemPrivateTest, UnknownCallerFollowsTheLanguage)
{
    auto& row = add<Row>(nullptr, "10:41", "");
    EXPECT_THAT(linesOf(row), ElementsAre("en:Caller.Unknown.XXX", "10:41"));
    changeLanguage("de");
    EXPECT_THAT(linesOf(row), ElementsAre("de:Caller.Unknown.XXX", "10:41"));
}

INSTANTIATE_TEST_SUITE_P(Panel, ReceivedItemPrivateTest, testing::Values(host::Variant::PLAIN, host::Variant::NARROW),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
