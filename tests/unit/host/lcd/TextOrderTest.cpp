#include "host/lcd/TextOrder.h"

#include <gmock/gmock.h>

using host::Caret;
using host::TextOrder;
using testing::ElementsAreArray;

namespace {

struct Walk {
    std::u16string text;
    std::vector<std::size_t> toTheLeft;  ///< where the cursor stands after each step, from the right end
    std::vector<std::size_t> toTheRight; ///< and back
};

/// By hand. Arabic letters are counted as they are read.
const std::vector<Walk> WALKS{
    {u"", {}, {}},
    {u"abc", {2, 1, 0}, {1, 2, 3}},
    {u"12", {1, 0}, {1, 2}},
    {u"\u0627\u0628\u062A", {1, 2, 3}, {2, 1, 0}},
    // Arabic with digits: the digits are read from the left
    {u"\u0627\u0628\u062A 12 \u062B", {1, 2, 3, 4, 5, 4, 7, 8}, {7, 6, 5, 6, 3, 2, 1, 0}},
    // Latin with an Arabic word
    {u"ab \u0627\u0628\u062A c", {7, 6, 4, 5, 6, 2, 1, 0}, {1, 2, 3, 5, 4, 3, 7, 8}},
    // Arabic with a Latin word
    {u"\u0627 PC \u0628", {1, 2, 3, 2, 5, 6}, {5, 4, 3, 4, 1, 0}},
    // marks belong to their letter
    {u"e\u0301a", {2, 0}, {2, 3}},
    {u"\u0628\u064E\u062A", {2, 3}, {2, 0}},
    // Hebrew with a number at its end
    {u"\u05E9\u05DC 57", {1, 2, 3, 4, 3}, {4, 5, 2, 1, 0}},
    {u"\u304B\u306A", {1, 0}, {1, 2}},
    // what is no character is one
    {u"a\xD83D"
     u"b",
     {2, 1, 0},
     {1, 2, 3}},
};

using Step = std::optional<Caret> (TextOrder::*)(const Caret&) const;

/// Until the line ends.
std::vector<std::size_t> walk(const TextOrder& order, Caret& caret, Step step)
{
    std::vector<std::size_t> places;
    while (const std::optional<Caret> next = (order.*step)(caret)) {
        caret = *next;
        places.push_back(caret.at);
        if (places.size() > 100)
            break;
    }
    return places;
}

} // namespace

TEST(TextOrderTest, CursorGoesAsTheKeysPoint)
{
    for (const Walk& expected : WALKS) {
        SCOPED_TRACE(testing::PrintToString(expected.text));
        const TextOrder order(expected.text);
        Caret caret{expected.text.size(), true};
        walk(order, caret, &TextOrder::toTheRight);
        EXPECT_THAT(walk(order, caret, &TextOrder::toTheLeft), ElementsAreArray(expected.toTheLeft));
        EXPECT_THAT(walk(order, caret, &TextOrder::toTheRight), ElementsAreArray(expected.toTheRight));
    }
}

TEST(TextOrderTest, LineBeginsAtTheRightWhereItsFirstLetterIsReadFromThere)
{
    EXPECT_FALSE(TextOrder(u"").isFromTheRight());
    EXPECT_FALSE(TextOrder(u"12").isFromTheRight());
    EXPECT_FALSE(TextOrder(u"a \u0627").isFromTheRight());
    EXPECT_TRUE(TextOrder(u"12 \u0627 a").isFromTheRight());
}

TEST(TextOrderTest, CharactersAreWholeWithTheirMarks)
{
    const TextOrder order(u"ae\u0301\u0323b");
    EXPECT_EQ(order.before(0), 0u);
    EXPECT_EQ(order.before(1), 0u);
    EXPECT_EQ(order.before(4), 1u);
    EXPECT_EQ(order.before(5), 4u);
    EXPECT_EQ(order.behind(0), 1u);
    EXPECT_EQ(order.behind(1), 4u);
    EXPECT_EQ(order.behind(4), 5u);
    EXPECT_EQ(order.behind(5), 5u);
}
