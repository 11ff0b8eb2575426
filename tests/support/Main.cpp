#include "support/Watchdog.h"

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    testing::UnitTest::GetInstance()->listeners().Append(new test::Watchdog(test::Watchdog::usualLimit()));
    return RUN_ALL_TESTS();
}
