#pragma once

#include "support/Seeds.h"
#include "support/Worker.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <random>
#include <string>

namespace test {

/// Runs `work(number)` on `count` threads at the same time and waits for all of them.
inline void onThreads(int count, const std::function<void(int)>& work)
{
    std::deque<Worker> workers;
    for (int number = 0; number < count; ++number)
        workers.emplace_back([&work, number] { work(number); });
}

/// Chance that the seed decides. One per thread.
class Chance {
public:
    Chance(unsigned int seed, int thread) : mEngine(seed * 1000 + static_cast<unsigned int>(thread)) {}

    /// 0 to `limit` - 1.
    int below(int limit) { return static_cast<int>(mEngine() % static_cast<unsigned int>(limit)); }
    bool oneIn(int limit) { return below(limit) == 0; }

private:
    std::mt19937 mEngine;
};

/// Base of the tests that chance decides: INSTANTIATE_SEEDED(MyTest) runs each with every seed.
class SeededTest : public testing::TestWithParam<unsigned int> {
protected:
    unsigned int seed() const { return GetParam(); }
};

} // namespace test

#define INSTANTIATE_SEEDED(suite)                                                                                      \
    INSTANTIATE_TEST_SUITE_P(Seed, suite, testing::ValuesIn(test::seeds()),                                            \
                             [](const auto& tested) { return std::to_string(tested.param); })
