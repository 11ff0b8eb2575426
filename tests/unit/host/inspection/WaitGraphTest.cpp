#include "host/inspection/WaitGraph.h"

#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

using host::BlockedCall;
using host::GuiStatus;
using host::WaitGraph;
using test::TestWidget;
using test::Worker;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class WaitGraphTest : public test::SteppedTest {
protected:
    static std::vector<int> callers()
    {
        const WaitGraph graph;
        std::vector<int> threads;
        for (const BlockedCall& call : graph.calls())
            threads.push_back(call.thread);
        return threads;
    }
};

int numberOf(const Worker& worker)
{
    return static_cast<int>(worker.threadId());
}

} // namespace

TEST_F(WaitGraphTest, WhoWaitsIsThereUntilHeIsAnswered)
{
    TestWidget widget;
    Worker worker([&] { widget.postEvent(7); });
    gui.waitForQueued(1);
    test::waitUntil([] { return !WaitGraph().calls().empty(); });
    const BlockedCall call = WaitGraph().calls().front();
    EXPECT_EQ(call.thread, numberOf(worker));
    EXPECT_EQ(*call.facade, typeid(TestWidget));
    EXPECT_EQ(call.code, 7);
    EXPECT_GT(call.since, 0);
    gui.runAll();
    worker.join();
    EXPECT_THAT(WaitGraph().calls(), IsEmpty());
}

TEST_F(WaitGraphTest, WhoWaitsForHisTurnIsThereToo)
{
    TestWidget widget;
    Worker first([&] { widget.postEvent(1); });
    gui.waitForQueued(1);
    Worker second([&] { widget.postEventAsync(2); });
    test::waitUntil([] { return callers().size() == 2; });
    EXPECT_THAT(callers(), testing::UnorderedElementsAre(numberOf(first), numberOf(second)));
    while (!first.hasReturned() || !second.hasReturned())
        gui.step();
    gui.runAll();
}

TEST_F(WaitGraphTest, GuiThreadSaysWhatItCarriesOut)
{
    GuiStatus during;
    TestWidget widget([&](auto&) { during = GuiStatus::now(); });
    test::onOtherThread([&] { widget.postEventAsync(7); });
    gui.runAll();
    EXPECT_EQ(during.thread, gettid());
    ASSERT_NE(during.facade, nullptr);
    EXPECT_EQ(*during.facade, typeid(TestWidget));
    EXPECT_EQ(during.code, 7);
    EXPECT_EQ(GuiStatus::now().facade, nullptr);
}

TEST_F(WaitGraphTest, NobodyIsInACycleWhileTheGuiThreadRuns)
{
    TestWidget widget;
    Worker worker([&] { widget.postEvent(7); });
    test::waitUntil([] { return !WaitGraph().calls().empty(); });
    const WaitGraph graph;
    EXPECT_EQ(graph.cycleOf(graph.calls().front()), std::nullopt);
    gui.runAll();
}
