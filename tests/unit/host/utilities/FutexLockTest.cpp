#include "host/utilities/FutexLock.h"

#include <gtest/gtest.h>
#include <mutex>
#include <thread>
#include <vector>

namespace {

TEST(FutexLock, KeepsOtherThreadsOut)
{
    host::FutexLock lock;
    constexpr int ROUNDS = 50'000;
    constexpr int THREADS = 4;
    int counter = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < THREADS; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < ROUNDS; ++round) {
                std::lock_guard guard(lock);
                ++counter;
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counter, THREADS * ROUNDS);
}

TEST(FutexLock, WakesASleeper)
{
    for (int round = 0; round < 1'000; ++round) {
        host::FutexLock lock;
        bool entered = false;
        lock.lock();
        std::thread other([&] {
            std::lock_guard guard(lock);
            entered = true;
        });
        for (int pause = 0; pause < round % 50; ++pause)
            std::this_thread::yield();
        lock.unlock();
        other.join();
        ASSERT_TRUE(entered);
    }
}

} // namespace
