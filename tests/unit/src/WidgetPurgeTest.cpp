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

/// How much of what is queued the loop has taken over and not begun.
enum class Taken { NOTHING, THE_FIRST, ALL };

class WidgetPurgeTest : public testing::TestWithParam<Taken> {
protected:
    void post(std::initializer_list<int> codes, Widget& target)
    {
        for (const int code : codes) {
            target.postEventAsync(new CountedRequest(&target, code, liveRequests));
            if (GetParam() == Taken::THE_FIRST && gui.queued() == 1)
                gui.takeOver();
        }
    }

    template <typename Codes>
    void purge(Codes codes)
    {
        takeOverIfAll();
        widget.purgeOwnMessage(codes);
    }

    template <typename Codes>
    GuiRequestEvent* dequeue(Codes codes)
    {
        takeOverIfAll();
        return widget.dequeueOwnMessage(codes);
    }

    static PegMessage* first()
    {
        return gtPegMainQueue->taken != nullptr ? gtPegMainQueue->taken : gtPegMainQueue->head;
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

    test::SteppedLoop gui;
    TestWidget widget;
    TestWidget other;
    std::atomic<int> liveRequests{0};

private:
    void takeOverIfAll()
    {
        if (GetParam() == Taken::ALL && gtPegMainQueue != nullptr)
            gui.takeOver();
    }
};

class WidgetDequeueTest : public WidgetPurgeTest {};

std::string nameOf(const testing::TestParamInfo<Taken>& info)
{
    constexpr const char* NAMES[] = {"NothingTaken", "TheFirstTaken", "AllTaken"};
    return NAMES[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(, WidgetPurgeTest, testing::Values(Taken::NOTHING, Taken::THE_FIRST, Taken::ALL), nameOf);
INSTANTIATE_TEST_SUITE_P(, WidgetDequeueTest, testing::Values(Taken::NOTHING, Taken::THE_FIRST, Taken::ALL), nameOf);

} // namespace

// Purging

TEST_P(WidgetPurgeTest, RemovesEveryQueuedRequestWithTheCode)
{
    post({1, 2, 1, 3, 1}, widget);

    purge(1);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2, 3));
    EXPECT_EQ(gui.queued(), 2);
    EXPECT_EQ(liveRequests, 2) << "what is purged is deleted";
    EXPECT_THAT(widget.codes(), IsEmpty()) << "and not carried out";
    gui.runAll();
}

TEST_P(WidgetPurgeTest, RemovesEveryQueuedRequestWithACodeOfTheSet)
{
    post({1, 2, 3, 4, 2}, widget);
    std::set<int> codes{2, 4, 9};

    purge(&codes);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 3));
    gui.runAll();
}

TEST_P(WidgetPurgeTest, ANullSetMatchesEveryCode)
{
    post({0, -1, 7}, widget);

    purge(nullptr);

    EXPECT_EQ(gui.queued(), 0);
    EXPECT_EQ(gtPegMainQueue->head, nullptr);
    EXPECT_EQ(gtPegMainQueue->tail, nullptr);
    EXPECT_EQ(liveRequests, 0);
}

TEST_P(WidgetPurgeTest, AnEmptySetMatchesNothing)
{
    post({1}, widget);
    std::set<int> codes;

    purge(&codes);

    EXPECT_EQ(gui.queued(), 1);
    gui.runAll();
}

TEST_P(WidgetPurgeTest, RequestsOfOtherWidgetsStayInOrder)
{
    post({1}, other);
    post({1}, widget);
    post({2}, other);
    post({2}, widget);
    post({3}, other);

    purge(nullptr);

    gui.runAll();
    EXPECT_THAT(other.codes(), ElementsAre(1, 2, 3));
    EXPECT_THAT(widget.codes(), IsEmpty());
}

TEST_P(WidgetPurgeTest, MessagesOfOtherTypesStayInOrder)
{
    PegThing thing;
    auto* const displayRequest = new DisplayRequestEvent(nullptr, DisplayRequestEvent::HIDE, nullptr, false);
    PegMessageQueue().Push({PM_KEY, 1, &thing});
    post({1}, widget);
    DisplayAPI::postEventHelper(displayRequest, gui.filter(), false);
    post({2}, widget);
    PegMessageQueue().Push({PM_KEY, 2, &thing});

    purge(nullptr);

    EXPECT_EQ(gui.takeMessage().iData, 1);
    EXPECT_EQ(gui.takeMessage().pData, displayRequest);
    EXPECT_EQ(gui.takeMessage().iData, 2);
    delete displayRequest;
}

TEST_P(WidgetPurgeTest, WakesEachWaitingCaller)
{
    Caller first(widget, 1);
    gui.waitForQueued(1);
    Caller second(widget, 2);
    gui.waitForQueued(2);
    Worker third([&] { widget.postEvent(3); });
    gui.waitForQueued(3);

    purge(nullptr);

    first.worker.join();
    second.worker.join();
    third.join();
    EXPECT_THAT(widget.codes(), IsEmpty());
}

TEST_P(WidgetPurgeTest, LeavesCallersOfOtherCodesWaiting)
{
    Caller first(widget, 1);
    gui.waitForQueued(1);
    Caller second(widget, 2);
    gui.waitForQueued(2);

    purge(1);

    first.worker.join();
    EXPECT_TRUE(second.worker.isBlocked());
    gui.runAll();
}

TEST_P(WidgetPurgeTest, WhatIsPostedAfterThePurgedTailIsLinkedIn)
{
    post({1, 2}, widget);

    purge(2);
    post({3}, widget);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 3));
    gui.runAll();
    EXPECT_THAT(widget.codes(), ElementsAre(1, 3));
}

TEST_P(WidgetPurgeTest, GivesTheMessageRecordsBackToTheTailOfTheFreePool)
{
    post({1, 2}, widget);
    const PegMessage* const last = gtPegMainQueue->tail;

    purge(nullptr);

    EXPECT_EQ(gpFreePool->tail, last);
    EXPECT_EQ(last->Next, nullptr);
    EXPECT_EQ(last->pData, nullptr);
}

TEST_P(WidgetPurgeTest, MayBeCalledFromAnyThread)
{
    post({1, 2}, widget);

    test::onOtherThread([&] { purge(1); });

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2));
    gui.runAll();
}

TEST_P(WidgetPurgeTest, DoesNothingWhereNothingIsQueued)
{
    purge(1);
    purge(nullptr);
    EXPECT_EQ(gui.queued(), 0);
}

TEST_P(WidgetPurgeTest, DoesNothingBeforeTheToolkitHasBeenStarted)
{
    const test::Replaced<PegMainQueue*> noQueue(gtPegMainQueue, nullptr);
    purge(1);
    purge(nullptr);
}

TEST_P(WidgetPurgeTest, DoesNotNeedTheRequestLock)
{
    Worker caller([&] { widget.postEvent(1); });
    gui.waitForQueued(1);

    purge(1);

    caller.join();
}

// Dequeuing

TEST_P(WidgetDequeueTest, TakesOnlyTheFirstRequestWithTheCode)
{
    post({1, 2, 1}, widget);
    auto* const expected = static_cast<GuiRequestEvent*>(first()->pData);

    std::unique_ptr<GuiRequestEvent> taken(dequeue(1));

    EXPECT_EQ(taken.get(), expected);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2, 1));
    EXPECT_EQ(gui.queued(), 2);
    gui.runAll();
}

TEST_P(WidgetDequeueTest, TakesTheFirstRequestWithAnyCodeOfTheSet)
{
    post({1, 3, 2}, widget);
    std::set<int> codes{2, 3};

    std::unique_ptr<GuiRequestEvent> taken(dequeue(&codes));

    EXPECT_EQ(taken->getType(), 3);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 2));
    gui.runAll();
}

TEST_P(WidgetDequeueTest, ANullSetMatchesEveryCode)
{
    post({8, 9}, widget);

    std::unique_ptr<GuiRequestEvent> taken(dequeue(nullptr));

    EXPECT_EQ(taken->getType(), 8);
    gui.runAll();
}

TEST_P(WidgetDequeueTest, ReturnsNullWhereNothingMatches)
{
    post({1}, other);
    post({2}, widget);

    EXPECT_EQ(dequeue(1), nullptr);
    EXPECT_EQ(gui.queued(), 2);
    gui.runAll();
    EXPECT_EQ(dequeue(nullptr), nullptr);
}

TEST_P(WidgetDequeueTest, ReturnsNullBeforeTheToolkitHasBeenStarted)
{
    const test::Replaced<PegMainQueue*> noQueue(gtPegMainQueue, nullptr);
    EXPECT_EQ(dequeue(1), nullptr);
    EXPECT_EQ(dequeue(nullptr), nullptr);
}

TEST_P(WidgetDequeueTest, NeitherRunsTheRequestNorWakesItsCaller)
{
    Caller caller(widget, 1);
    gui.waitForQueued(1);

    std::unique_ptr<GuiRequestEvent> taken(dequeue(1));

    EXPECT_TRUE(caller.worker.isBlocked());
    EXPECT_THAT(widget.codes(), IsEmpty());
    taken->signalComplete();
    caller.worker.join();
}

TEST_P(WidgetDequeueTest, WhatIsPostedAfterTheDequeuedTailIsLinkedIn)
{
    post({1, 2}, widget);

    delete dequeue(2);
    post({3}, widget);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 3));
    gui.runAll();
}

TEST_P(WidgetDequeueTest, TheOnlyRequestLeavesAnEmptyQueue)
{
    post({1}, widget);

    delete dequeue(1);

    EXPECT_EQ(gtPegMainQueue->head, nullptr);
    EXPECT_EQ(gtPegMainQueue->tail, nullptr);
}

TEST_P(WidgetDequeueTest, GivesTheMessageRecordBackToTheTailOfTheFreePool)
{
    post({1, 2}, widget);
    const PegMessage* const given = first();

    delete dequeue(1);

    EXPECT_EQ(gpFreePool->tail, given);
    EXPECT_EQ(given->Next, nullptr);
    EXPECT_EQ(given->pData, nullptr);
    gui.runAll();
}

TEST_P(WidgetDequeueTest, ADequeuedRequestCanBePostedAgain)
{
    post({1, 2}, widget);

    widget.postEventAsync(dequeue(1));

    gui.runAll();
    EXPECT_THAT(widget.codes(), ElementsAre(2, 1));
}
