#include "utilities/CriticalSection.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

TEST(CriticalSection, SameThreadMayEnterAgain)
{
    CriticalSection section;
    section.enter();
    section.enter();
    section.leave();
    section.leave();
}

TEST(CriticalSection, KeepsOtherThreadsOut)
{
    CriticalSection section;
    constexpr int ROUNDS = 20'000;
    int counter = 0;
    const auto count = [&] {
        for (int round = 0; round < ROUNDS; ++round) {
            section.enter();
            section.enter();
            ++counter;
            section.leave();
            section.leave();
        }
    };
    std::thread other(count);
    count();
    other.join();
    EXPECT_EQ(counter, 2 * ROUNDS);
}

} // namespace
