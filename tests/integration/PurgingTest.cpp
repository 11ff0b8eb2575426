// Requests are purged and dequeued by one thread while others post them and the loop carries them out.

#include "DisplayAPI/GuiRequestEvent.h"
#include "support/Application.h"
#include "support/GuiLoop.h"
#include "support/TestWidget.h"
#include "utilities/Wait.h"

#include <set>

using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Widget;
using test::Chance;
using test::GuiLoop;
using test::TestWidget;

namespace {

constexpr int POSTERS = 3;
constexpr int CALLS = 1500;
constexpr int CODES = 4;

struct Fates {
    std::atomic<int> handled{0};
    std::atomic<int> purged{0};
    std::atomic<int> dequeued{0};

    int total() const { return handled + purged + dequeued; }
};

/// Counts what becomes of it: whoever neither handles nor dequeues a request has purged it.
class FatedRequest : public GuiRequestEvent {
public:
    FatedRequest(Widget* requester, int code, Fates& fates) : GuiRequestEvent(requester, code), mFates(fates) {}
    ~FatedRequest() override { ++(handled ? mFates.handled : dequeued ? mFates.dequeued : mFates.purged); }

    bool handled = false;
    bool dequeued = false;

private:
    Fates& mFates;
};

class PurgingTest : public test::SeededTest {
protected:
    void post(Widget& target, Chance& chance)
    {
        auto* const request = new FatedRequest(&target, chance.below(CODES), fates);
        switch (chance.below(6)) {
        case 0: target.postEvent(request); break;
        case 1: target.postTopEvent(request); break;
        case 2: postWithOwnCondition(target, request); break;
        default: target.postEventAsync(request); break;
        }
    }

    static void postWithOwnCondition(Widget& target, GuiRequestEvent* request)
    {
        Wait condition;
        request->setWaitCondition(&condition);
        target.postEvent(request);
    }

    static void remove(Widget& target, Chance& chance)
    {
        std::set<int> codes{chance.below(CODES), chance.below(CODES)};
        switch (chance.below(5)) {
        case 0: target.purgeOwnMessage(*codes.begin()); break;
        case 1: target.purgeOwnMessage(&codes); break;
        case 2: target.purgeOwnMessage(nullptr); break;
        case 3: finish(target.dequeueOwnMessage(*codes.begin())); break;
        case 4: finish(target.dequeueOwnMessage(&codes)); break;
        }
    }

    /// What whoever dequeues a request owes to its caller.
    static void finish(GuiRequestEvent* request)
    {
        if (request == nullptr)
            return;
        static_cast<FatedRequest*>(request)->dequeued = true;
        request->signalComplete();
        delete request;
    }

    static TestWidget::Handler handler()
    {
        return [](GuiRequestEvent& request) { static_cast<FatedRequest&>(request).handled = true; };
    }

    Fates fates;
};

INSTANTIATE_SEEDED(PurgingTest);

} // namespace

TEST_P(PurgingTest, EveryRequestHasExactlyOneFateAndEveryCallerReturns)
{
    GuiLoop gui;
    TestWidget widget(handler());
    std::atomic<int> posting{POSTERS};
    test::onThreads(POSTERS + 1, [&](int thread) {
        Chance chance(seed(), thread);
        if (thread == POSTERS) {
            while (posting > 0)
                remove(widget, chance);
            return;
        }
        for (int call = 0; call < CALLS; ++call)
            post(widget, chance);
        --posting;
    });
    gui.settle();

    EXPECT_EQ(fates.total(), POSTERS * CALLS);
    EXPECT_EQ(fates.handled, static_cast<int>(widget.codes().size()));
    RecordProperty("purged", fates.purged);
    RecordProperty("dequeued", fates.dequeued);
}

TEST_P(PurgingTest, PurgingOneWidgetTakesNothingFromAnother)
{
    GuiLoop gui;
    TestWidget purged(handler());
    TestWidget spared;
    test::onThreads(POSTERS, [&](int thread) {
        Chance chance(seed(), thread);
        for (int call = 0; call < CALLS; ++call) {
            post(purged, chance);
            spared.postEventAsync(call);
            if (chance.oneIn(4))
                remove(purged, chance);
        }
    });
    gui.settle();

    EXPECT_EQ(spared.codes().size(), static_cast<std::size_t>(POSTERS * CALLS));
    EXPECT_EQ(fates.total(), POSTERS * CALLS);
}

TEST_P(PurgingTest, AHandlerMayPurgeItsOwnWidget)
{
    GuiLoop gui;
    Chance guisChance(seed(), POSTERS);
    TestWidget widget([&](GuiRequestEvent& request) {
        static_cast<FatedRequest&>(request).handled = true;
        remove(widget, guisChance);
    });
    test::onThreads(POSTERS, [&](int thread) {
        Chance chance(seed(), thread);
        for (int call = 0; call < CALLS; ++call)
            post(widget, chance);
    });
    gui.settle();

    EXPECT_EQ(fates.total(), POSTERS * CALLS);
}
