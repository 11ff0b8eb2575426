#include "simulator/script/Threads.h"

#include "support/Gate.h"

#include <array>
#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <sched.h>
#include <semaphore>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using simulator::OtherThreads;
using test::becomesTrue;
using test::Gate;

TEST(Threads, SleepingOnesAreAtRest)
{
    Gate gate;
    std::jthread sleeper([&] { EXPECT_TRUE(gate.wait()); });
    OtherThreads others;
    EXPECT_TRUE(becomesTrue([&] { return others.areAtRest(); }));
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
    OtherThreads others;
    for (int look = 0; look < 100; ++look)
        ASSERT_FALSE(others.areAtRest());
}

/// As a thread waits for a disk, so one waits for the end of what it has cloned.
TEST(Threads, OneThatCannotBeInterruptedIsNotAtRest)
{
    std::array<int, 2> begun, go;
    ASSERT_EQ(pipe(begun.data()), 0);
    ASSERT_EQ(pipe(go.data()), 0);
    char byte = 0;
    std::jthread waits([&] {
        const long child = syscall(SYS_clone, CLONE_VFORK | SIGCHLD, 0, 0, 0, 0);
        if (child == 0) {
            const bool isAsked = write(begun[1], &byte, 1) == 1 && read(go[0], &byte, 1) == 1;
            _exit(isAsked ? 0 : 1);
        }
        EXPECT_EQ(waitpid(static_cast<pid_t>(child), nullptr, 0), child);
    });
    ASSERT_EQ(read(begun[0], &byte, 1), 1);
    OtherThreads others;
    for (int look = 0; look < 100; ++look)
        EXPECT_FALSE(others.areAtRest());
    ASSERT_EQ(write(go[1], &byte, 1), 1);
    waits.join();
    for (const int file : {begun[0], begun[1], go[0], go[1]})
        close(file);
}

TEST(Threads, OnesThatComeAndGoAreLookedAtToo)
{
    Gate gate;
    std::jthread sleeper([&] { EXPECT_TRUE(gate.wait()); });
    OtherThreads others;
    EXPECT_TRUE(becomesTrue([&] { return others.areAtRest(); }));
    for (int round = 0; round < 10; ++round) {
        std::atomic<bool> runs = false;
        std::jthread busy([&](const std::stop_token& stop) {
            while (!stop.stop_requested())
                runs = true;
        });
        ASSERT_TRUE(becomesTrue([&] { return runs.load(); }));
        ASSERT_FALSE(others.areAtRest());
        busy.request_stop();
        busy.join();
        if (round % 2 == 0) { // otherwise the next one has come when it is looked again
            ASSERT_TRUE(becomesTrue([&] { return others.areAtRest(); }));
        }
    }
    gate.open();
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
    OtherThreads others;
    for (int look = 0; look < 100; ++look)
        EXPECT_FALSE(others.areAtRest());
    one.request_stop();
    other.request_stop();
    ping.release();
    pong.release();
}

} // namespace
