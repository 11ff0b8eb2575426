#include "simulator/screen/ScreenRows.h"

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
    EXPECT_THAT(rowsOf(texts), ElementsAre(ScreenRow{"Title", false}, ScreenRow{"First", true}));
}

TEST(ScreenRows, WhatStandsSideBySideIsOneRow)
{
    const std::vector<TextRun> texts = {{{0, 0, 49, 15}, "Volume"}, {{60, 2, 99, 12}, "70 %", true}};
    EXPECT_THAT(rowsOf(texts), ElementsAre(ScreenRow{"Volume  70 %", true}));
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
