#include "simulator/core/Regex.h"

#include <gtest/gtest.h>

namespace {

using simulator::Regex;

TEST(Regex, PartOfTheTextMatches)
{
    EXPECT_TRUE(Regex("[0-9]+ calls?").isIn("there are 12 calls"));
    EXPECT_TRUE(Regex("^Zo.$").isIn("Zoë"));
    EXPECT_TRUE(Regex("name:List\\nstring0").isIn("name:List\nstring0:A"));
    EXPECT_FALSE(Regex("^calls").isIn("12 calls"));
}

TEST(Regex, WhatIsNoneSaysWhy)
{
    EXPECT_EQ(Regex("(a|b)").error(), "");
    EXPECT_EQ(Regex("(a").error(), "missing ): (a");
    EXPECT_FALSE(Regex("(a").isIn("(a"));
}

TEST(Regex, OneThatIsTooLargeIsRefused)
{
    std::string nested = "\\pL";
    for (int i = 0; i < 3; ++i)
        nested = "(" + nested + "){1000}";
    EXPECT_NE(Regex(nested).error(), "");
}

TEST(Regex, OneThatGoesBackAndForthIsFoundAllTheSame)
{
    EXPECT_FALSE(Regex("(a+)+$").isIn(std::string(60, 'a') + "b"));
    EXPECT_TRUE(Regex("(a|aa)+$").isIn(std::string(60, 'a')));
    EXPECT_TRUE(Regex("(.|\\n)*b").isIn(std::string(100'000, 'a') + "b"));
}

} // namespace
