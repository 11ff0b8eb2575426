#include "DisplayAPI/DurationText.h"

#include <gtest/gtest.h>

using DisplayAPI::durationText;

TEST(DurationTextTest, HasHoursFromOneHourOn)
{
    EXPECT_EQ(durationText(0), "00:00");
    EXPECT_EQ(durationText(59), "00:59");
    EXPECT_EQ(durationText(60), "01:00");
    EXPECT_EQ(durationText(3'599), "59:59");
    EXPECT_EQ(durationText(3'600), "1:00:00");
    EXPECT_EQ(durationText(36'000 + 61), "10:01:01");
    EXPECT_EQ(durationText(360'000'000), "100000:00:00");
}

TEST(DurationTextTest, BelowZeroIsZero)
{
    EXPECT_EQ(durationText(-1), "00:00");
}
