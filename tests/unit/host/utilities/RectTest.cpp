#include "utilities/Rect.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace {

using DisplayAPIUtils::Rect;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Rect, EdgesBelongToIt)
{
    const Rect rect(3, 4, 10, 20);
    EXPECT_EQ(rect.left(), 3);
    EXPECT_EQ(rect.top(), 4);
    EXPECT_EQ(rect.right(), 12);
    EXPECT_EQ(rect.bottom(), 23);
}

TEST(Rect, NeighboursDoNotOverlap)
{
    const Rect rect(0, 0, 10, 10);
    EXPECT_TRUE(rect.Overlap({9, 9, 1, 1}));
    EXPECT_FALSE(rect.Overlap({10, 0, 5, 5}));
    EXPECT_FALSE(rect.Overlap({0, 10, 5, 5}));
}

TEST(Rect, EmptyOneOverlapsNothing)
{
    EXPECT_FALSE(Rect().Overlap({0, 0, 10, 10}));
    EXPECT_FALSE(Rect(0, 0, 10, 10).Overlap({5, 5, 0, 3}));
}

TEST(Rect, CutKeepsWhatIsShared)
{
    Rect rect(0, 0, 10, 10);
    rect &= Rect(5, 6, 10, 10);
    EXPECT_EQ(rect, Rect(5, 6, 5, 4));
}

TEST(Rect, CutWithoutSharedPartHasNoSize)
{
    Rect rect(0, 0, 10, 10);
    rect &= Rect(20, 20, 5, 5);
    EXPECT_EQ(rect.width(), 0);
    EXPECT_EQ(rect.height(), 0);
}

TEST(Rect, SubtractGoesRoundAHoleTopBottomLeftRight)
{
    EXPECT_THAT(Rect(0, 0, 10, 10).subtract({{2, 3, 4, 5}}),
                ElementsAre(Rect(0, 0, 10, 3), Rect(0, 8, 10, 2), Rect(0, 3, 2, 5), Rect(6, 3, 4, 5)));
}

TEST(Rect, SubtractOfNothingIsTheWhole)
{
    EXPECT_THAT(Rect(1, 2, 3, 4).subtract({}), ElementsAre(Rect(1, 2, 3, 4)));
    EXPECT_THAT(Rect(1, 2, 3, 4).subtract({{50, 50, 1, 1}}), ElementsAre(Rect(1, 2, 3, 4)));
}

TEST(Rect, SubtractOfACoverIsNothing)
{
    EXPECT_THAT(Rect(1, 2, 3, 4).subtract({{0, 0, 10, 10}}), IsEmpty());
    EXPECT_THAT(Rect().subtract({}), IsEmpty());
}

using Grid = std::array<std::array<int, 24>, 24>;

void count(Grid& grid, const Rect& rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y)
        for (int x = rect.left(); x <= rect.right(); ++x)
            ++grid.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x));
}

TEST(Rect, SubtractLeavesEachUncoveredPixelExactlyOnce)
{
    std::mt19937 random(1);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned int>(limit)); };
    for (int round = 0; round < 500; ++round) {
        const Rect whole(below(8), below(8), below(16), below(16));
        std::vector<Rect> covers;
        Grid covered{};
        for (int cover = below(4); cover >= 0; --cover) {
            covers.emplace_back(below(12), below(12), below(12), below(12));
            count(covered, covers.back());
        }
        Grid expected{};
        count(expected, whole);
        for (std::size_t y = 0; y < expected.size(); ++y)
            for (std::size_t x = 0; x < expected.size(); ++x)
                expected[y][x] = expected[y][x] != 0 && covered[y][x] == 0 ? 1 : 0;
        Grid actual{};
        for (const Rect& piece : whole.subtract(covers))
            count(actual, piece);
        ASSERT_EQ(actual, expected) << "round " << round;
    }
}

} // namespace
