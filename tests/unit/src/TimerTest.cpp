#include "DisplayAPI/Timer.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/TimerEvent.h"
#include "doubles/Mocks.h"
#include "support/VirtualTime.h"
#include "unit/src/Deliveries.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/NotingTimer.h"
#include "unit/src/PoolGate.h"
#include "unit/src/Posted.h"
#include "utilities/Threadable.h"

#include <atomic>

using namespace DisplayAPI;
using test::From;
using test::Posted;
using test::VirtualTime;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Expiries : public TimerEvent {
public:
    void timerExpired() override
    {
        thread = Threadable::currentThreadId();
        ++count;
        reaction();
    }

    std::atomic<int> count{0};
    std::atomic<unsigned int> thread{0};
    std::function<void()> reaction = [] {};
};

/// What the requests need.
struct Arguments {
    Command command{"Tick", Command::ITEM};
    testing::NiceMock<doubles::MockCommandListener> listener;
    Expiries event;
};

class TimerTest : public VirtualTime, public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    void carryOut(
        Timer& timer, int code, const std::function<void(GuiRequestEvent&)>& fill = [](auto&) {})
    {
        FacadeTest::carryOut(GetParam(), timer, code, fill);
    }

    void advance(int ms) { host::Clock::instance().advance(ms); }

    Arguments arguments;
};

} // namespace

TEST_P(TimerTest, ConstructorMakesTheGuiThreadSideWhateverTheInterval)
{
    for (const int interval : {-1, 0, 1, 60000}) {
        std::unique_ptr<Timer> timer;
        run([&] { timer = std::make_unique<Timer>(interval); });
        EXPECT_NE(timer->getPrivateImpl(), nullptr) << interval;
        run([&] { timer.reset(); });
    }
}

TEST_P(TimerTest, CodesZeroAndOneMakeAndDeleteTheGuiThreadSide)
{
    Timer timer(nullptr);
    carryOut(timer, 0, [](GuiRequestEvent& r) { r.intParam1 = 100; });
    EXPECT_NE(timer.getPrivateImpl(), nullptr);
    carryOut(timer, 1);
    EXPECT_EQ(timer.getPrivateImpl(), nullptr);
    carryOut(timer, 1);
}

TEST_P(TimerTest, DestructorDeletesTheGuiThreadSideThere)
{
    auto timer = std::make_unique<Timer>(new test::NotingTimer);
    run([&] { timer.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~Timer()"));
}

TEST_P(TimerTest, ZeroTellsTheListenersOnTheGuiThreadAtOnce)
{
    Timer timer(100);
    run([&] {
        timer.addEventListener(&arguments.event);
        timer.start(0);
        if (GetParam() == From::GUI_THREAD) {
            EXPECT_EQ(arguments.event.count, 1);
        }
    });
    EXPECT_EQ(arguments.event.count, 1);
    EXPECT_EQ(arguments.event.thread, gui.threadId());
    EXPECT_FALSE(isTimerRunning());
}

TEST_P(TimerTest, TimePassesForItInMilliseconds)
{
    Timer timer(0);
    run([&] {
        timer.addEventListener(&arguments.event);
        timer.start(250);
    });
    advance(249);
    EXPECT_EQ(arguments.event.count, 0);
    advance(1);
    EXPECT_EQ(arguments.event.count, 1);
    advance(1000);
    EXPECT_EQ(arguments.event.count, 5);
    run([&] { timer.stop(); });
    advance(1000);
    EXPECT_EQ(arguments.event.count, 5);
}

TEST_P(TimerTest, SingleShotTellsOnce)
{
    Timer timer(0);
    run([&] {
        timer.addEventListener(&arguments.event);
        timer.enableSingleShot(true);
        timer.start(250);
    });
    advance(10000);
    EXPECT_EQ(arguments.event.count, 1);
}

TEST_P(TimerTest, CommandIsRaisedAtEachExpiry)
{
    Timer timer(0);
    std::atomic<int> raised{0};
    ON_CALL(arguments.listener, postCommandAction(&arguments.command, nullptr)).WillByDefault([&] { ++raised; });
    run([&] {
        timer.addCommandListener(&arguments.listener);
        timer.addCommand(&arguments.command);
        timer.start(100);
    });
    advance(250);
    EXPECT_EQ(raised, 2);
    run([&] { timer.removeCommandListener(&arguments.listener); });
    advance(250);
    EXPECT_EQ(raised, 2);
}

TEST_P(TimerTest, ListenerMayDeleteTheTimerThatTellsIt)
{
    auto timer = std::make_unique<Timer>(0);
    arguments.event.reaction = [&] { timer.reset(); };
    run([&] {
        timer->addEventListener(&arguments.event);
        timer->start(10);
    });
    advance(50);
    EXPECT_EQ(arguments.event.count, 1);
    EXPECT_EQ(timer, nullptr);
}

TEST_P(TimerTest, NoQueuedCommandArrivesAfterTheTimerIsDeleted)
{
    test::Deliveries listener;
    Command last("Last", Command::ITEM);
    {
        const test::PoolGate gate;
        auto timer = std::make_unique<Timer>(0);
        run([&] {
            timer->addCommandListener(&listener);
            timer->addCommand(&arguments.command);
            timer->start(0);
        });
        run([&] { timer.reset(); });
        listener.postCommandAction(&last, nullptr);
    }
    listener.waitFor(&last);
    EXPECT_THAT(listener.arrived(), ElementsAre(&last));
}

TEST_P(TimerTest, CommandArrivesOnAPoolThread)
{
    test::Deliveries listener;
    Timer timer(0);
    run([&] {
        timer.addCommandListener(&listener);
        timer.addCommand(&arguments.command);
        timer.start(0);
    });
    listener.waitFor(&arguments.command);
    run([&] { timer.removeCommandListener(&listener); });
}

INSTANTIATE_TEST_SUITE_P(Requests, TimerTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });

namespace {

class TimerPostTest : public test::SteppedTest {};

} // namespace

TEST_F(TimerPostTest, ConstructorPostsAndReturns)
{
    std::unique_ptr<Timer> timer;
    EXPECT_EQ(test::postedBy(gui, [&] { timer = std::make_unique<Timer>(100); }), (Posted{{0}, false}));
    EXPECT_EQ(test::postedBy(gui, [&] { Timer adopting(nullptr); }), (Posted{{1}, true}));
}

TEST_F(TimerPostTest, DestructorWaits)
{
    auto timer = std::make_unique<Timer>(100);
    EXPECT_EQ(test::postedBy(gui, [&] { timer.reset(); }), (Posted{{1}, true}));
}

TEST_F(TimerPostTest, DestructorDropsQueuedCallsBeforeItWaits)
{
    auto timer = std::make_unique<Timer>(100);
    Expiries event;
    timer->addEventListener(&event);
    test::onOtherThread([&] { timer->start(0); });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2));
    EXPECT_EQ(test::postedBy(gui, [&] { timer.reset(); }), (Posted{{1}, true}));
    EXPECT_EQ(event.count, 0);
}

TEST_F(TimerPostTest, ListenerMayDeleteTheTimerInsideAPostedCall)
{
    auto timer = std::make_unique<Timer>(0);
    Expiries event;
    event.reaction = [&] { timer.reset(); };
    timer->addEventListener(&event);
    test::onOtherThread([&] {
        timer->start(0);
        timer->stop();
    });
    gui.step();
    EXPECT_EQ(timer, nullptr);
    EXPECT_THAT(gui.queuedCodes(), IsEmpty()) << "what was queued for it goes with it";
}

TEST_F(TimerPostTest, TimerThatWasNeverMadeIsDestroyedWithoutPosting)
{
    test::onOtherThread([&] {
        Timer timer(100);
        timer.start(0);
    });
    EXPECT_THAT(gui.queuedCodes(), IsEmpty());
}
