// Memory for message records runs out now and then.

#include "DisplayAPI/GuiRequestEvent.h"
#include "host/toolkit/MessagePool.h"
#include "host/utilities/Log.h"
#include "support/Application.h"
#include "support/GuiLoop.h"
#include "support/TestWidget.h"

using test::Chance;
using test::CountedRequest;
using test::GuiLoop;
using test::TestWidget;

namespace {

constexpr int POSTERS = 3;
constexpr int CALLS = 1000;

using LostRequestTest = test::SeededTest;

INSTANTIATE_SEEDED(LostRequestTest);

void post(TestWidget& widget, DisplayAPI::GuiRequestEvent* request, Chance& chance)
{
    if (chance.oneIn(4))
        widget.postEvent(request);
    else
        widget.postEventAsync(request);
}

void postWithoutMemory(TestWidget& widget, DisplayAPI::GuiRequestEvent* request, Chance& chance)
{
    const host::MessagePool::Drained drained;
    post(widget, request, chance);
}

} // namespace

TEST_P(LostRequestTest, EveryRequestIsCarriedOutOrLoggedAsLostAndNobodyWaitsForEver)
{
    host::LogCapture lost({.level = 2, .modulePrefix = "DisplayAPI::Widget"});
    std::atomic<int> live{0};
    GuiLoop gui;
    TestWidget widget;
    test::onThreads(POSTERS, [&](int thread) {
        Chance chance(seed(), thread);
        for (int call = 0; call < CALLS; ++call) {
            const auto how = chance.oneIn(20) ? postWithoutMemory : post;
            how(widget, new CountedRequest(&widget, call, live), chance);
        }
    });
    gui.settle();

    EXPECT_EQ(widget.codes().size() + lost.lines().size(), static_cast<std::size_t>(POSTERS * CALLS));
    EXPECT_EQ(live, 0);
    RecordProperty("lost", static_cast<int>(lost.lines().size()));
}
