#include "support/Watchdog.h"

#include <gmock/gmock.h>

#include <cstdio>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    testing::UnitTest::GetInstance()->listeners().Append(new test::Watchdog(test::Watchdog::usualLimit()));
    const int result = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() > 0)
        return result;
    std::fputs("no test has this name\n", stderr);
    return 1;
}
