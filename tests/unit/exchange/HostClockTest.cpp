#include "apps/exchange/HostClock.h"

#include "support/VirtualTime.h"
#include "support/Worker.h"
#include "unit/exchange/ExchangeTest.h"

#include <atomic>
#include <chrono>
#include <gmock/gmock.h>
#include <thread>
#include <vector>

namespace test {

namespace {

using testing::ElementsAre;
using testing::EndsWith;

exchange::Numbers numbers()
{
    return exchange::Numbers::parse("numbers", "4711 answers after 200 ms, holds after 60 min");
}

class HostClockTest : public testing::Test {
protected:
    exchange::HostClock clock;
    exchange::Exchange exchange{numbers(), clock};
    NotingListener listener;

    HostClockTest() { exchange.setListener(&listener); }
    ~HostClockTest() override { exchange.setListener(nullptr); }
};

TEST_F(HostClockTest, RealTimePassesByItself)
{
    const exchange::CallId call = exchange.place(1, "4711");
    waitUntil([&] { return exchange.hold(call); });
    EXPECT_TRUE(exchange.resume(call));
    exchange.waitUntilHeard();
    EXPECT_EQ(listener.take().size(), 6u);
}

TEST_F(HostClockTest, WakingCountsForOneSleep)
{
    exchange::HostClock other;
    other.wake();
    other.sleepUntil(other.now() + 60 * 60 * 1000);
    const std::int64_t until = other.now() + 10;
    other.sleepUntil(until);
    EXPECT_GE(other.now(), until);
}

class VirtualHostClockTest : private VirtualTime, public HostClockTest {};

TEST_F(VirtualHostClockTest, StandsStillUntilItIsMoved)
{
    exchange.place(1, "4711");
    exchange.waitUntilHeard();
    EXPECT_THAT(listener.take(), ElementsAre(EndsWith("dialling 4711")));
    host::Clock::instance().advance(1000);
    exchange.waitUntilHeard();
    EXPECT_THAT(listener.take(),
                ElementsAre(EndsWith("proceeding 4711"), EndsWith("ringing back 4711"), EndsWith("connected 4711")));
}

/// Takes its time, and then looks whether the clock stands where the call has changed.
class SlowListener : public exchange::TelephonyListener {
public:
    void callChanged(const exchange::CallEvent& event) override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        late.push_back(host::Clock::instance().now() - event.at);
    }

    std::vector<std::int64_t> late;
};

TEST_F(VirtualHostClockTest, WhatIsDoneWhileTheClockMovesIsHeardAtItsMoment)
{
    SlowListener slow;
    exchange.setListener(&slow);
    Worker caller([this] {
        host::Clock::instance().sleepFor(100);
        exchange.place(1, "4711");
    });
    waitUntil([] { return host::Clock::instance().sleepers() == 2; });
    host::Clock::instance().advance(10'000);
    caller.join();
    exchange.setListener(nullptr);
    EXPECT_THAT(slow.late, ElementsAre(0, 0, 0, 0));
}

} // namespace

} // namespace test
