#include "widgets/KestrelPegTimer.h"

#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"
#include "toolkit/PegMessage.h"

#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <vector>

using test::StartedToolkit;
using test::VirtualTime;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Times = std::vector<std::int64_t>;

/// Notes when it is told, and then does what the test wants.
class Observer : public KestrelTimerObserver {
public:
    int Message(const PegMessage& message) override
    {
        types.push_back(message.wType);
        times.push_back(host::Clock::instance().now() - mStart);
        reaction();
        return 0;
    }

    std::vector<int> types;
    Times times;
    std::function<void()> reaction = [] {};

private:
    std::int64_t mStart = host::Clock::instance().now();
};

class KestrelPegTimerTest : public VirtualTime, public testing::Test {
protected:
    KestrelPegTimerTest() { timer->setObserver(&observer); }

    StartedToolkit toolkit;
    Observer observer;
    std::unique_ptr<KestrelPegTimer> timer = std::make_unique<KestrelPegTimer>();
};

TEST_F(KestrelPegTimerTest, TellsItsObserverEachTimeThatItsIntervalHasPassed)
{
    timer->start(10);
    pass(35);
    EXPECT_EQ(observer.times, (Times{10, 20, 30}));
    EXPECT_THAT(observer.types, ElementsAre(31, 31, 31));
}

TEST_F(KestrelPegTimerTest, DoesNotRunBeforeItIsStarted)
{
    timer->setInterval(10);
    timer->setSingleShot(true);
    EXPECT_FALSE(isTimerRunning());
    pass(30);
    EXPECT_THAT(observer.times, IsEmpty());
}

TEST_F(KestrelPegTimerTest, SingleShotRunsOutOnceAndThenCostsNothing)
{
    timer->setSingleShot(true);
    timer->start(10);
    pass(50);
    EXPECT_EQ(observer.times, (Times{10}));
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(KestrelPegTimerTest, SingleShotOnARunningTimerEndsItAtTheNextExpiry)
{
    timer->start(10);
    pass(15);
    timer->setSingleShot(true);
    pass(50);
    EXPECT_EQ(observer.times, (Times{10, 20}));
}

TEST_F(KestrelPegTimerTest, RepeatsAgainWhenSingleShotIsTakenBackInTime)
{
    timer->setSingleShot(true);
    timer->start(10);
    timer->setSingleShot(false);
    pass(25);
    EXPECT_EQ(observer.times, (Times{10, 20}));
}

TEST_F(KestrelPegTimerTest, NewIntervalTakesEffectAtTheNextExpiry)
{
    timer->start(10);
    pass(15);
    timer->setInterval(30);
    pass(70);
    EXPECT_EQ(observer.times, (Times{10, 20, 50, 80}));
}

TEST_F(KestrelPegTimerTest, IntervalsBelowOneAreIgnored)
{
    timer->start(10);
    timer->setInterval(0);
    timer->setInterval(-3);
    timer->start(0);
    timer->start(-1);
    pass(25);
    EXPECT_EQ(observer.times, (Times{10, 20}));
}

TEST_F(KestrelPegTimerTest, StartWithoutAnIntervalStartsNothing)
{
    timer->start(0);
    timer->start(-1);
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(KestrelPegTimerTest, StartingAgainBeginsAnewWithTheNewInterval)
{
    timer->start(10);
    pass(5);
    timer->start(20);
    pass(45);
    EXPECT_EQ(observer.times, (Times{25, 45}));
}

TEST_F(KestrelPegTimerTest, StoppedTimerIsSilentAndCanBeStartedAgain)
{
    timer->start(10);
    pass(5);
    timer->stop();
    timer->stop();
    EXPECT_FALSE(isTimerRunning());
    pass(20);
    timer->start(10);
    pass(10);
    EXPECT_EQ(observer.times, (Times{35}));
}

TEST_F(KestrelPegTimerTest, WithoutAnObserverNobodyIsTold)
{
    timer->setObserver(nullptr);
    timer->start(10);
    pass(20);
    EXPECT_THAT(observer.times, IsEmpty());
}

TEST_F(KestrelPegTimerTest, DeletedTimerIsSilent)
{
    timer->start(10);
    timer.reset();
    EXPECT_FALSE(isTimerRunning());
    pass(20);
    EXPECT_THAT(observer.times, IsEmpty());
}

TEST_F(KestrelPegTimerTest, ObserverMayDeleteTheTimer)
{
    observer.reaction = [&] { timer.reset(); };
    timer->start(10);
    pass(30);
    EXPECT_EQ(observer.times, (Times{10}));
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(KestrelPegTimerTest, ObserverMayStopTheTimer)
{
    observer.reaction = [&] { timer->stop(); };
    timer->start(10);
    pass(30);
    EXPECT_EQ(observer.times, (Times{10}));
}

TEST_F(KestrelPegTimerTest, ObserverMayRestartTheTimerAlsoASingleShotOne)
{
    timer->setSingleShot(true);
    observer.reaction = [&] { timer->start(static_cast<int>(10 * observer.times.size())); };
    timer->start(10);
    pass(45);
    EXPECT_EQ(observer.times, (Times{10, 20, 40}));
}

TEST_F(KestrelPegTimerTest, LoopThatWasLateDoesNotMakeItSlower)
{
    timer->start(10);
    host::Clock::instance().advance(13);
    host::Timers::instance().fireDue();
    pass(10);
    EXPECT_EQ(observer.times, (Times{13, 20}));
}

TEST(KestrelPegTimerLoopTest, TenHoursOfSecondsPassOnTheVirtualClock)
{
    const VirtualTime time;
    test::RunningToolkit toolkit;
    Observer observer;
    std::unique_ptr<KestrelPegTimer> timer;
    toolkit.run([&] {
        timer = std::make_unique<KestrelPegTimer>();
        timer->setObserver(&observer);
        timer->start(1000);
    });
    host::Clock::instance().advance(10 * 3600 * 1000);
    toolkit.run([&] { timer.reset(); });
    ASSERT_EQ(observer.times.size(), 36000u);
    EXPECT_EQ(observer.times.back(), 36000000);
}

} // namespace
