#include "DisplayAPI/Widget.h"

#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Widget;
using test::Worker;
using testing::ElementsAre;

namespace {

/// A widget that can be copied.
class CopiedWidget : public Widget {
public:
    void processGuiRequest(GuiRequestEvent& request) override { signalComplete(request); }
    using Widget::name;
};

/// Copies share the source's request lock and each deletes it: one of them must never be destroyed. It stays reachable,
/// so it is no leak.
template <typename T>
T& neverDestroyed(T* widget)
{
    static auto& kept = *new std::vector<T*>;
    kept.push_back(widget);
    return *widget;
}

class WidgetCopyTest : public test::SteppedTest {
protected:
    /// Whether a waiting call on `first` makes a post on `second` wait.
    bool shareRequestLock(Widget& first, Widget& second)
    {
        Worker holder([&] { first.postEvent(1); });
        gui.waitForQueued(1);
        Worker poster([&] { second.postEventAsync(2); });
        const bool share = poster.isBlocked();
        EXPECT_EQ(gui.queued(), share ? 1 : 2);
        gui.step();
        poster.join();
        gui.runAll();
        return share;
    }
};

} // namespace

TEST_F(WidgetCopyTest, TwoWidgetsHaveRequestLocksOfTheirOwn)
{
    CopiedWidget first;
    CopiedWidget second;
    EXPECT_FALSE(shareRequestLock(first, second));
}

TEST_F(WidgetCopyTest, ACopySharesTheRequestLockOfItsSource)
{
    CopiedWidget source;
    auto& copy = neverDestroyed(new CopiedWidget(source));
    EXPECT_TRUE(shareRequestLock(source, copy));
    EXPECT_TRUE(shareRequestLock(copy, source));
}

TEST_F(WidgetCopyTest, ACopyIsNamedWidget)
{
    CopiedWidget source;
    source.name = "Counter";
    const auto& copy = neverDestroyed(new CopiedWidget(source));
    EXPECT_EQ(copy.name, "Widget");
}

TEST_F(WidgetCopyTest, AnAssignedWidgetSharesTheRequestLockOfItsSource)
{
    CopiedWidget source;
    auto& target = neverDestroyed(new CopiedWidget);
    target = source;
    EXPECT_TRUE(shareRequestLock(source, target));
}

TEST_F(WidgetCopyTest, AnAssignedWidgetGivesUpItsOwnLock)
{
    CopiedWidget source;
    auto& target = neverDestroyed(new CopiedWidget);
    auto& sharer = neverDestroyed(new CopiedWidget(source));
    target = source;
    EXPECT_TRUE(shareRequestLock(target, sharer));
}

TEST_F(WidgetCopyTest, AnAssignedWidgetKeepsItsName)
{
    CopiedWidget source;
    source.name = "Counter";
    auto& target = neverDestroyed(new CopiedWidget);
    target.name = "Clock";
    target = source;
    EXPECT_EQ(target.name, "Clock");
}

TEST_F(WidgetCopyTest, SelfAssignmentDoesNothing)
{
    CopiedWidget widget;
    const CopiedWidget& same = widget;
    widget = same;

    widget.postEventAsync(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    gui.runAll();
}

TEST_F(WidgetCopyTest, ACopyHasNoQueuedRequestsOfItsSource)
{
    CopiedWidget source;
    source.postEventAsync(1);
    auto& copy = neverDestroyed(new CopiedWidget(source));

    copy.purgeOwnMessage(nullptr);

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    gui.runAll();
}
