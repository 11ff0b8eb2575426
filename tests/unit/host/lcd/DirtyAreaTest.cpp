#include "host/lcd/DirtyArea.h"

#include "host/lcd/Geometry.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace host {

namespace {

TEST(DirtyAreaTest, StartsClean)
{
    DirtyArea dirty;
    EXPECT_TRUE(dirty.isEmpty());
    dirty.add({5, 5, 4, 9});
    EXPECT_TRUE(dirty.isEmpty());
}

TEST(DirtyAreaTest, ForgetsWhatIsTaken)
{
    DirtyArea dirty;
    dirty.add({0, 0, 9, 9});
    EXPECT_THAT(dirty.take(), ElementsAre(PegRect{0, 0, 9, 9}));
    EXPECT_TRUE(dirty.isEmpty());
    EXPECT_THAT(dirty.take(), IsEmpty());
}

TEST(DirtyAreaTest, KeepsDistantAreasApart)
{
    DirtyArea dirty;
    dirty.add({0, 0, 9, 9});
    dirty.add({20, 20, 29, 29});
    EXPECT_THAT(dirty.take(), UnorderedElementsAre(PegRect{0, 0, 9, 9}, PegRect{20, 20, 29, 29}));
}

TEST(DirtyAreaTest, JoinsNeighboursThatFillARectangle)
{
    DirtyArea dirty;
    dirty.add({0, 0, 9, 9});
    dirty.add({0, 10, 9, 19});
    EXPECT_THAT(dirty.take(), ElementsAre(PegRect{0, 0, 9, 19}));
}

TEST(DirtyAreaTest, JoinsWhatOverlaps)
{
    DirtyArea dirty;
    dirty.add({0, 0, 9, 9});
    dirty.add({20, 0, 29, 9});
    dirty.add({5, 5, 22, 7});
    EXPECT_THAT(dirty.take(), ElementsAre(PegRect{0, 0, 29, 9}));
}

TEST(DirtyAreaTest, ManyAreasStayFewAndCoverEverything)
{
    DirtyArea dirty;
    for (int i = 0; i < 50; ++i)
        dirty.add(rectAt(i * 4, (i * 7) % 40, 2, 2));
    const auto rects = dirty.take();
    EXPECT_LE(rects.size(), 8U);
    for (int i = 0; i < 50; ++i) {
        const PegRect area = rectAt(i * 4, (i * 7) % 40, 2, 2);
        EXPECT_THAT(rects,
                    testing::Contains(testing::Truly([&](const PegRect& rect) { return contains(rect, area); })));
    }
    for (const PegRect& one : rects) {
        for (const PegRect& other : rects)
            EXPECT_TRUE(one == other || !overlap(one, other));
    }
}

} // namespace

} // namespace host
