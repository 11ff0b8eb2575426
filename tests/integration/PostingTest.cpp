// Several application threads post to several widgets while the loop runs.

#include "host/toolkit/MessagePool.h"
#include "support/Application.h"
#include "support/GuiLoop.h"
#include "support/TestWidget.h"
#include "utilities/Threadable.h"

#include <gmock/gmock.h>

#include <array>
#include <numeric>

using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Widget;
using test::Chance;
using test::CountedRequest;
using test::GuiLoop;
using test::TestWidget;

namespace {

constexpr int THREADS = 4;
constexpr int CALLS = 1500;
constexpr int CODE = 1;

class PostingTest : public test::SeededTest {
protected:
    /// Posts in one of the ways that keep the order of one thread's calls.
    static void postInOrder(Widget& widget, GuiRequestEvent* record, Chance& chance)
    {
        if (chance.oneIn(8))
            widget.postEvent(record);
        else
            widget.postEventHelper(true, record);
    }

    static void postSomehow(Widget& widget, GuiRequestEvent* record, Chance& chance)
    {
        switch (chance.below(8)) {
        case 0: widget.postEvent(record); break;
        case 1: widget.postTopEvent(record); break;
        default: widget.postEventAsync(record); break;
        }
    }
};

INSTANTIATE_SEEDED(PostingTest);

/// Checks that each thread's calls arrive in the order in which they were made.
class OrderedWidget : public TestWidget {
public:
    OrderedWidget()
        : TestWidget([this](GuiRequestEvent& request) {
              EXPECT_EQ(request.intParam2, mNext[static_cast<std::size_t>(request.intParam1)]++);
          })
    {
    }

    int handled() const { return static_cast<int>(codes().size()); }

private:
    std::array<int, THREADS> mNext{};
};

} // namespace

TEST_P(PostingTest, CallsOfOneThreadOnOneWidgetKeepTheirOrder)
{
    GuiLoop gui;
    std::array<OrderedWidget, 3> widgets;
    test::onThreads(THREADS, [&](int thread) {
        Chance chance(seed(), thread);
        std::array<int, 3> next{};
        for (int call = 0; call < CALLS; ++call) {
            const auto widget = static_cast<std::size_t>(chance.below(3));
            postInOrder(widgets[widget], test::numbered(widgets[widget], CODE, thread, next[widget]++), chance);
        }
    });
    gui.settle();

    EXPECT_EQ(widgets[0].handled() + widgets[1].handled() + widgets[2].handled(), THREADS * CALLS);
}

TEST_P(PostingTest, EveryRequestIsCarriedOutOnceOnTheGuiThread)
{
    GuiLoop gui;
    TestWidget widget;
    std::atomic<int> live{0};
    test::onThreads(THREADS, [&](int thread) {
        Chance chance(seed(), thread);
        for (int call = 0; call < CALLS; ++call)
            postSomehow(widget, new CountedRequest(&widget, CODE, live), chance);
    });
    gui.settle();

    EXPECT_EQ(widget.codes().size(), static_cast<std::size_t>(THREADS * CALLS));
    EXPECT_THAT(widget.threads(), testing::Each(gui.threadId()));
    EXPECT_EQ(live, 0) << "every record is deleted";
}

TEST_P(PostingTest, QueriesFromManyThreadsGetTheirOwnAnswers)
{
    GuiLoop gui;
    TestWidget widget([](GuiRequestEvent& request) { test::answer(request, request.intParam1 * 2); });
    test::onThreads(THREADS, [&](int thread) {
        for (int call = 0; call < CALLS; ++call) {
            const int question = thread * CALLS + call;
            ASSERT_EQ(test::ask(widget, CODE, question), 2 * question);
        }
    });
}

TEST_P(PostingTest, AHandlerMayPostFurtherRequests)
{
    constexpr int LAST = 200;
    GuiLoop gui;
    TestWidget second;
    TestWidget first([&](GuiRequestEvent& request) {
        if (request.getType() < LAST)
            first.postEventAsync(request.getType() + 1);
        second.postEventAsync(request.getType());
    });
    first.postEventAsync(1); // a waiting caller would hold the request lock while the handler posts
    test::waitUntil([&] { return second.codes().size() == LAST; });

    std::vector<int> expected(LAST);
    std::iota(expected.begin(), expected.end(), 1);
    EXPECT_EQ(first.codes(), expected);
    EXPECT_EQ(second.codes(), expected);
}

TEST_P(PostingTest, EveryMessageRecordGoesBackToThePool)
{
    {
        GuiLoop gui;
        TestWidget widget;
        test::onThreads(THREADS, [&](int thread) {
            Chance chance(seed(), thread);
            for (int call = 0; call < CALLS; ++call)
                postSomehow(widget, new GuiRequestEvent(&widget, CODE), chance);
        });
        gui.settle();
    }
    const host::MessagePool::Counters counters = host::MessagePool::counters();
    EXPECT_EQ(counters.free, counters.records);
}
