#include "simulator/script/Threads.h"

#include "support/Gate.h"

#include <atomic>
#include <gtest/gtest.h>
#include <semaphore>
#include <thread>

namespace {

using simulator::othersAreAtRest;
using test::becomesTrue;
using test::Gate;

TEST(Threads, SleepingOnesAreAtRest)
{
    Gate gate;
    std::jthread sleeper([&] { EXPECT_TRUE(gate.wait()); });
    EXPECT_TRUE(becomesTrue(othersAreAtRest));
    gate.open();
}

TEST(Threads, BusyOneIsNotAtRest)
{
    std::atomic<bool> runs = false;
    std::jthread busy([&](const std::stop_token& stop) {
        while (!stop.stop_requested())
            runs = true;
    });
    ASSERT_TRUE(becomesTrue([&] { return runs.load(); }));
    for (int look = 0; look < 100; ++look)
        ASSERT_FALSE(othersAreAtRest());
}

TEST(Threads, OnesThatWakeEachOtherAreNotAtRest)
{
    using Turn = std::counting_semaphore<>;
    Turn ping(1);
    Turn pong(0);
    const auto play = [](const std::stop_token& stop, Turn& mine, Turn& other) {
        while (!stop.stop_requested()) {
            mine.acquire();
            other.release();
        }
    };
    std::jthread one(play, std::ref(ping), std::ref(pong));
    std::jthread other(play, std::ref(pong), std::ref(ping));
    for (int look = 0; look < 100; ++look)
        EXPECT_FALSE(othersAreAtRest());
    one.request_stop();
    other.request_stop();
    ping.release();
    pong.release();
}

} // namespace
