#include "toolkit/PString.h"

#include <gtest/gtest.h>
#include <utility>

namespace {

constexpr PegChar HELLO[] = {'H', 'e', 'l', 'l', 'o', 0};

TEST(PString, EmptyOneHasLengthZeroAndATerminatedArray)
{
    const PegString text;
    EXPECT_EQ(text.length(), 0u);
    EXPECT_TRUE(text.empty());
    ASSERT_NE(text.data(), nullptr);
    EXPECT_EQ(text.data()[0], 0);
}

TEST(PString, NullTextIsEmpty)
{
    EXPECT_TRUE(PegString(nullptr).empty());
    EXPECT_TRUE(PegString(nullptr, 3).empty());
}

TEST(PString, TextEndsAtItsZero)
{
    const PegString text(HELLO);
    EXPECT_EQ(text.length(), 5u);
    EXPECT_EQ(text.data()[4], 'o');
    EXPECT_EQ(text.data()[5], 0);
}

TEST(PString, LengthCountsNotTheZeroInside)
{
    const PegChar withZero[] = {'a', 0, 'b'};
    const PegString text(withZero, 3);
    EXPECT_EQ(text.length(), 3u);
    EXPECT_EQ(text.data()[2], 'b');
    EXPECT_EQ(text.data()[3], 0);
}

TEST(PString, CopyIsIndependent)
{
    PegString original(HELLO);
    const PegString copy = original;
    original = PegString();
    EXPECT_TRUE(copy == PegString(HELLO));
    EXPECT_TRUE(original.empty());
}

TEST(PString, MovedFromIsEmpty)
{
    PegString original(HELLO);
    const PegString moved = std::move(original);
    EXPECT_EQ(moved.length(), 5u);
    EXPECT_TRUE(original.empty()); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(original.data()[0], 0);
}

TEST(PString, SelfAssignmentKeepsTheText)
{
    PegString text(HELLO);
    const PegString& same = text;
    text = same;
    EXPECT_TRUE(text == PegString(HELLO));
}

TEST(PString, EqualityNeedsLengthAndCharacters)
{
    EXPECT_TRUE(PegString(HELLO) == PegString(HELLO, 5));
    EXPECT_FALSE(PegString(HELLO) == PegString(HELLO, 4));
    const PegChar other[] = {'H', 'a', 'l', 'l', 'o', 0};
    EXPECT_FALSE(PegString(HELLO) == PegString(other));
}

} // namespace
