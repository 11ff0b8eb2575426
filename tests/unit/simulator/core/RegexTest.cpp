#include "simulator/core/Regex.h"

#include <gtest/gtest.h>

namespace {

using simulator::Regex;

TEST(Regex, PartOfTheTextMatches)
{
    EXPECT_TRUE(Regex("[0-9]+ calls?").isIn("there are 12 calls"));
    EXPECT_TRUE(Regex("^Zo.$").isIn("Zoë"));
    EXPECT_FALSE(Regex("^calls").isIn("12 calls"));
}

TEST(Regex, WhatIsNoneSaysWhy)
{
    EXPECT_EQ(Regex("(a|b)").error(), "");
    EXPECT_EQ(Regex("(a").error(), "U_REGEX_MISMATCHED_PAREN");
    EXPECT_FALSE(Regex("(a").isIn("(a"));
}

TEST(Regex, OneThatWouldTakeForEverFindsNothing)
{
    EXPECT_FALSE(Regex("(a+)+$").isIn(std::string(60, 'a') + "b"));
    EXPECT_FALSE(Regex("(.|\\n)*b").isIn(std::string(4'000'000, 'a')));
}

} // namespace
