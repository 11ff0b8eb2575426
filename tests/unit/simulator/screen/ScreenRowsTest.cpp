#include "simulator/screen/ScreenRows.h"

#include "toolkit/PegThing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using host::TextRun;
using simulator::describe;
using simulator::rowsOf;
using simulator::ScreenRow;
using simulator::shows;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ScreenRows, EmptyPanelHasNone)
{
    EXPECT_THAT(rowsOf({}), IsEmpty());
}

TEST(ScreenRows, RowsFollowEachOther)
{
    const std::vector<TextRun> texts = {{{0, 0, 99, 19}, "Title"}, {{0, 20, 99, 37}, "First", true}};
    EXPECT_THAT(rowsOf(texts), ElementsAre(ScreenRow{"Title", false, "Title"}, ScreenRow{"First", true, "First"}));
}

TEST(ScreenRows, WhatStandsSideBySideIsOneRow)
{
    const std::vector<TextRun> texts = {{{0, 0, 49, 15}, "Volume"}, {{60, 2, 99, 12}, "70 %", true}};
    EXPECT_THAT(rowsOf(texts), ElementsAre(ScreenRow{"Volume  70 %", true, "Volume  70 %"}));
}

TEST(ScreenRows, ClockIsNotWhatLastsOfARow)
{
    const TextRun clock{.area = {60, 2, 99, 12}, .text = "09:41", .runs = true};
    EXPECT_THAT(rowsOf({{{0, 0, 49, 15}, "Line 1"}, clock}), ElementsAre(ScreenRow{"Line 1  09:41", false, "Line 1"}));
    EXPECT_THAT(rowsOf({clock, {{110, 0, 149, 15}, "Line 1"}}),
                ElementsAre(ScreenRow{"09:41  Line 1", false, "Line 1"}));
    EXPECT_THAT(rowsOf({clock}), ElementsAre(ScreenRow{"09:41", false, ""}));
}

TEST(ScreenRows, TickersTextLastsWhileItRuns)
{
    const TextRun ticker{.area = {0, 0, 99, 15}, .text = "Welcome!", .runs = true, .widget = TYPE_TICKER};
    EXPECT_THAT(rowsOf({ticker}), ElementsAre(ScreenRow{"Welcome!", false, "Welcome!"}));
}

TEST(ScreenRows, DescriptionMarksTheSelectedRow)
{
    EXPECT_EQ(describe({{"Title", false}, {"First", true}}), "  Title\n> First\n");
}

TEST(ScreenRows, ShowsAPartOfARow)
{
    EXPECT_TRUE(shows({{"Title", false}, {"First", true}}, "irs"));
    EXPECT_FALSE(shows({{"Title", false}, {"First", true}}, "TitleFirst"));
}

} // namespace
