#include "DisplayEventFilter.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Replaced.h"
#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "toolkit/PegFunctions.h"
#include "toolkit/PegMessageQueue.h"
#include "toolkit/PegScreen.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

using DisplayAPI::DisplayEventFilter;
using DisplayAPI::DisplayRequestEvent;
using DisplayAPI::GuiRequestEvent;
using test::TestWidget;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Trace = std::vector<std::string>;

/// Notes what the filter asks of the screen.
class TracedScreen : public PegScreen {
public:
    explicit TracedScreen(Trace& trace) : mTrace(trace) {}
    void Invalidate(PegThing* thing) override { mTrace.push_back("invalidate " + std::to_string(thing->Id())); }
    void Update() override { mTrace.push_back("update"); }

private:
    Trace& mTrace;
};

class TracedRequest : public GuiRequestEvent {
public:
    TracedRequest(TestWidget& widget, Trace& trace) : GuiRequestEvent(&widget, 1), mTrace(trace) {}
    ~TracedRequest() override { mTrace.push_back("delete"); }

private:
    Trace& mTrace;
};

class TracedDisplayRequest : public DisplayRequestEvent {
public:
    TracedDisplayRequest(DisplayAPI::Display& display, Trace& trace)
        : DisplayRequestEvent(&display, SHOW, nullptr, false), mTrace(trace)
    {
    }
    ~TracedDisplayRequest() override { mTrace.push_back("delete"); }

private:
    Trace& mTrace;
};

/// A display that notes its requests and has no private side.
class TracedDisplay : public DisplayAPI::Display {
public:
    explicit TracedDisplay(Trace& trace) : Display(nullptr), mTrace(trace) {}

    void processDisplayRequest(DisplayRequestEvent* request) override
    {
        mTrace.push_back("display request " + std::to_string(request->getType()));
    }

private:
    Trace& mTrace;
};

/// Notes the messages that are handed up to it.
class ReceivingThing : public PegThing {
public:
    int Message(const PegMessage& message) override
    {
        received.push_back(message);
        return 0;
    }
    std::vector<PegMessage> received;
};

class DisplayEventFilterTest : public test::SteppedTest {
protected:
    int send(PegMessageType type, void* data)
    {
        return gui.filter()->Message({static_cast<std::uint16_t>(type), 0, gui.filter(), gui.filter(), nullptr, data});
    }

    Trace trace;
    TestWidget widget{[this](GuiRequestEvent&) { trace.push_back("handle"); }};
};

} // namespace

TEST_F(DisplayEventFilterTest, IsAnInvisibleThing)
{
    EXPECT_EQ(gui.filter()->Id(), 0);
    EXPECT_EQ(gui.filter()->Style(), 1);
    EXPECT_EQ(gui.filter()->Area(), (PegRect{0, 0, 1, 1}));
    EXPECT_EQ(gui.filter()->Parent(), nullptr);
}

// Installing

TEST_F(DisplayEventFilterTest, IsInstalledOnlyWhereAskedFor)
{
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), gui.filter());

    const DisplayEventFilter spare(false);
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), gui.filter());
}

TEST_F(DisplayEventFilterTest, NoneIsInstalledOnceTheInstalledOneIsDestroyed)
{
    gui.removeFilter();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), nullptr);
}

TEST_F(DisplayEventFilterTest, ALaterOneTakesOver)
{
    std::optional<DisplayEventFilter> later(std::in_place, true);
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), &*later);

    gui.removeFilter();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), &*later) << "the earlier one is not the installed one";

    later.reset();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), nullptr);
}

TEST_F(DisplayEventFilterTest, TheOneBeforeTakesOverAgainWhenTheLaterOneIsDestroyed)
{
    std::optional<DisplayEventFilter> second(std::in_place, true);
    std::optional<DisplayEventFilter> third(std::in_place, true);

    third.reset();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), &*second);

    second.reset();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), gui.filter());
}

TEST_F(DisplayEventFilterTest, OneThatIsGoneDoesNotTakeOver)
{
    std::optional<DisplayEventFilter> second(std::in_place, true);
    std::optional<DisplayEventFilter> third(std::in_place, true);

    second.reset();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), &*third);

    third.reset();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), gui.filter());
}

TEST_F(DisplayEventFilterTest, WhatIsQueuedForOneThatIsDestroyedIsCarriedOutByTheOneThatTakesOver)
{
    std::optional<DisplayEventFilter> second(std::in_place, true);
    widget.postEventAsync(1);
    gui.takeOver();
    test::Worker caller([this] { widget.postEvent(2); });
    gui.waitForQueued(2);

    second.reset();

    for (const PegMessage& message : gui.messages()) {
        EXPECT_EQ(message.pTarget, gui.filter());
        EXPECT_EQ(message.pSource, gui.filter());
    }
    gui.runAll();
    EXPECT_THAT(widget.codes(), ElementsAre(1, 2));
}

TEST_F(DisplayEventFilterTest, WhatIsQueuedForAnEarlierOneIsCarriedOutByTheInstalledOne)
{
    std::optional<DisplayEventFilter> second(std::in_place, true);
    widget.postEventAsync(1);
    DisplayEventFilter third(true);

    second.reset();

    EXPECT_EQ(gui.messages().at(0).pTarget, &third);
    gui.runAll();
    EXPECT_THAT(widget.codes(), ElementsAre(1));
}

TEST_F(DisplayEventFilterTest, OthersMessagesKeepTheirTargets)
{
    ReceivingThing thing;
    std::optional<DisplayEventFilter> second(std::in_place, true);
    PegMessageQueue().Push({PM_KEY, 1, &thing});

    second.reset();
    gui.runAll();

    EXPECT_EQ(thing.received.size(), 1u);
}

TEST_F(DisplayEventFilterTest, UninstallingRemovesOnlyItself)
{
    DisplayEventFilter spare(false);
    spare.uninstall();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), gui.filter());

    gui.filter()->uninstall();
    EXPECT_EQ(DisplayEventFilter::getFilterPointer(), nullptr);
}

// Widget requests

TEST_F(DisplayEventFilterTest, CarriesOutAWidgetRequestAndDeletesIt)
{
    EXPECT_EQ(send(PM_WIDGET_REQUEST, new TracedRequest(widget, trace)), 0);
    EXPECT_THAT(trace, ElementsAre("handle", "delete"));
    EXPECT_THAT(widget.codes(), ElementsAre(1));
}

TEST_F(DisplayEventFilterTest, RepaintsWhatIsPendingAfterAWidgetRequest)
{
    TracedScreen screen(trace);
    const test::Replaced<PegScreen*> traced(PegThing::mpScreen, &screen);
    PegThing shown(77);
    gpPresent->Add(&shown);
    ASSERT_EQ(gpPresent->Pending(), &shown);
    trace.clear();

    send(PM_WIDGET_REQUEST, new TracedRequest(widget, trace));

    EXPECT_THAT(trace, ElementsAre("handle", "invalidate 77", "update", "delete"));
    gpPresent->Remove(&shown);
}

TEST_F(DisplayEventFilterTest, RepaintsWhatTheHandlerHasMadePending)
{
    TracedScreen screen(trace);
    const test::Replaced<PegScreen*> traced(PegThing::mpScreen, &screen);
    PegThing shown(78);
    TestWidget adder([&](GuiRequestEvent&) {
        gpPresent->Add(&shown);
        trace.clear();
    });

    send(PM_WIDGET_REQUEST, new TracedRequest(adder, trace));

    EXPECT_THAT(trace, ElementsAre("invalidate 78", "update", "delete"));
    gpPresent->Remove(&shown);
}

TEST_F(DisplayEventFilterTest, LeavesTheScreenAloneWhereNothingIsPending)
{
    TracedScreen screen(trace);
    const test::Replaced<PegScreen*> traced(PegThing::mpScreen, &screen);
    ASSERT_EQ(gpPresent->Pending(), nullptr);

    send(PM_WIDGET_REQUEST, new TracedRequest(widget, trace));

    EXPECT_THAT(trace, ElementsAre("handle", "delete"));
}

TEST_F(DisplayEventFilterTest, LeavesTheScreenAloneWithoutAPresentationManager)
{
    const test::Replaced<PRESCPresentationManager*> none(gpPresent, nullptr);
    const test::Replaced<PegScreen*> noScreen(PegThing::mpScreen, nullptr);

    send(PM_WIDGET_REQUEST, new TracedRequest(widget, trace));

    EXPECT_THAT(trace, ElementsAre("handle", "delete"));
}

// Display requests

TEST_F(DisplayEventFilterTest, HandsADisplayRequestToItsDisplayAndDeletesIt)
{
    TracedDisplay display(trace);
    EXPECT_EQ(send(PM_DISPLAY_REQUEST, new TracedDisplayRequest(display, trace)), 0);
    EXPECT_THAT(trace, ElementsAre("display request 1", "delete"));
}

TEST_F(DisplayEventFilterTest, DoesNotRepaintAfterADisplayRequest)
{
    TracedDisplay display(trace);
    TracedScreen screen(trace);
    const test::Replaced<PegScreen*> traced(PegThing::mpScreen, &screen);
    PegThing shown(79);
    gpPresent->Add(&shown);
    trace.clear();

    send(PM_DISPLAY_REQUEST, new TracedDisplayRequest(display, trace));

    EXPECT_THAT(trace, ElementsAre("display request 1", "delete"));
    gpPresent->Remove(&shown);
}

// Everything else

TEST_F(DisplayEventFilterTest, LeavesOtherMessagesToTheToolkitUnchanged)
{
    ReceivingThing parent;
    parent.Add(gui.filter());
    int data = 0;
    const PegMessage key{PM_KEY, PK_OK, gui.filter(), &parent, nullptr, &data};

    EXPECT_EQ(gui.filter()->Message(key), 0);

    ASSERT_EQ(parent.received.size(), 1u) << "the toolkit's default hands keys up";
    EXPECT_EQ(parent.received[0].wType, key.wType);
    EXPECT_EQ(parent.received[0].iData, key.iData);
    EXPECT_EQ(parent.received[0].pTarget, key.pTarget);
    EXPECT_EQ(parent.received[0].pSource, key.pSource);
    EXPECT_EQ(parent.received[0].pData, key.pData);
    parent.Remove(gui.filter());
}

TEST_F(DisplayEventFilterTest, NeighbouringTypesAreNoRequests)
{
    int untouched = 0;
    for (const int type : {0x3FFF, 0x4002, 0x401E, 0})
        EXPECT_EQ(send(static_cast<PegMessageType>(type), &untouched), 0);
    EXPECT_THAT(trace, IsEmpty());
}

TEST_F(DisplayEventFilterTest, HasNothingToSayAboutEvents)
{
    const PegMessage message;
    EXPECT_EQ(gui.filter()->eventInfo(&message), "");
    EXPECT_EQ(gui.filter()->eventInfo(nullptr), "");
    EXPECT_EQ(gui.filter()->typeToString(0x4000), "");
}
