#include "DisplayAPI/Rectangles.h"

#include <gtest/gtest.h>

using namespace DisplayAPI;
using DisplayAPIUtils::Rect;

TEST(RectanglesTest, LastRowAndColumnBelongToARectangle)
{
    EXPECT_EQ(toRect({2, 3, 11, 22}), Rect(2, 3, 10, 20));
    EXPECT_EQ(toPegRect(Rect(2, 3, 10, 20)), (PegRect{2, 3, 11, 22}));
}

TEST(RectanglesTest, EmptyOnesStayEmpty)
{
    EXPECT_EQ(toRect({0, 0, -1, -1}), Rect(0, 0, 0, 0));
    EXPECT_EQ(toPegRect(Rect(5, 5, 0, 0)), (PegRect{5, 5, 4, 4}));
}

TEST(RectanglesTest, CoordinatesAreCutToTheToolkits)
{
    EXPECT_EQ(toPegRect(Rect(-100000, 0, 1000000, 10)), (PegRect{-32768, 0, 32767, 9}));
}

TEST(RectanglesTest, ContainsWhatLiesInsideEdgesIncluded)
{
    const Rect outer(10, 10, 20, 20);
    EXPECT_TRUE(contains(outer, outer));
    EXPECT_TRUE(contains(outer, Rect(11, 12, 3, 4)));
    for (const Rect& beyond : {Rect(9, 10, 20, 20), Rect(10, 9, 20, 20), Rect(10, 10, 21, 20), Rect(10, 10, 20, 21)})
        EXPECT_FALSE(contains(outer, beyond));
}

TEST(RectanglesTest, IsVisibleWhereAPixelIsShared)
{
    const PegRect area{10, 10, 19, 19};
    EXPECT_TRUE(isVisible(area, {Rect(0, 0, 5, 5), Rect(19, 19, 1, 1)}));
    EXPECT_FALSE(isVisible(area, {Rect(20, 0, 5, 100), Rect(0, 0, 10, 10)}));
    EXPECT_FALSE(isVisible(area, {}));
}
