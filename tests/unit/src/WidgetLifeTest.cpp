// Widgets that are destroyed while posts on them are under way.

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"
#include "DisplayEventFilter.h"
#include "host/toolkit/MainQueue.h"
#include "support/Replaced.h"
#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "utilities/Wait.h"

#include <gmock/gmock.h>

#include <mutex>
#include <optional>

using DisplayAPI::GuiRequestEvent;
using test::CountedRequest;
using test::TestWidget;
using test::Worker;
using testing::ElementsAre;

namespace {

class WidgetLifeTest : public test::SteppedTest {
protected:
    WidgetLifeTest() : doomed(std::in_place, [](GuiRequestEvent&) { FAIL() << "carried out after the end"; }) {}

    GuiRequestEvent* newRequest(int code, TestWidget& target)
    {
        return new CountedRequest(&target, code, liveRequests);
    }

    std::optional<TestWidget> doomed;
    TestWidget other;
    std::atomic<int> liveRequests{0};
};

/// Holds the queue's mutex: who looks into the queue meanwhile is blocked.
class WidgetQueueLookTest : public WidgetLifeTest {
protected:
    /// Whether `work` gets stuck at the queue.
    static bool looksIntoTheQueue(std::function<void()> work)
    {
        std::optional<Worker> worker;
        bool looks = false;
        {
            host::QueueMutex mutex;
            const std::lock_guard lock(mutex);
            worker.emplace(std::move(work));
            looks = worker->isBlocked();
        }
        worker->join();
        return looks;
    }
};

} // namespace

TEST_F(WidgetLifeTest, RemovesWhatIsStillQueuedForTheWidget)
{
    doomed->postEventAsync(newRequest(1, *doomed));
    doomed->postEventAsync(newRequest(2, *doomed));
    other.postEventAsync(newRequest(3, other));

    doomed.reset();

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(3));
    EXPECT_EQ(liveRequests, 1);
    gui.runAll();
}

TEST_F(WidgetLifeTest, RemovesWhatTheLoopHasTakenOverAndNotBegun)
{
    other.postEventAsync(newRequest(1, other));
    doomed->postEventAsync(newRequest(2, *doomed));
    Worker caller([&] { doomed->postEvent(newRequest(3, *doomed)); });
    gui.waitForQueued(3);
    gui.takeOver();
    other.postEventAsync(newRequest(4, other));

    doomed.reset();

    caller.join();
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 4));
    EXPECT_EQ(liveRequests, 2);
    gui.runAll();
}

TEST_F(WidgetLifeTest, WakesACallerThatWaitsOnItsOwnCondition)
{
    Wait condition;
    Worker caller([&] {
        GuiRequestEvent* const request = newRequest(1, *doomed);
        request->setWaitCondition(&condition);
        doomed->postEvent(request);
    });
    gui.waitForQueued(1);
    EXPECT_TRUE(caller.isBlocked());

    doomed.reset();

    caller.join();
    EXPECT_EQ(liveRequests, 0);
}

TEST_F(WidgetLifeTest, WakesACallerThatHoldsTheRequestLock)
{
    for (int round = 0; round < 200; ++round) {
        auto target = std::make_unique<TestWidget>();
        Worker caller([&widget = *target] { widget.postEvent(1); });
        gui.waitForQueued(1);

        target.reset();
    }
}

TEST_F(WidgetLifeTest, ACallerWhoseRequestHasJustBeenCarriedOutMayStillBeOnItsWayOut)
{
    for (int round = 0; round < 500; ++round) {
        auto target = std::make_unique<TestWidget>();
        Worker caller([&widget = *target] { widget.postEvent(1); });
        gui.waitForQueued(1);

        gui.step();
        target.reset();
    }
}

TEST_F(WidgetLifeTest, CallersThatWaitForTheirTurnToPostReturn)
{
    Worker first([&] { doomed->postEvent(newRequest(1, *doomed)); });
    gui.waitForQueued(1);
    Worker second([&] { doomed->postEvent(newRequest(2, *doomed)); });
    EXPECT_TRUE(second.isBlocked());
    Worker third([&] { doomed->postEventAsync(newRequest(3, *doomed)); });
    EXPECT_TRUE(third.isBlocked());
    Worker fourth([&] { doomed->postTopEvent(4); });
    EXPECT_TRUE(fourth.isBlocked());

    doomed.reset();

    for (Worker* caller : {&first, &second, &third, &fourth})
        caller->join();
    EXPECT_EQ(liveRequests, 0);
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(WidgetLifeTest, ACallerWhoseTurnHasComeReturns)
{
    for (int round = 0; round < 200; ++round) {
        auto target = std::make_unique<TestWidget>();
        Worker first([&widget = *target] { widget.postEvent(1); });
        gui.waitForQueued(1);
        Worker second([&widget = *target] { widget.postEvent(2); });
        EXPECT_TRUE(second.isBlocked());

        gui.step(); // lets the first go, and with it the second
        target.reset();
    }
}

TEST_F(WidgetLifeTest, ARequestThatIsOnItsWayIntoTheQueueIsCompletedInstead)
{
    // Holds the poster up between its look at the filter and its message's way into the queue.
    LockMessageQueue();
    Worker caller([&] { doomed->postEvent(newRequest(1, *doomed)); });
    EXPECT_TRUE(caller.isBlocked());
    doomed.reset();
    UnlockMessageQueue();
    caller.join();

    EXPECT_EQ(liveRequests, 0);
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(WidgetLifeTest, NothingRunsOnAWidgetThatGoesTogetherWithTheFilter)
{
    LockMessageQueue();
    Worker caller([&] { doomed->postEvent(newRequest(1, *doomed)); });
    EXPECT_TRUE(caller.isBlocked());
    gui.filter()->uninstall();
    doomed.reset();
    UnlockMessageQueue();
    caller.join();

    EXPECT_EQ(liveRequests, 0);
}

TEST_F(WidgetLifeTest, CostsNothingBeforeTheToolkitHasBeenStarted)
{
    const test::Replaced<PegMainQueue*> noQueue(gtPegMainQueue, nullptr);
    TestWidget unused;
}

// Who has nothing queued does not look into the queue

TEST_F(WidgetQueueLookTest, AWidgetThatHasSomethingQueuedLooks)
{
    doomed->postEventAsync(1);
    EXPECT_TRUE(looksIntoTheQueue([&] { doomed.reset(); }));
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(WidgetQueueLookTest, AWidgetThatHasNeverPostedDoesNot)
{
    other.postEventAsync(1);
    EXPECT_FALSE(looksIntoTheQueue([&] { doomed.reset(); }));
    gui.runAll();
}

TEST_F(WidgetQueueLookTest, AWidgetWhoseRequestsHaveBeenCarriedOutDoesNot)
{
    std::optional<TestWidget> served(std::in_place);
    served->postEventAsync(1);
    Worker caller([&] { served->postTopEvent(2); });
    gui.waitForQueued(2);
    gui.runAll();
    caller.join();
    other.postEventAsync(3);
    EXPECT_FALSE(looksIntoTheQueue([&] { served.reset(); }));
    gui.runAll();
}

TEST_F(WidgetQueueLookTest, AWidgetWhoseRequestsHaveBeenTakenBackDoesNot)
{
    doomed->postEventAsync(1);
    doomed->postEventAsync(2);
    doomed->postEventAsync(3);
    doomed->purgeOwnMessage(2);
    delete doomed->dequeueOwnMessage(1);
    doomed->purgeOwnMessage(nullptr);
    other.postEventAsync(3);
    EXPECT_FALSE(looksIntoTheQueue([&] { doomed.reset(); }));
    gui.runAll();
}

TEST_F(WidgetQueueLookTest, ARequestThatIsPostedOnAnotherWidgetCountsForItsRequester)
{
    other.postEventAsync(new GuiRequestEvent(&*doomed, 1));
    EXPECT_TRUE(looksIntoTheQueue([&] { doomed.reset(); }));
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(WidgetQueueLookTest, ARequestThatWasRefusedIsNotCounted)
{
    LockMessageQueue();
    TestWidget* const served = new TestWidget;
    Worker worker([&] { served->postEventAsync(1); });
    EXPECT_TRUE(worker.isBlocked());
    gui.filter()->uninstall();
    UnlockMessageQueue();
    worker.join();
    EXPECT_FALSE(looksIntoTheQueue([&] { delete served; }));
}
