#include "host/toolkit/Timers.h"

#include "host/clock/Clock.h"
#include "support/RunningToolkit.h"

#include <ctime>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <vector>

namespace {

using host::Clock;
using host::Timers;
using test::StartedToolkit;
using testing::ElementsAre;
using testing::IsEmpty;

struct Shot {
    std::int32_t id;
    std::int64_t time;

    bool operator==(const Shot&) const = default;
};

void PrintTo(const Shot& shot, std::ostream* out)
{
    *out << "timer " << shot.id << " at " << shot.time;
}

class TimerThing : public PegThing {
public:
    explicit TimerThing(std::vector<Shot>& shots) : mShots(shots) {}

    int Message(const PegMessage& message) override
    {
        if (message.wType == PM_TIMER)
            mShots.push_back({message.iData, Clock::instance().now() - mStart});
        return 0;
    }

private:
    std::vector<Shot>& mShots;
    std::int64_t mStart = Clock::instance().now();
};

/// Without a loop: the test moves the clock and fires what is due.
class TimersTest : public testing::Test {
protected:
    TimersTest() { Clock::instance().makeVirtual(); }
    ~TimersTest() override { Clock::instance().makeReal(); }

    void pass(int ms)
    {
        for (int i = 0; i < ms; ++i) {
            Clock::instance().advance(1);
            Timers::instance().fireDue();
        }
    }

    StartedToolkit toolkit;
    std::vector<Shot> shots;
};

TEST_F(TimersTest, FireOnceWhenDue)
{
    TimerThing thing(shots);
    thing.SetTimer(5, 10, false);
    pass(9);
    EXPECT_THAT(shots, IsEmpty());
    pass(100);
    EXPECT_THAT(shots, ElementsAre(Shot{5, 10}));
}

TEST_F(TimersTest, RepeatEachPeriod)
{
    TimerThing thing(shots);
    thing.SetTimer(1, 10, true);
    pass(35);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 10}, Shot{1, 20}, Shot{1, 30}));
}

TEST_F(TimersTest, FireInTheOrderInWhichTheyAreDue)
{
    TimerThing thing(shots);
    thing.SetTimer(1, 30, false);
    thing.SetTimer(2, 10, false);
    thing.SetTimer(3, 10, false);
    thing.SetTimer(4, 20, false);
    Clock::instance().advance(100);
    Timers::instance().fireDue();
    EXPECT_THAT(shots, ElementsAre(Shot{2, 100}, Shot{3, 100}, Shot{4, 100}, Shot{1, 100}));
}

TEST_F(TimersTest, SettingAgainRestarts)
{
    TimerThing thing(shots);
    thing.SetTimer(1, 10, true);
    pass(5);
    thing.SetTimer(1, 20, false);
    pass(100);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 25}));
}

TEST_F(TimersTest, KilledTimerIsSilentOthersAreNot)
{
    TimerThing thing(shots);
    TimerThing other(shots);
    thing.SetTimer(1, 10, true);
    thing.SetTimer(2, 11, false);
    other.SetTimer(1, 12, false);
    thing.KillTimer(1);
    thing.KillTimer(77);
    pass(50);
    EXPECT_THAT(shots, ElementsAre(Shot{2, 11}, Shot{1, 12}));
}

TEST_F(TimersTest, TimersOfADeadThingAreGone)
{
    auto thing = std::make_unique<TimerThing>(shots);
    thing->SetTimer(1, 10, true);
    thing->SetTimer(2, 10, false);
    thing.reset();
    pass(50);
    EXPECT_THAT(shots, IsEmpty());
    EXPECT_EQ(Clock::instance().timerDue(), Clock::NEVER);
}

TEST_F(TimersTest, NoTimeCountsAsAMillisecond)
{
    TimerThing thing(shots);
    thing.SetTimer(1, 0, true);
    thing.SetTimer(2, -5, false);
    pass(2);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 1}, Shot{2, 1}, Shot{1, 2}));
}

TEST_F(TimersTest, LateTimerDoesNotCatchUp)
{
    TimerThing thing(shots);
    thing.SetTimer(1, 10, true);
    Clock::instance().advance(95);
    Timers::instance().fireDue();
    pass(10);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 95}, Shot{1, 105}));
}

TEST_F(TimersTest, ReceiverMayDeleteItself)
{
    class Suicidal : public PegThing {
    public:
        int Message(const PegMessage&) override
        {
            delete this;
            return 0;
        }
    };
    (new Suicidal)->SetTimer(1, 10, true);
    pass(30);
    EXPECT_EQ(Clock::instance().timerDue(), Clock::NEVER);
}

TEST_F(TimersTest, ReceiverMaySetAndKillTimers)
{
    class Relay : public TimerThing {
    public:
        using TimerThing::TimerThing;

        int Message(const PegMessage& message) override
        {
            TimerThing::Message(message);
            if (message.iData == 1) {
                KillTimer(2);
                SetTimer(3, 5, false);
            }
            return 0;
        }
    };
    Relay thing(shots);
    thing.SetTimer(1, 10, false);
    thing.SetTimer(2, 10, false);
    pass(30);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 10}, Shot{3, 15}));
}

/// Calls what the test gives it.
class Caller : public TimerThing {
public:
    using TimerThing::TimerThing;

    int Message(const PegMessage& message) override
    {
        TimerThing::Message(message);
        call(message.iData);
        return 0;
    }

    std::function<void(std::int32_t)> call;
};

TEST_F(TimersTest, ReceiverMayDeleteAnotherThatIsDueAsWell)
{
    auto other = std::make_unique<TimerThing>(shots);
    Caller thing(shots);
    thing.call = [&](std::int32_t) { other.reset(); };
    thing.SetTimer(1, 10, false);
    other->SetTimer(2, 10, true);
    other->SetTimer(3, 10, false);
    pass(30);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 10}));
    EXPECT_EQ(Clock::instance().timerDue(), Clock::NEVER);
}

TEST_F(TimersTest, ReceiverMayKillTheTimerThatFires)
{
    Caller thing(shots);
    thing.call = [&](std::int32_t id) { thing.KillTimer(id); };
    thing.SetTimer(1, 10, true);
    thing.SetTimer(2, 10, false);
    pass(30);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 10}, Shot{2, 10}));
}

TEST_F(TimersTest, ReceiverMaySetTheTimerThatFires)
{
    Caller thing(shots);
    thing.call = [&](std::int32_t id) { thing.SetTimer(id, 5, false); };
    thing.SetTimer(1, 10, true);
    pass(22);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 10}, Shot{1, 15}, Shot{1, 20}));
}

TEST_F(TimersTest, RepeatingTimerQueuesBehindThoseDueWithIt)
{
    TimerThing thing(shots);
    thing.SetTimer(1, 10, true);
    pass(5);
    thing.SetTimer(2, 15, false);
    pass(15);
    EXPECT_THAT(shots, ElementsAre(Shot{1, 10}, Shot{2, 20}, Shot{1, 20}));
}

TEST_F(TimersTest, DeadThingTakesAllOfItsTimersAndNobodyElses)
{
    std::vector<std::unique_ptr<TimerThing>> things(3);
    for (auto& thing : things) {
        thing = std::make_unique<TimerThing>(shots);
        for (const std::int32_t id :
             {std::numeric_limits<std::int32_t>::min(), -1, 0, std::numeric_limits<std::int32_t>::max()})
            thing->SetTimer(id, 10, false);
    }
    things[1].reset();
    pass(30);
    EXPECT_EQ(shots.size(), 8u);
    EXPECT_EQ(Clock::instance().timerDue(), Clock::NEVER);
}

/// What the calling thread has had of the processor.
double secondsUsed()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

TEST_F(TimersTest, ManyTimersCostLittleEach)
{
    constexpr int MANY = 60'000;
    TimerThing thing(shots);
    const double start = secondsUsed();
    for (int id = 0; id < MANY; ++id)
        thing.SetTimer(id, 1000 + id, false);
    for (int id = 0; id < MANY; id += 2)
        thing.KillTimer(id);
    EXPECT_LT(secondsUsed() - start, 4);
    EXPECT_EQ(Clock::instance().timerDue() - Clock::instance().now(), 1001);
}

} // namespace
