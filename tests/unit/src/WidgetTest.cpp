#include "DisplayAPI/Widget.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayEventFilter.h"
#include "host/toolkit/MessagePool.h"
#include "support/LogLines.h"
#include "support/Replaced.h"
#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "toolkit/PegMessageQueue.h"
#include "toolkit/PegThing.h"
#include "utilities/Threadable.h"
#include "utilities/Wait.h"

using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Widget;
using host::LogLine;
using test::CountedRequest;
using test::TestWidget;
using test::Worker;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class WidgetTest : public test::SteppedTest {
protected:
    TestWidget widget;
    TestWidget other;
    std::atomic<int> liveRequests{0};
};

/// The three ways of posting a record, as a table.
struct PostOperation {
    const char* name;
    void (Widget::*post)(GuiRequestEvent*);
    void (Widget::*postCode)(int);
    bool waits;
    int logLine;
};

constexpr PostOperation POST_OPERATIONS[] = {
    {"postEvent", &Widget::postEvent, &Widget::postEvent, true, 247},
    {"postTopEvent", &Widget::postTopEvent, &Widget::postTopEvent, true, 342},
    {"postEventAsync", &Widget::postEventAsync, &Widget::postEventAsync, false, 427},
};

void PrintTo(const PostOperation& operation, std::ostream* out)
{
    *out << operation.name;
}

class WidgetPostTest : public test::SteppedTest, public testing::WithParamInterface<PostOperation> {
protected:
    TestWidget widget;
    std::atomic<int> liveRequests{0};
};

/// Waits as a loop does until so many messages are queued.
void waitForMessages(int count)
{
    PegMainQueue& queue = *gtPegMainQueue;
    pthread_mutex_lock(&queue.mutex);
    while (queue.count() < count)
        pthread_cond_wait(&queue.condition, &queue.mutex);
    pthread_mutex_unlock(&queue.mutex);
}

INSTANTIATE_TEST_SUITE_P(, WidgetPostTest, testing::ValuesIn(POST_OPERATIONS),
                         [](const auto& tested) { return std::string(tested.param.name); });

} // namespace

// Which thread is the GUI thread

TEST_F(WidgetTest, EveryThreadIsTheGuiThreadUntilOneIsRecorded)
{
    Widget::setGuiThreadId(0);

    EXPECT_TRUE(Widget::isGuiThread());
    test::onOtherThread([] { EXPECT_TRUE(Widget::isGuiThread()); });
}

TEST_F(WidgetTest, OnlyTheRecordingThreadIsTheGuiThread)
{
    Widget::setGuiThreadId();

    EXPECT_TRUE(Widget::isGuiThread());
    test::onOtherThread([] { EXPECT_FALSE(Widget::isGuiThread()); });
}

TEST_F(WidgetTest, AThreadIsRecordedByItsId)
{
    test::onOtherThread([] {
        Widget::setGuiThreadId(Threadable::currentThreadId());
        EXPECT_TRUE(Widget::isGuiThread());
    });

    EXPECT_FALSE(Widget::isGuiThread());
}

TEST_F(WidgetTest, TheNameOfTheBaseIsWidget)
{
    EXPECT_EQ(widget.name, "Widget");
}

// Each of the three operations

TEST_P(WidgetPostTest, QueuesTheRecordForTheFilter)
{
    auto* const request = new GuiRequestEvent(&widget, 5);
    Worker worker([&] { (widget.*GetParam().post)(request); });
    gui.waitForQueued(1);

    const PegMessage message = gui.messages().at(0);
    EXPECT_EQ(message.wType, 0x4001);
    EXPECT_EQ(message.pTarget, gui.filter());
    EXPECT_EQ(message.pSource, gui.filter());
    EXPECT_EQ(message.pData, request);
    EXPECT_EQ(message.Next, nullptr);
    EXPECT_EQ(message.iData, 0);

    gui.runAll();
}

TEST_P(WidgetPostTest, IsCarriedOutByTheGuiThreadAndDeletedAfterwards)
{
    Worker worker([&] { (widget.*GetParam().post)(new CountedRequest(&widget, 5, liveRequests)); });
    gui.waitForQueued(1);
    EXPECT_EQ(liveRequests, 1);

    gui.step();

    EXPECT_THAT(widget.codes(), ElementsAre(5));
    EXPECT_THAT(widget.threads(), ElementsAre(Threadable::currentThreadId()));
    EXPECT_EQ(liveRequests, 0);
}

TEST_P(WidgetPostTest, OnlyTheSynchronousOnesWaitForCompletion)
{
    Worker worker([&] { (widget.*GetParam().postCode)(5); });
    gui.waitForQueued(1);
    EXPECT_EQ(worker.isBlocked(), GetParam().waits);

    gui.step();
    worker.join();
}

TEST_P(WidgetPostTest, ACodeAloneMakesARecordWithoutArguments)
{
    GuiRequestEvent* seen = nullptr;
    TestWidget asked([&](GuiRequestEvent& request) {
        seen = &request;
        EXPECT_EQ(request.requesterWidget(), &asked);
        EXPECT_EQ(request.getType(), 17);
        EXPECT_EQ(request.stringParam1, "");
        EXPECT_EQ(request.intParam1, -1);
        EXPECT_EQ(request.ptrParam1, nullptr);
    });
    Worker worker([&] { (asked.*GetParam().postCode)(17); });
    gui.waitForQueued(1);
    gui.step();

    EXPECT_NE(seen, nullptr);
}

TEST_P(WidgetPostTest, NullPostsARequestWithCodeMinusOne)
{
    Worker worker([&] { (widget.*GetParam().post)(nullptr); });
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(-1));

    gui.step();
    EXPECT_THAT(widget.codes(), ElementsAre(-1));
}

TEST_P(WidgetPostTest, InstallsAWaitConditionOnlyWhereTheCallerWaits)
{
    Wait* installed = nullptr;
    TestWidget asked([&](GuiRequestEvent& request) { installed = request.waitCondition(); });
    Worker worker([&] { (asked.*GetParam().postCode)(1); });
    gui.waitForQueued(1);
    gui.step();

    EXPECT_EQ(installed != nullptr, GetParam().waits);
}

TEST_P(WidgetPostTest, WakesEveryThreadThatWaitsForMessages)
{
    Worker first([] { waitForMessages(1); });
    Worker second([] { waitForMessages(1); });
    EXPECT_TRUE(first.isBlocked());
    EXPECT_TRUE(second.isBlocked());

    Worker poster([&] { (widget.*GetParam().postCode)(1); });
    first.join();
    second.join();

    gui.step();
}

TEST_P(WidgetPostTest, WakesThemAlsoWhereTheLoopHasTakenOverAndNotBegun)
{
    widget.postEventAsync(1);
    gui.takeOver();
    Worker waiting([] { waitForMessages(2); });
    EXPECT_TRUE(waiting.isBlocked());

    Worker poster([&] { (widget.*GetParam().postCode)(2); });
    waiting.join();

    gui.runAll();
}

TEST_P(WidgetPostTest, RunsOnTheCallingThreadWhereNoFilterIsInstalled)
{
    gui.removeFilter();
    bool hasCondition = true;
    TestWidget asked([&](GuiRequestEvent& request) { hasCondition = request.waitCondition() != nullptr; });
    Worker worker([&] { (asked.*GetParam().post)(new CountedRequest(&asked, 3, liveRequests)); });
    worker.join();

    EXPECT_THAT(asked.codes(), ElementsAre(3));
    EXPECT_THAT(asked.threads(), ElementsAre(worker.threadId()));
    EXPECT_FALSE(hasCondition);
    EXPECT_EQ(liveRequests, 0) << "the record is deleted";
    EXPECT_EQ(gui.queued(), 0);
}

TEST_P(WidgetPostTest, RunsOnTheCallingThreadWhereTheToolkitHasNeverBeenStarted)
{
    const test::Replaced<PegMainQueue*> noQueue(gtPegMainQueue, nullptr);
    (widget.*GetParam().post)(new CountedRequest(&widget, 3, liveRequests));
    EXPECT_THAT(widget.codes(), ElementsAre(3));
    EXPECT_EQ(liveRequests, 0);
}

TEST_P(WidgetPostTest, RunsOnTheCallingThreadWhereTheFilterGoesBeforeTheMessageIsQueued)
{
    // Holds the poster up between its look at the filter and its message's way into the queue.
    LockMessageQueue();
    Worker worker([&] { (widget.*GetParam().post)(new CountedRequest(&widget, 3, liveRequests)); });
    EXPECT_TRUE(worker.isBlocked());
    gui.filter()->uninstall();
    UnlockMessageQueue();
    worker.join();

    EXPECT_THAT(widget.threads(), ElementsAre(worker.threadId()));
    EXPECT_EQ(liveRequests, 0);
    EXPECT_EQ(gui.queued(), 0);
}

TEST_P(WidgetPostTest, GoesToTheFilterThatIsInstalledWhenTheMessageIsQueued)
{
    LockMessageQueue();
    Worker worker([&] { (widget.*GetParam().post)(new CountedRequest(&widget, 3, liveRequests)); });
    EXPECT_TRUE(worker.isBlocked());
    DisplayAPI::DisplayEventFilter later(true);
    UnlockMessageQueue();
    gui.waitForQueued(1);

    EXPECT_EQ(gui.messages().at(0).pTarget, &later);
    EXPECT_EQ(gui.messages().at(0).pSource, &later);
    gui.runAll();
    EXPECT_THAT(widget.threads(), ElementsAre(Threadable::currentThreadId()));
    EXPECT_EQ(liveRequests, 0);
}

TEST_P(WidgetPostTest, GivesTheRequestLockBackWhereNoFilterIsInstalled)
{
    gui.removeFilter();

    (widget.*GetParam().postCode)(1);
    (widget.*GetParam().post)(nullptr);

    EXPECT_THAT(widget.codes(), ElementsAre(1, -1));
}

TEST_P(WidgetPostTest, TakesAMessageRecordFromTheHeadOfTheFreePool)
{
    PegMessage* const first = gpFreePool->head;
    Worker worker([&] { (widget.*GetParam().postCode)(1); });
    gui.waitForQueued(1);

    EXPECT_EQ(gtPegMainQueue->head, first);
    EXPECT_NE(gpFreePool->head, first);

    gui.step();
}

TEST_P(WidgetPostTest, WithoutAMessageRecordTheRequestIsLoggedAndLost)
{
    host::LogCapture log;
    {
        const host::MessagePool::Drained drained;
        (widget.*GetParam().post)(new CountedRequest(&widget, 1, liveRequests));
    }

    const std::string text =
        std::string("Widget::") + GetParam().name + "() no more PegMessage objects in the pool, this one will be lost!";
    EXPECT_THAT(log.lines(), ElementsAre(LogLine{"DisplayAPI::Widget", "./src/Widget", 2, GetParam().logLine, text}));
    EXPECT_EQ(liveRequests, 0);
    EXPECT_EQ(gui.queued(), 0);
    EXPECT_THAT(widget.codes(), IsEmpty());
}

TEST_P(WidgetPostTest, ALostRequestLeavesTheRequestLockFree)
{
    {
        const host::MessagePool::Drained drained;
        (widget.*GetParam().postCode)(1);
    }
    Worker worker([&] { (widget.*GetParam().postCode)(2); });
    gui.waitForQueued(1);
    gui.step();

    EXPECT_THAT(widget.codes(), ElementsAre(2));
}

TEST_P(WidgetPostTest, TheLoopHearsOfItWhereTheCallerWaits)
{
    Worker worker([&] { (widget.*GetParam().postCode)(1); });
    gui.waitForQueued(1);

    EXPECT_EQ(gtPegMainQueue->awaited, GetParam().waits);

    gui.takeOver();
    gui.step();
}

// Order

TEST_F(WidgetTest, PostEventAppendsAtTheTail)
{
    widget.postEventAsync(1);
    Worker worker([&] { other.postEvent(2); });
    gui.waitForQueued(2);
    widget.postEventAsync(3);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 2, 3));
    EXPECT_EQ(static_cast<GuiRequestEvent*>(gtPegMainQueue->tail->pData)->getType(), 3);
    gui.runAll();
}

TEST_F(WidgetTest, PostTopEventOvertakesQueuedRequests)
{
    other.postEventAsync(1);
    other.postEventAsync(2);
    PegMessage* const tail = gtPegMainQueue->tail;
    Worker worker([&] { widget.postTopEvent(3); });
    gui.waitForQueued(3);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(3, 1, 2));
    EXPECT_EQ(gtPegMainQueue->tail, tail);

    gui.step();
    EXPECT_THAT(widget.codes(), ElementsAre(3));
    gui.runAll();
}

TEST_F(WidgetTest, PostTopEventOvertakesWhatTheLoopHasTakenOver)
{
    other.postEventAsync(1);
    gui.takeOver();
    other.postEventAsync(2);
    Worker worker([&] { widget.postTopEvent(3); });
    gui.waitForQueued(3);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(3, 1, 2));
    gui.runAll();
}

TEST_F(WidgetTest, PostTopEventOnAnEmptyQueueSetsHeadAndTail)
{
    Worker worker([&] { widget.postTopEvent(3); });
    gui.waitForQueued(1);

    EXPECT_NE(gtPegMainQueue->head, nullptr);
    EXPECT_EQ(gtPegMainQueue->head, gtPegMainQueue->tail);

    other.postEventAsync(4);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(3, 4));
    gui.runAll();
}

TEST_F(WidgetTest, TheSecondOfTwoTopRequestsRunsFirst)
{
    Worker first([&] { widget.postTopEvent(1); });
    gui.waitForQueued(1);
    Worker second([&] { other.postTopEvent(2); });
    gui.waitForQueued(2);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2, 1));
    gui.runAll();
}

// The request lock

TEST_F(WidgetTest, AWaitingCallHoldsTheRequestLockForTheWholeRoundTrip)
{
    Worker first([&] { widget.postEvent(1); });
    gui.waitForQueued(1);
    Worker second([&] { widget.postEventAsync(2); });
    EXPECT_TRUE(second.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));

    gui.step();
    second.join();
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2));
    gui.runAll();
}

TEST_F(WidgetTest, AWaitingTopCallHoldsTheRequestLockToo)
{
    Worker first([&] { widget.postTopEvent(1); });
    gui.waitForQueued(1);
    Worker second([&] { widget.postEvent(2); });
    EXPECT_TRUE(second.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));

    gui.step();
    gui.waitForQueued(1);
    gui.runAll();
}

TEST_F(WidgetTest, AWaitingCallDoesNotHoldUpOtherWidgets)
{
    Worker worker([&] { widget.postEvent(1); });
    gui.waitForQueued(1);

    other.postEventAsync(2);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 2));
    gui.runAll();
}

TEST_F(WidgetTest, ACallersOwnConditionLetsOthersPostMeanwhile)
{
    Wait condition;
    auto* const request = new GuiRequestEvent(&widget, 1);
    request->setWaitCondition(&condition);
    Worker worker([&] { widget.postEvent(request); });
    gui.waitForQueued(1);
    EXPECT_TRUE(worker.isBlocked());

    widget.postEventAsync(2);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1, 2));
    EXPECT_FALSE(worker.hasReturned());

    gui.runAll();
    worker.join();
}

TEST_F(WidgetTest, ACallersOwnConditionLetsOthersPostDuringATopCall)
{
    Wait condition;
    auto* const request = new GuiRequestEvent(&widget, 1);
    request->setWaitCondition(&condition);
    Worker worker([&] { widget.postTopEvent(request); });
    gui.waitForQueued(1);
    EXPECT_TRUE(worker.isBlocked());

    widget.postEventAsync(2);
    EXPECT_EQ(gui.queued(), 2);

    gui.runAll();
    worker.join();
}

TEST_F(WidgetTest, ACallersOwnConditionStaysInstalled)
{
    Wait condition;
    const Wait* seen = nullptr;
    TestWidget asked([&](GuiRequestEvent& request) { seen = request.waitCondition(); });
    auto* const request = new GuiRequestEvent(&asked, 1);
    request->setWaitCondition(&condition);
    Worker worker([&] { asked.postEvent(request); });
    gui.waitForQueued(1);
    gui.step();
    worker.join();

    EXPECT_EQ(seen, &condition);
}

TEST_F(WidgetTest, AnAsynchronousPostWithAConditionDoesNotWait)
{
    Wait condition;
    auto* const request = new GuiRequestEvent(&widget, 1);
    request->setWaitCondition(&condition);
    widget.postEventAsync(request);
    EXPECT_EQ(gui.queued(), 1);

    gui.step();
    condition.wait(); // it has been woken
}

// The helper

TEST_F(WidgetTest, TheHelperRunsTheRequestAtOnceOnTheGuiThread)
{
    for (const bool async : {true, false}) {
        CountedRequest request(&widget, async, liveRequests);
        widget.postEventHelper(async, &request);
        EXPECT_EQ(liveRequests, 1) << "the record stays the caller's";
    }
    EXPECT_THAT(widget.codes(), ElementsAre(1, 0));
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(WidgetTest, TheHelperDoesNotNeedTheRequestLockOnTheGuiThread)
{
    Worker worker([&] { widget.postEvent(1); });
    gui.waitForQueued(1);

    GuiRequestEvent request(&widget, 2);
    widget.postEventHelper(false, &request);
    EXPECT_THAT(widget.codes(), ElementsAre(2));

    gui.step();
}

TEST_F(WidgetTest, TheHelperRunsOnAnyThreadUntilAGuiThreadIsRecorded)
{
    Widget::setGuiThreadId(0);
    GuiRequestEvent request(&widget, 4);
    Worker worker([&] { widget.postEventHelper(false, &request); });
    worker.join();

    EXPECT_THAT(widget.threads(), ElementsAre(worker.threadId()));
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(WidgetTest, TheHelperPostsWithoutWaitingElsewhere)
{
    test::onOtherThread([&] { widget.postEventHelper(true, new GuiRequestEvent(&widget, 1)); });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    gui.step();
}

TEST_F(WidgetTest, TheHelperWaitsElsewhereUnlessToldOtherwise)
{
    Worker worker([&] { widget.postEventHelper(false, new GuiRequestEvent(&widget, 1)); });
    gui.waitForQueued(1);
    EXPECT_TRUE(worker.isBlocked());
    gui.step();
    worker.join();
}

// Completion

TEST_F(WidgetTest, SignalCompleteWakesTheConditionOfTheRequest)
{
    Wait condition;
    GuiRequestEvent request(&widget, 1);
    request.setWaitCondition(&condition);

    widget.signalComplete(request);

    condition.wait();
}

TEST_F(WidgetTest, SignalCompleteDoesNothingWithoutACondition)
{
    GuiRequestEvent request(&widget, 1);
    widget.signalComplete(request);
}

TEST_F(WidgetTest, AResultIsWrittenBeforeTheCallerWakes)
{
    TestWidget asked([](GuiRequestEvent& request) { *static_cast<int*>(request.returnValue3) = 42; });
    int result = 0;
    Worker worker([&] {
        auto* const request = new GuiRequestEvent(&asked, 1);
        request->returnValue3 = &result;
        asked.postEvent(request);
        EXPECT_EQ(result, 42);
    });
    gui.waitForQueued(1);
    EXPECT_EQ(result, 0);
    gui.step();
}

TEST_F(WidgetTest, AHandlerThatDoesNotSignalLeavesItsCallerBlocked)
{
    /// Completes only on request.
    class Silent : public Widget {
    public:
        void processGuiRequest(GuiRequestEvent& request) override { condition = request.waitCondition(); }
        Wait* condition = nullptr;
    } silent;
    Worker worker([&] { silent.postEvent(99); });
    gui.waitForQueued(1);
    gui.step();
    EXPECT_TRUE(worker.isBlocked());

    silent.condition->wakeUp();
    worker.join();
}

// focusChanged

namespace {

class TypedThing : public PegThing {
public:
    explicit TypedThing(std::uint8_t type) { Type(type); }
};

} // namespace

TEST_F(WidgetTest, FocusChangedTellsAThingOfType206)
{
    TypedThing list(206);
    DisplayAPI::focusChanged(&list);

    const PegMessage message = gui.takeMessage();
    EXPECT_EQ(message.wType, 0x401E);
    EXPECT_EQ(message.pTarget, &list);
    EXPECT_EQ(message.pSource, nullptr);
    EXPECT_EQ(message.Next, nullptr);
    EXPECT_EQ(message.pData, nullptr);
}

TEST_F(WidgetTest, FocusChangedDoesNothingWhileTheToolkitIsStopped)
{
    const test::Replaced<PegMessageQueue*> stopped(PegThing::mpMessageQueue, nullptr);
    TypedThing list(206);
    DisplayAPI::focusChanged(&list);
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(WidgetTest, FocusChangedTellsNoOtherThing)
{
    for (int type = 0; type < 256; ++type) {
        if (type == 206)
            continue;
        TypedThing thing(static_cast<std::uint8_t>(type));
        DisplayAPI::focusChanged(&thing);
        ASSERT_EQ(gui.queued(), 0) << "type " << type;
    }
}
