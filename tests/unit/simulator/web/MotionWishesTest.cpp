#include "simulator/web/MotionWishes.h"

#include "host/lcd/Motion.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

using host::Motion;
using simulator::MotionWishes;

constexpr int ONE = 1;
constexpr int OTHER = 2;

TEST(MotionWishes, OneThatWantsLessIsEnough)
{
    MotionWishes wishes;
    EXPECT_FALSE(Motion::isReduced());
    wishes.wish(&ONE, false);
    EXPECT_FALSE(Motion::isReduced());
    wishes.wish(&OTHER, true);
    EXPECT_TRUE(Motion::isReduced());
    wishes.wish(&ONE, true);
    wishes.wish(&OTHER, false);
    EXPECT_TRUE(Motion::isReduced());
    wishes.wish(&ONE, false);
    EXPECT_FALSE(Motion::isReduced());
}

TEST(MotionWishes, WhoLeavesWantsNothing)
{
    MotionWishes wishes;
    wishes.wish(&ONE, true);
    wishes.leave(&OTHER);
    EXPECT_TRUE(Motion::isReduced());
    wishes.leave(&ONE);
    EXPECT_FALSE(Motion::isReduced());
}

TEST(MotionWishes, NothingOutlivesThePages)
{
    std::optional<MotionWishes> wishes(std::in_place);
    wishes->wish(&ONE, true);
    wishes.reset();
    EXPECT_FALSE(Motion::isReduced());
}

} // namespace
