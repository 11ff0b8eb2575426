// Widgets are destroyed while requests for them are queued and callers wait.

#include "Operations.h"
#include "support/Application.h"
#include "support/GuiLoop.h"
#include "support/TestWidget.h"
#include "utilities/Threadable.h"

#include <latch>
#include <memory>

using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Widget;
using test::Chance;
using test::CountedRequest;
using test::GuiLoop;
using test::TestWidget;
using test::Worker;

namespace {

class DestroyingTest : public test::SeededTest {
protected:
    std::atomic<int> liveRequests{0};
};

INSTANTIATE_SEEDED(DestroyingTest);

/// Written as facades are: off the GUI thread its destructor lets the GUI thread delete the private side.
class Facade : public Widget {
public:
    Facade() { Ops::call<CREATE>(*this, mPrivate); }

    ~Facade() override
    {
        purgeOwnMessage(SET);
        Ops::call<DESTROY>(*this, mPrivate);
    }

    void set(int value) { Ops::call<SET>(*this, mPrivate, value); }
    int value() { return Ops::call<GET>(*this, mPrivate); }

    void processGuiRequest(GuiRequestEvent& request) override
    {
        Ops::carryOut(*this, mPrivate, request);
        signalComplete(request);
    }

private:
    enum { CREATE, DESTROY, SET, GET };

    void create() { mPrivate = std::make_unique<int>(0); }
    void destroy() { mPrivate.reset(); }
    static void write(int& stored, int value) { stored = value; }
    static int read(int& stored) { return stored; }

    using Ops =
        DisplayAPI::Operations<DisplayAPI::Posts<CREATE, &Facade::create>, DisplayAPI::Waits<DESTROY, &Facade::destroy>,
                               DisplayAPI::Posts<SET, &write>, DisplayAPI::Waits<GET, &read, -1>>;

    std::unique_ptr<int> mPrivate; ///< GUI thread only
};

} // namespace

/// What is queued ahead of the requests: the loop takes over all that has been queued until it is through with it.
enum class Ahead { THE_DELETION, SOMETHING_ELSE_AND_THE_DELETION };

TEST_P(DestroyingTest, NothingRunsOnAWidgetThatTheGuiThreadHasDeleted)
{
    Chance chance(seed(), 0);
    GuiLoop gui;
    TestWidget bystander;
    int expected = 0;
    for (int round = 0; round < 50; ++round) {
        const Ahead ahead = chance.below(2) == 0 ? Ahead::THE_DELETION : Ahead::SOMETHING_ELSE_AND_THE_DELETION;
        auto* const doomed = new TestWidget([](GuiRequestEvent&) { FAIL() << "carried out after its widget's end"; });
        std::latch queued(1);
        if (ahead == Ahead::SOMETHING_ELSE_AND_THE_DELETION)
            gui.post([&] { queued.wait(); });
        gui.post([&] {
            queued.wait();
            delete doomed;
        });
        for (int requests = chance.below(20); requests > 0; --requests) {
            doomed->postEventAsync(new CountedRequest(doomed, 1, liveRequests));
            bystander.postEventAsync(++expected);
        }
        queued.count_down();
        gui.settle();
        ASSERT_EQ(liveRequests, 0);
    }
    EXPECT_EQ(static_cast<int>(bystander.codes().size()), expected);
}

TEST_P(DestroyingTest, CallersOfADeletedWidgetReturn)
{
    Chance chance(seed(), 0);
    GuiLoop gui;
    for (int round = 0; round < 30; ++round) {
        auto* const doomed = new TestWidget;
        std::latch queued(1);
        gui.post([&] {
            queued.wait();
            delete doomed;
        });
        for (int requests = chance.below(5); requests > 0; --requests)
            doomed->postEventAsync(1);
        Worker caller([&] { doomed->postEvent(new CountedRequest(doomed, 2, liveRequests)); });
        test::waitUntil([&] { return liveRequests == 1 && caller.isBlocked(); });
        queued.count_down();
        caller.join();
        gui.settle();
        ASSERT_EQ(liveRequests, 0);
    }
}

TEST_P(DestroyingTest, FacadesOfManyThreadsComeAndGo)
{
    GuiLoop gui;
    test::onThreads(4, [&](int thread) {
        Chance chance(seed(), thread);
        for (int round = 0; round < 200; ++round) {
            Facade facade;
            int last = 0;
            for (int calls = chance.below(10); calls > 0; --calls)
                facade.set(last = chance.below(1000));
            if (chance.oneIn(2)) {
                ASSERT_EQ(facade.value(), last);
                facade.set(-1);
            }
        }
    });
}
