#include "host/frontend/FrontEnd.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

void startWith(const char* host)
{
    setenv("DISPLAYAPI_HOST", host, 1);
    host::startFrontEnd();
    host::stopFrontEnd();
    unsetenv("DISPLAYAPI_HOST");
}

TEST(FrontEnd, HeadlessIsNone)
{
    startWith("headless");
    startWith("");
}

TEST(FrontEnd, StoppingWithoutStartDoesNothing)
{
    host::stopFrontEnd();
}

TEST(FrontEnd, UnknownOneEndsTheProcessWithAReason)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const char* host : {"paper", "web", "paper:80", ":80"})
        EXPECT_EXIT(startWith(host), testing::ExitedWithCode(1),
                    "DISPLAYAPI_HOST is .*headless, web:PORT or script:FILE")
            << host;
}

} // namespace
