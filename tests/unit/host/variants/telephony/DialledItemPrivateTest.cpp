#include "kit/DetailsRow.h"
#include "unit/host/variants/telephony/LogRowVariantTest.h"

using namespace DisplayAPI;
using namespace host::icons;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Row = kit::DetailsRow<DialledItem>;
using DialledItemPrivateTest = test::LogRowVariantTest;

TEST_P(DialledItemPrivateTest, EachPartOfItHasALine)
{
    auto& row = add<Row>(&ada, &number, "22.11.2026\n10:41", "00:10", true);
    EXPECT_EQ(shown(), asText("DialledItem", "string0:Ada\nstring1:4712\nstring2:22.11.2026\nstring3:10:41\n"
                                             "string4:00:10\n"));
    const auto& lines = lookOf(row).lines;
    EXPECT_EQ(lines[0].icon, &DIALLED);
    EXPECT_EQ(lines[1].icon, &FORWARD);
    EXPECT_EQ(lines[2].icon, nullptr);
    EXPECT_THAT(lookOf(row).marks, IsEmpty());
}

TEST_P(DialledItemPrivateTest, WhatIsNotThereHasNoLine)
{
    EXPECT_THAT(linesOf(add<Row>(&ada, nullptr, "10:41", "", true)), ElementsAre("Ada", "10:41"));
    EXPECT_THAT(linesOf(add<Row>(nullptr, nullptr, "", "", true)), ElementsAre("en:Caller.Unknown.XXX"));
}

TEST_P(DialledItemPrivateTest, CallThatNobodyAnsweredHasAMark)
{
    EXPECT_THAT(lookOf(add<Row>(&ada, nullptr, "10:41", "", false)).marks, ElementsAre(&BELL_OFF));
}

TEST_P(DialledItemPrivateTest, UnknownPartiesFollowTheLanguage)
{
    auto& row = add<Row>(&nobody, &nobody, "10:41", "00:10", true);
    changeLanguage("de");
    EXPECT_THAT(linesOf(row), ElementsAre("de:Caller.Unknown.XXX", "de:Caller.Unknown.XXX", "10:41", "00:10"));
}

TEST_P(DialledItemPrivateTest, IsADialledCall)
{
    EXPECT_EQ(add<Row>(&ada, nullptr, "", "", true).details().iconType(), CallLogMainItem::ICON_DIALLED);
}

INSTANTIATE_TEST_SUITE_P(Panel, DialledItemPrivateTest, testing::Values(host::Variant::PLAIN, host::Variant::NARROW),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
