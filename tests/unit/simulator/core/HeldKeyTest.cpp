#include "simulator/core/HeldKey.h"

#include <gmock/gmock.h>

namespace {

using simulator::pausesOfHeld;
using testing::ElementsAre;

TEST(HeldKey, OneThatMovesThroughAListGoesOn)
{
    EXPECT_THAT(pausesOfHeld(PK_DOWN, 650), ElementsAre(500, 100, 50));
    EXPECT_THAT(pausesOfHeld(PK_UP, 700), ElementsAre(500, 100, 100, 0));
    EXPECT_THAT(pausesOfHeld(PK_UP, 499), ElementsAre(499));
}

TEST(HeldKey, AnotherOneIsPressedOnce)
{
    EXPECT_THAT(pausesOfHeld(PK_OK, 60'000), ElementsAre(60'000));
    EXPECT_THAT(pausesOfHeld(PK_OK, 0), ElementsAre(0));
}

} // namespace
