#include "DisplayAPI/Widget.h"

#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayPrivate.h"
#include "support/Replaced.h"
#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "toolkit/PegMessageQueue.h"
#include "toolkit/PegThing.h"
#include "utilities/Wait.h"

#include <gmock/gmock.h>

using DisplayAPI::DisplayRequestEvent;
using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Widget;
using test::CountedRequest;
using test::TestWidget;
using test::Worker;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class WidgetPurgeTest : public test::SteppedTest {
protected:
    void post(std::initializer_list<int> codes, Widget& target)
    {
        for (const int code : codes)
            target.postEventAsync(new CountedRequest(&target, code, liveRequests));
    }

    /// A caller that waits on a condition of its own, so that several can wait on one widget.
    struct Caller {
        Caller(Widget& target, int code)
            : worker([&target, code, this] {
                  auto* const request = new GuiRequestEvent(&target, code);
                  request->setWaitCondition(&condition);
                  target.postEvent(request);
              })
        {
        }

        Wait condition;
        Worker worker;
    };

    TestWidget widget;
    TestWidget other;
    std::atomic<int> liveRequests{0};
};

using WidgetDequeueTest = WidgetPurgeTest;

} // namespace

// Purging

TEST_F(WidgetPurgeTest, RemovesEveryQueuedRequestWithTheCode)
{
    post({1, 2, 1, 3, 1}, widget);

    widget.purgeOwnMessage(1);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2, 3));
    EXPECT_EQ(gui.queued(), 2);
    EXPECT_EQ(liveRequests, 2) << "what is purged is deleted";
    EXPECT_THAT(widget.codes(), IsEmpty()) << "and not carried out";
    gui.runAll();
}

TEST_F(WidgetPurgeTest, RemovesEveryQueuedRequestWithACodeOfTheSet)
{
    post({1, 2, 3, 4, 2}, widget);
    std::set<int> codes{2, 4, 9};

    widget.purgeOwnMessage(&codes);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 3));
    gui.runAll();
}

TEST_F(WidgetPurgeTest, ANullSetMatchesEveryCode)
{
    post({0, -1, 7}, widget);

    widget.purgeOwnMessage(nullptr);

    EXPECT_EQ(gui.queued(), 0);
    EXPECT_EQ(gtPegMainQueue->head, nullptr);
    EXPECT_EQ(gtPegMainQueue->tail, nullptr);
    EXPECT_EQ(liveRequests, 0);
}

TEST_F(WidgetPurgeTest, AnEmptySetMatchesNothing)
{
    post({1}, widget);
    std::set<int> codes;

    widget.purgeOwnMessage(&codes);

    EXPECT_EQ(gui.queued(), 1);
    gui.runAll();
}

TEST_F(WidgetPurgeTest, RequestsOfOtherWidgetsStayInOrder)
{
    post({1}, other);
    post({1}, widget);
    post({2}, other);
    post({2}, widget);
    post({3}, other);

    widget.purgeOwnMessage(nullptr);

    gui.runAll();
    EXPECT_THAT(other.codes(), ElementsAre(1, 2, 3));
    EXPECT_THAT(widget.codes(), IsEmpty());
}

TEST_F(WidgetPurgeTest, MessagesOfOtherTypesStayInOrder)
{
    PegThing thing;
    auto* const displayRequest = new DisplayRequestEvent(nullptr, DisplayRequestEvent::HIDE, nullptr, false);
    PegMessageQueue().Push({PM_KEY, 1, &thing});
    post({1}, widget);
    DisplayAPI::postEventHelper(displayRequest, gui.filter(), false);
    post({2}, widget);
    PegMessageQueue().Push({PM_KEY, 2, &thing});

    widget.purgeOwnMessage(nullptr);

    EXPECT_EQ(gui.takeMessage().iData, 1);
    EXPECT_EQ(gui.takeMessage().pData, displayRequest);
    EXPECT_EQ(gui.takeMessage().iData, 2);
    delete displayRequest;
}

TEST_F(WidgetPurgeTest, WakesEachWaitingCaller)
{
    Caller first(widget, 1);
    gui.waitForQueued(1);
    Caller second(widget, 2);
    gui.waitForQueued(2);
    Worker third([&] { widget.postEvent(3); });
    gui.waitForQueued(3);

    widget.purgeOwnMessage(nullptr);

    first.worker.join();
    second.worker.join();
    third.join();
    EXPECT_THAT(widget.codes(), IsEmpty());
}

TEST_F(WidgetPurgeTest, LeavesCallersOfOtherCodesWaiting)
{
    Caller first(widget, 1);
    gui.waitForQueued(1);
    Caller second(widget, 2);
    gui.waitForQueued(2);

    widget.purgeOwnMessage(1);

    first.worker.join();
    EXPECT_TRUE(second.worker.isBlocked());
    gui.runAll();
}

TEST_F(WidgetPurgeTest, WhatIsPostedAfterThePurgedTailIsLinkedIn)
{
    post({1, 2}, widget);

    widget.purgeOwnMessage(2);
    post({3}, widget);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 3));
    gui.runAll();
    EXPECT_THAT(widget.codes(), ElementsAre(1, 3));
}

TEST_F(WidgetPurgeTest, GivesTheMessageRecordsBackToTheTailOfTheFreePool)
{
    post({1, 2}, widget);
    const PegMessage* const last = gtPegMainQueue->tail;

    widget.purgeOwnMessage(nullptr);

    EXPECT_EQ(gpFreePool->tail, last);
    EXPECT_EQ(last->Next, nullptr);
    EXPECT_EQ(last->pData, nullptr);
}

TEST_F(WidgetPurgeTest, MayBeCalledFromAnyThread)
{
    post({1, 2}, widget);

    test::onOtherThread([&] { widget.purgeOwnMessage(1); });

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2));
    gui.runAll();
}

TEST_F(WidgetPurgeTest, DoesNothingWhereNothingIsQueued)
{
    widget.purgeOwnMessage(1);
    widget.purgeOwnMessage(nullptr);
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(WidgetPurgeTest, DoesNothingBeforeTheToolkitHasBeenStarted)
{
    const test::Replaced<PegMainQueue*> noQueue(gtPegMainQueue, nullptr);
    widget.purgeOwnMessage(1);
    widget.purgeOwnMessage(nullptr);
}

TEST_F(WidgetPurgeTest, DoesNotNeedTheRequestLock)
{
    Worker caller([&] { widget.postEvent(1); });
    gui.waitForQueued(1);

    widget.purgeOwnMessage(1);

    caller.join();
}

// Dequeuing

TEST_F(WidgetDequeueTest, TakesOnlyTheFirstRequestWithTheCode)
{
    post({1, 2, 1}, widget);
    auto* const first = static_cast<GuiRequestEvent*>(gtPegMainQueue->head->pData);

    std::unique_ptr<GuiRequestEvent> taken(widget.dequeueOwnMessage(1));

    EXPECT_EQ(taken.get(), first);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2, 1));
    EXPECT_EQ(gui.queued(), 2);
    gui.runAll();
}

TEST_F(WidgetDequeueTest, TakesTheFirstRequestWithAnyCodeOfTheSet)
{
    post({1, 3, 2}, widget);
    std::set<int> codes{2, 3};

    std::unique_ptr<GuiRequestEvent> taken(widget.dequeueOwnMessage(&codes));

    EXPECT_EQ(taken->getType(), 3);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 2));
    gui.runAll();
}

TEST_F(WidgetDequeueTest, ANullSetMatchesEveryCode)
{
    post({8, 9}, widget);

    std::unique_ptr<GuiRequestEvent> taken(widget.dequeueOwnMessage(nullptr));

    EXPECT_EQ(taken->getType(), 8);
    gui.runAll();
}

TEST_F(WidgetDequeueTest, ReturnsNullWhereNothingMatches)
{
    post({1}, other);
    post({2}, widget);

    EXPECT_EQ(widget.dequeueOwnMessage(1), nullptr);
    EXPECT_EQ(gui.queued(), 2);
    gui.runAll();
    EXPECT_EQ(widget.dequeueOwnMessage(nullptr), nullptr);
}

TEST_F(WidgetDequeueTest, ReturnsNullBeforeTheToolkitHasBeenStarted)
{
    const test::Replaced<PegMainQueue*> noQueue(gtPegMainQueue, nullptr);
    EXPECT_EQ(widget.dequeueOwnMessage(1), nullptr);
    EXPECT_EQ(widget.dequeueOwnMessage(nullptr), nullptr);
}

TEST_F(WidgetDequeueTest, NeitherRunsTheRequestNorWakesItsCaller)
{
    Caller caller(widget, 1);
    gui.waitForQueued(1);

    std::unique_ptr<GuiRequestEvent> taken(widget.dequeueOwnMessage(1));

    EXPECT_TRUE(caller.worker.isBlocked());
    EXPECT_THAT(widget.codes(), IsEmpty());
    taken->signalComplete();
    caller.worker.join();
}

TEST_F(WidgetDequeueTest, WhatIsPostedAfterTheDequeuedTailIsLinkedIn)
{
    post({1, 2}, widget);

    delete widget.dequeueOwnMessage(2);
    post({3}, widget);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 3));
    gui.runAll();
}

TEST_F(WidgetDequeueTest, TheOnlyRequestLeavesAnEmptyQueue)
{
    post({1}, widget);

    delete widget.dequeueOwnMessage(1);

    EXPECT_EQ(gtPegMainQueue->head, nullptr);
    EXPECT_EQ(gtPegMainQueue->tail, nullptr);
}

TEST_F(WidgetDequeueTest, GivesTheMessageRecordBackToTheTailOfTheFreePool)
{
    post({1, 2}, widget);
    const PegMessage* const first = gtPegMainQueue->head;

    delete widget.dequeueOwnMessage(1);

    EXPECT_EQ(gpFreePool->tail, first);
    EXPECT_EQ(first->Next, nullptr);
    EXPECT_EQ(first->pData, nullptr);
    gui.runAll();
}

TEST_F(WidgetDequeueTest, ADequeuedRequestCanBePostedAgain)
{
    post({1, 2}, widget);

    widget.postEventAsync(widget.dequeueOwnMessage(1));

    gui.runAll();
    EXPECT_THAT(widget.codes(), ElementsAre(2, 1));
}
