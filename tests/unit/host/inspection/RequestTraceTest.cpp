#include "host/inspection/RequestTrace.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/List.h"
#include "DisplayEventFilter.h"
#include "DisplayPrivate.h"
#include "doubles/Answers.h"
#include "support/GuiLoop.h"
#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "toolkit/PegMessageQueue.h"
#include "utilities/RequestStatus.h"

#include <gmock/gmock.h>

using host::RequestTrace;
using Told = host::TracedRequest;
using test::TestWidget;
using test::Worker;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class RequestTraceTest : public test::SteppedTest {
protected:
    RequestTraceTest()
    {
        doubles::Answers::instance().reset();
        trace.enable(true);
    }

    ~RequestTraceTest() override
    {
        trace.enable(false);
        trace.take();
    }

    /// Has another thread post an errand, and waits for that.
    void post(int code)
    {
        test::onOtherThread([&] { widget.postEventAsync(code); });
    }

    Told onlyOne()
    {
        const auto records = trace.take().records;
        EXPECT_THAT(records, SizeIs(1));
        return records.empty() ? Told() : records.front();
    }

    RequestTrace& trace = RequestTrace::instance();
    TestWidget widget;
};

} // namespace

TEST_F(RequestTraceTest, RequestIsToldWithItsTimesInOrder)
{
    const std::int64_t before = host::monotonicNow();
    Worker worker([&] { widget.postEvent(7); });
    gui.waitForQueued(1);
    gui.runAll();
    worker.join();
    const Told request = onlyOne();
    EXPECT_EQ(request.facade, "test::TestWidget");
    EXPECT_EQ(request.code, "7");
    EXPECT_EQ(request.number, 7);
    EXPECT_EQ(request.thread, static_cast<int>(worker.threadId()));
    EXPECT_TRUE(request.isAwaited);
    EXPECT_EQ(request.purgedBy, "");
    constexpr std::int64_t INEXACT = 1'000'000; // of the clock that is read, against the one that it becomes
    EXPECT_LE(before - INEXACT, request.queued);
    EXPECT_LE(request.queued, request.run);
    EXPECT_LE(request.run, request.done);
    EXPECT_LE(request.done, host::monotonicNow() + INEXACT);
}

TEST_F(RequestTraceTest, CodesHaveTheirNamesInWhateverIsDerived)
{
    struct Contacts : DisplayAPI::List {
        using List::List;
    };
    Contacts list(0);
    Worker worker([&] { list.size(); });
    gui.waitForQueued(1);
    gui.runAll();
    worker.join();
    const Told request = onlyOne();
    EXPECT_EQ(request.facade, "List");
    EXPECT_EQ(request.code, "SIZE");
}

TEST_F(RequestTraceTest, CodeWithoutARowHasItsName)
{
    DisplayAPI::List list(0);
    Worker worker([&] { list.getItems(); });
    gui.waitForQueued(1);
    gui.runAll();
    worker.join();
    EXPECT_EQ(onlyOne().code, "GET_ITEMS");
}

TEST_F(RequestTraceTest, DisplaysRequestIsOneOfTheDisplay)
{
    using DisplayAPI::DisplayRequestEvent;
    postEventHelper(new DisplayRequestEvent(nullptr, DisplayRequestEvent::SERIALISE, nullptr, false), gui.filter(),
                    false);
    const Told request = onlyOne();
    EXPECT_EQ(request.facade, "Display");
    EXPECT_EQ(request.code, "SERIALISE");
    EXPECT_FALSE(request.isAwaited);
    delete static_cast<DisplayRequestEvent*>(gui.takeMessage().pData);
}

TEST_F(RequestTraceTest, RequestUnderWayIsToldUntilItHasEnded)
{
    post(1);
    EXPECT_EQ(onlyOne().run, std::nullopt);
    EXPECT_EQ(onlyOne().done, std::nullopt);
    gui.runAll();
    EXPECT_NE(onlyOne().done, std::nullopt);
    EXPECT_THAT(trace.take().records, IsEmpty());
}

TEST_F(RequestTraceTest, PurgedRequestSaysByWhom)
{
    post(1);
    widget.purgeOwnMessage(nullptr);
    const Told request = onlyOne();
    EXPECT_THAT(request.purgedBy, HasSubstr("(" + std::to_string(gettid()) + ")"));
    EXPECT_EQ(request.run, std::nullopt);
    EXPECT_THAT(trace.take().records, IsEmpty());
}

TEST_F(RequestTraceTest, WhatItsPosterCarriesOutIsDoneAndNotPurged)
{
    const std::uint64_t purged = gPurgedRequests;
    LockMessageQueue();
    Worker worker([&] { widget.postEvent(1); });
    EXPECT_TRUE(worker.isBlocked());
    gui.filter()->uninstall();
    UnlockMessageQueue();
    worker.join();
    const Told request = onlyOne();
    EXPECT_EQ(request.purgedBy, "");
    EXPECT_NE(request.run, std::nullopt);
    EXPECT_NE(request.done, std::nullopt);
    EXPECT_EQ(gPurgedRequests, purged);
}

TEST_F(RequestTraceTest, FacadeMayGoWhileCallersWaitForTheirTurn)
{
    auto doomed = std::make_unique<TestWidget>();
    Worker first([&facade = *doomed] { facade.postEvent(1); });
    gui.waitForQueued(1);
    Worker second([&facade = *doomed] { facade.postEvent(2); });
    EXPECT_TRUE(second.isBlocked());
    doomed.reset();
    first.join();
    second.join();
    for (const Told& request : trace.take().records)
        EXPECT_NE(request.purgedBy, "") << request.number;
}

TEST_F(RequestTraceTest, NothingIsKeptWhileItIsOff)
{
    trace.enable(false);
    post(1);
    EXPECT_EQ(gui.messages().front().iData, 0);
    gui.runAll();
    EXPECT_THAT(trace.take().records, IsEmpty());
}

TEST_F(RequestTraceTest, RequestUnderWayIsToldOnceMoreWhenItIsOff)
{
    post(1);
    trace.enable(false);
    EXPECT_THAT(trace.take().records, SizeIs(1));
    EXPECT_THAT(trace.take().records, IsEmpty());
}

TEST_F(RequestTraceTest, WhatWasQueuedBeforeItWasOnIsNotTold)
{
    trace.enable(false);
    post(1);
    trace.enable(true);
    post(2);
    gui.runAll();
    EXPECT_EQ(onlyOne().number, 2);
}

TEST_F(RequestTraceTest, WhatIsOverwrittenIsCounted)
{
    constexpr int POSTS = 20'000;
    Worker worker([&] {
        for (int i = 0; i < POSTS; ++i)
            widget.postEventAsync(i);
    });
    worker.join();
    gui.runAll();
    post(POSTS);
    gui.runAll();
    const RequestTrace::Taken taken = trace.take();
    EXPECT_EQ(taken.records.size() + taken.lost, POSTS + 1U);
    EXPECT_EQ(taken.records.back().number, POSTS);
    EXPECT_NE(taken.records.back().done, std::nullopt);
}

TEST_F(RequestTraceTest, NewestAreToldWhereThereAreTooMany)
{
    for (int code = 1; code <= 3; ++code)
        post(code);
    gui.runAll();
    const RequestTrace::Taken taken = trace.take(2);
    EXPECT_EQ(taken.records.front().number, 2);
    EXPECT_EQ(taken.lost, 1U);
}

TEST(RequestTraceThreadsTest, EveryRequestOfManyThreadsIsToldOnceItIsDone)
{
    RequestTrace& trace = RequestTrace::instance();
    trace.enable(true);
    constexpr int THREADS = 4;
    constexpr int POSTS = 500;
    std::size_t ended = 0;
    const auto take = [&] {
        for (const Told& request : trace.take().records)
            ended += request.done ? 1 : 0;
    };
    {
        TestWidget widget;
        test::GuiLoop gui;
        {
            std::vector<std::unique_ptr<Worker>> workers;
            for (int n = 0; n < THREADS; ++n)
                workers.push_back(std::make_unique<Worker>([&] {
                    for (int i = 0; i < POSTS; ++i)
                        i % 2 == 0 ? widget.postEventAsync(i) : widget.postEvent(i);
                }));
            while (!std::ranges::all_of(workers, [](const auto& worker) { return worker->hasReturned(); }))
                take();
        }
        gui.settle();
    }
    take();
    take();
    trace.enable(false);
    EXPECT_EQ(ended, static_cast<std::size_t>(THREADS * POSTS));
}
