#include "host/drawing/PangoThreads.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>
#include <string>
#include <thread>

namespace host {

namespace {

std::string ownName()
{
    char name[16] = {};
    pthread_getname_np(pthread_self(), name, sizeof name);
    return name;
}

TEST(PangoThreadsTest, WaitsForThreadsStartedMeanwhile)
{
    const auto ended = std::make_shared<std::atomic<bool>>(false);
    {
        const PangoThreads threads;
        std::thread([ended] {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            *ended = true;
        }).detach();
    }
    PangoThreads::await();
    EXPECT_TRUE(*ended);
}

TEST(PangoThreadsTest, GivesTheCallerItsNameBack)
{
    const std::string before = ownName();
    {
        const PangoThreads threads;
        EXPECT_EQ(ownName(), "[pango]");
    }
    EXPECT_EQ(ownName(), before);
}

} // namespace

} // namespace host
