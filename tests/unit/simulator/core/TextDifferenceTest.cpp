#include "simulator/core/TextDifference.h"

#include <gtest/gtest.h>

namespace {

using simulator::areAlike;
using simulator::textDifference;

TEST(TextDifference, SameTextsDoNotDiffer)
{
    EXPECT_EQ(textDifference("", ""), "");
    EXPECT_EQ(textDifference("a\nb\n", "a\nb\n"), "");
    EXPECT_EQ(textDifference("a\nb", "a\nb\n"), "") << "an editor has left out the last line feed";
}

TEST(TextDifference, ChangedLineIsExpectedAndActual)
{
    EXPECT_EQ(textDifference("a\nb\nc\n", "a\nx\nc\n"), "- b\n+ x\n");
}

TEST(TextDifference, MissingAndAdditionalLines)
{
    EXPECT_EQ(textDifference("a\nb\nc\n", "a\nc\n"), "- b\n");
    EXPECT_EQ(textDifference("a\nc\n", "a\nb\nc\n"), "+ b\n");
    EXPECT_EQ(textDifference("a\n", ""), "- a\n");
    EXPECT_EQ(textDifference("", "a\n"), "+ a\n");
}

TEST(TextDifference, SameLinesBetweenAreToldOnce)
{
    EXPECT_EQ(textDifference("1\na\nb\n2\nend\n", "3\na\nb\nend\n"), "- 1\n+ 3\n  a\n  b\n- 2\n");
}

TEST(TextDifference, BlanksAndEmptyLinesCount)
{
    EXPECT_EQ(textDifference("a\n\nb\n", "a\nb\n"), "- \n");
    EXPECT_EQ(textDifference("a \n", "a\n"), "- a \n+ a\n");
}

TEST(TextDifference, CarriageReturnsAtTheEndsOfLinesDoNotCount)
{
    EXPECT_EQ(textDifference("a\r\nb\r\n", "a\nb\n"), "");
    EXPECT_EQ(textDifference("a\r\nb\r", "a\nb"), "");
    EXPECT_EQ(textDifference("a\r\nb\r\n", "a\nx\n"), "- b\n+ x\n");
    EXPECT_NE(textDifference("a\rb\n", "ab\n"), "");
}

TEST(TextDifference, VolatileTextsAreSkipped)
{
    EXPECT_EQ(textDifference("volatile:09:12\n", "volatile:09:13\n"), "");
    EXPECT_EQ(textDifference("volatile:\n", "volatile:09:13\n"), "");
}

TEST(TextDifference, VolatileTextHasToBeOnBothSides)
{
    EXPECT_EQ(textDifference("volatile:09:12\n", ""), "- volatile:09:12\n");
    EXPECT_EQ(textDifference("volatile:09:12\n", "string0:09:12\n"), "- volatile:09:12\n+ string0:09:12\n");
    EXPECT_EQ(textDifference("string0:09:12\n", "volatile:09:12\n"), "- string0:09:12\n+ volatile:09:12\n");
}

TEST(TextDifference, VolatileTextsCountWhereTheyAreAskedFor)
{
    using enum simulator::VolatileLines;
    EXPECT_EQ(textDifference("volatile:1\n", "volatile:2\n", COUNT), "- volatile:1\n+ volatile:2\n");
    EXPECT_FALSE(areAlike("a\nvolatile:1\n", "a\nvolatile:2\n", COUNT));
    EXPECT_TRUE(areAlike("a\r\nvolatile:1\n", "a\nvolatile:2", MAY_DIFFER));
    EXPECT_FALSE(areAlike("a\nb\n", "a\n", MAY_DIFFER));
}

} // namespace
