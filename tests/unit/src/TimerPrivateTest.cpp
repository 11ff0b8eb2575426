#include "TimerPrivate.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/TimerEvent.h"
#include "doubles/Mocks.h"
#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"
#include "toolkit/PegMessage.h"
#include "unit/src/Deliveries.h"
#include "unit/src/PoolGate.h"

#include <functional>
#include <optional>

using namespace DisplayAPI;
using doubles::MockCommandListener;
using test::StartedToolkit;
using test::VirtualTime;
using testing::ElementsAre;
using testing::InSequence;
using testing::IsEmpty;
using testing::StrictMock;

namespace {

using Names = std::vector<std::string>;

/// Writes its name down each time, and then does what the test wants.
class Listener : public TimerEvent {
public:
    Listener(std::string name, Names& told) : mName(std::move(name)), mTold(told) {}

    void timerExpired() override
    {
        mTold.push_back(mName);
        reaction();
    }

    std::function<void()> reaction = [] {};

private:
    std::string mName;
    Names& mTold;
};

/// One that takes the notification itself instead of having it queued.
class ImmediateListener : public CommandListener {
public:
    ImmediateListener(std::string name, Names& told) : mName(std::move(name)), mTold(told) {}

    void postCommandAction(Command*, Displayable*) override
    {
        mTold.push_back(mName);
        reaction();
    }

    void commandAction(Command*, Displayable*) override {}

    std::function<void()> reaction = [] {};

private:
    std::string mName;
    Names& mTold;
};

class TimerPrivateTest : public VirtualTime, public testing::Test {
protected:
    void addAll()
    {
        for (auto* listener : {&a, &b, &c})
            timer->addEventListener(listener);
    }

    Names expire()
    {
        told.clear();
        timer->start(0);
        return told;
    }

    StartedToolkit toolkit;
    Names told;
    Listener a{"a", told}, b{"b", told}, c{"c", told};
    Command command{"Tick", Command::ITEM};
    Command otherCommand{"Other", Command::ITEM};
    StrictMock<MockCommandListener> one, other;
    std::optional<TimerPrivate> timer{std::in_place, 100};
};

TEST_F(TimerPrivateTest, HasNoListenersAtFirst)
{
    EXPECT_THAT(timer->getCommandListenerList(), IsEmpty());
    EXPECT_THAT(timer->getTimerEventListenerList(), IsEmpty());
}

TEST_F(TimerPrivateTest, DoesNotRunUntilItIsStarted)
{
    for (const int interval : {-5, 0, 1, 100}) {
        timer.emplace(interval);
        EXPECT_FALSE(isTimerRunning()) << interval;
    }
}

TEST_F(TimerPrivateTest, TellsCommandListenersAndThenEventListenersInOrder)
{
    testing::MockFunction<void()> event;
    a.reaction = event.AsStdFunction();
    timer->addEventListener(&a);
    timer->addCommandListener(&one);
    timer->addCommandListener(&other);
    timer->addCommand(&command);
    const InSequence order;
    EXPECT_CALL(one, postCommandAction(&command, nullptr));
    EXPECT_CALL(other, postCommandAction(&command, nullptr));
    EXPECT_CALL(event, Call());
    expire();
}

TEST_F(TimerPrivateTest, ZeroTellsAtOnceWithoutARunningTimer)
{
    addAll();
    EXPECT_THAT(expire(), ElementsAre("a", "b", "c"));
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(TimerPrivateTest, ZeroLeavesARunningTimerRunning)
{
    timer->addEventListener(&a);
    timer->start(30);
    pass(10);
    expire();
    pass(20);
    EXPECT_THAT(told, ElementsAre("a", "a"));
}

TEST_F(TimerPrivateTest, BelowZeroDoesNothing)
{
    addAll();
    timer->start(-1);
    EXPECT_FALSE(isTimerRunning());
    pass(5);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(TimerPrivateTest, RunsOutAfterItsTimeAndAgainUntilItIsStopped)
{
    timer->addEventListener(&a);
    timer->start(20);
    pass(19);
    EXPECT_THAT(told, IsEmpty());
    pass(31);
    EXPECT_THAT(told, ElementsAre("a", "a"));
    timer->stop();
    pass(100);
    EXPECT_THAT(told, ElementsAre("a", "a"));
}

TEST_F(TimerPrivateTest, SingleShotRunsOutOnce)
{
    timer->addEventListener(&a);
    timer->enableSingleShot(true);
    timer->start(20);
    pass(100);
    EXPECT_THAT(told, ElementsAre("a"));
    timer->enableSingleShot(false);
    timer->start(20);
    pass(45);
    EXPECT_THAT(told, ElementsAre("a", "a", "a"));
}

TEST_F(TimerPrivateTest, MessagesOfOtherTypesAreIgnored)
{
    addAll();
    for (const auto type : {PM_KEY, PM_EXIT, PM_CLICKED}) {
        PegMessage message;
        message.wType = type;
        timer->Message(message);
    }
    EXPECT_THAT(told, IsEmpty());
    PegMessage expiry;
    expiry.wType = 31;
    timer->Message(expiry);
    EXPECT_THAT(told, ElementsAre("a", "b", "c"));
}

TEST_F(TimerPrivateTest, NullListenersAreIgnored)
{
    timer->addCommandListener(nullptr);
    timer->addEventListener(nullptr);
    timer->removeCommandListener(nullptr);
    timer->removeEventListener(nullptr);
    EXPECT_THAT(timer->getCommandListenerList(), IsEmpty());
    EXPECT_THAT(timer->getTimerEventListenerList(), IsEmpty());
    EXPECT_THAT(expire(), IsEmpty());
}

TEST_F(TimerPrivateTest, ListenerThatIsAddedTwiceIsToldTwiceAndRemovedOnceAtATime)
{
    for (auto* listener : {&a, &b, &a})
        timer->addEventListener(listener);
    EXPECT_THAT(expire(), ElementsAre("a", "b", "a"));
    timer->removeEventListener(&a);
    EXPECT_THAT(timer->getTimerEventListenerList(), ElementsAre(&b, &a));
    timer->removeEventListener(&a);
    timer->removeEventListener(&a);
    EXPECT_THAT(timer->getTimerEventListenerList(), ElementsAre(&b));
}

TEST_F(TimerPrivateTest, CommandListenerThatIsAddedTwiceIsToldTwiceAndRemovedOnceAtATime)
{
    for (auto* listener : {&one, &other, &one})
        timer->addCommandListener(listener);
    timer->addCommand(&command);
    EXPECT_CALL(one, postCommandAction(&command, nullptr)).Times(2);
    EXPECT_CALL(other, postCommandAction(&command, nullptr));
    expire();
    timer->removeCommandListener(&one);
    EXPECT_THAT(timer->getCommandListenerList(), ElementsAre(&other, &one));
    timer->removeCommandListener(&one);
    timer->removeCommandListener(&one);
    EXPECT_THAT(timer->getCommandListenerList(), ElementsAre(&other));
}

TEST_F(TimerPrivateTest, WithoutACommandNullIsReported)
{
    timer->addCommandListener(&one);
    EXPECT_CALL(one, postCommandAction(nullptr, nullptr)).Times(2);
    expire();
    timer->addCommand(&command);
    timer->addCommand(nullptr);
    expire();
}

TEST_F(TimerPrivateTest, LastCommandIsReported)
{
    timer->addCommandListener(&one);
    timer->addCommand(&command);
    timer->addCommand(&otherCommand);
    EXPECT_CALL(one, postCommandAction(&otherCommand, nullptr));
    expire();
}

TEST_F(TimerPrivateTest, ListenerMayRemoveItself)
{
    addAll();
    a.reaction = [&] { timer->removeEventListener(&a); };
    c.reaction = [&] { timer->removeEventListener(&c); };
    EXPECT_THAT(expire(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(expire(), ElementsAre("b"));
}

TEST_F(TimerPrivateTest, ListenerThatIsRemovedMeanwhileIsNotTold)
{
    addAll();
    b.reaction = [&] {
        timer->removeEventListener(&a);
        timer->removeEventListener(&c);
    };
    EXPECT_THAT(expire(), ElementsAre("a", "b"));
}

TEST_F(TimerPrivateTest, ListenerThatIsAddedMeanwhileIsToldTheNextTime)
{
    timer->addEventListener(&a);
    a.reaction = [&] {
        for (int i = 0; i < 100; ++i)
            timer->addEventListener(&b);
        a.reaction = [] {};
    };
    EXPECT_THAT(expire(), ElementsAre("a"));
    EXPECT_EQ(expire().size(), 101u);
}

TEST_F(TimerPrivateTest, ListenerMayStopAndRestartTheTimer)
{
    timer->addEventListener(&a);
    a.reaction = [&] { told.size() < 2 ? timer->start(20) : timer->stop(); };
    timer->start(10);
    pass(29);
    EXPECT_THAT(told, ElementsAre("a"));
    pass(100);
    EXPECT_THAT(told, ElementsAre("a", "a"));
}

TEST_F(TimerPrivateTest, ExpiryInsideAnExpiryIsToldAtOnce)
{
    addAll();
    b.reaction = [&] {
        b.reaction = [&] { timer->removeEventListener(&a); };
        timer->start(0);
    };
    EXPECT_THAT(expire(), ElementsAre("a", "b", "a", "b", "c", "c"));
}

TEST_F(TimerPrivateTest, ListenerMayDeleteTheTimer)
{
    addAll();
    b.reaction = [&] { timer.reset(); };
    timer->start(10);
    pass(50);
    EXPECT_THAT(told, ElementsAre("a", "b"));
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(TimerPrivateTest, ListenerMayDeleteTheTimerInsideAnExpiryInsideAnExpiry)
{
    addAll();
    a.reaction = [&] {
        a.reaction = [&] { timer.reset(); };
        timer->start(0);
    };
    timer->start(0);
    EXPECT_THAT(told, ElementsAre("a", "a"));
}

TEST_F(TimerPrivateTest, CommandListenersMayRemoveThemselvesAndOthers)
{
    ImmediateListener first("first", told);
    ImmediateListener second("second", told);
    ImmediateListener third("third", told);
    for (auto* listener : {&first, &second, &third})
        timer->addCommandListener(listener);
    first.reaction = [&] {
        timer->removeCommandListener(&first);
        timer->removeCommandListener(&third);
    };
    timer->addEventListener(&a);
    EXPECT_THAT(expire(), ElementsAre("first", "second", "a"));
    EXPECT_THAT(expire(), ElementsAre("second", "a"));
}

TEST_F(TimerPrivateTest, CommandListenerMayDeleteTheTimer)
{
    ImmediateListener first("first", told);
    ImmediateListener second("second", told);
    timer->addCommandListener(&first);
    timer->addCommandListener(&second);
    timer->addEventListener(&a);
    first.reaction = [&] { timer.reset(); };
    timer->start(0);
    EXPECT_THAT(told, ElementsAre("first"));
}

TEST_F(TimerPrivateTest, CommandListenersThatGoLeaveTheWalkAlongEventListenersAlone)
{
    ImmediateListener first("first", told);
    timer->addCommandListener(&first);
    addAll();
    a.reaction = [&] { timer->removeCommandListener(&first); };
    EXPECT_THAT(expire(), ElementsAre("first", "a", "b", "c"));
}

TEST_F(TimerPrivateTest, DeletingItStopsIt)
{
    timer->addEventListener(&a);
    timer->start(10);
    timer.reset();
    pass(30);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(TimerPrivateTest, DeletingItRecallsItsQueuedCommandFromAllListeners)
{
    test::Deliveries first, second;
    {
        const test::PoolGate gate;
        timer->addCommandListener(&first);
        timer->addCommandListener(&second);
        timer->addCommand(&command);
        expire();
        timer.reset();
        first.postCommandAction(&otherCommand, nullptr);
        second.postCommandAction(&otherCommand, nullptr);
    }
    second.waitFor(&otherCommand);
    EXPECT_THAT(first.arrived(), ElementsAre(&otherCommand));
    EXPECT_THAT(second.arrived(), ElementsAre(&otherCommand));
}

TEST_F(TimerPrivateTest, DeletingItLeavesOtherCommandsOfItsListenersQueued)
{
    test::Deliveries listener;
    {
        const test::PoolGate gate;
        timer->addCommandListener(&listener);
        timer->addCommand(&command);
        listener.postCommandAction(&otherCommand, nullptr);
        timer.reset();
    }
    listener.waitFor(&otherCommand);
}

TEST_F(TimerPrivateTest, DeletingItWithoutACommandRecallsNothing)
{
    test::Deliveries listener;
    {
        const test::PoolGate gate;
        timer->addCommandListener(&listener);
        listener.postCommandAction(&command, nullptr);
        timer.reset();
    }
    listener.waitFor(&command);
}

} // namespace
