// The way of a user's action: raised on the GUI thread, delivered on a pool thread, answered by a call to a facade.

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/ItemStateListener.h"
#include "support/GuiLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "utilities/Threadable.h"

#include <gtest/gtest.h>

#include <latch>

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Item;
using DisplayAPI::ItemStateListener;
using DisplayAPI::Widget;
using test::GuiLoop;
using test::TestWidget;

namespace {

constexpr int ACTIONS = 500;

/// Calls a facade and waits for it from each notification.
class Application final : public CommandListener, public ItemStateListener {
public:
    explicit Application(TestWidget& widget) : mWidget(widget) {}

    void commandAction(Command*, Displayable*) override { ask(); }
    void itemStateChanged(Item*) override { ask(); }

    void waitUntilFinished() { mFinished.wait(); }
    int answers() const { return mAnswers; }

private:
    void ask()
    {
        EXPECT_FALSE(Widget::isGuiThread());
        EXPECT_EQ(test::ask(mWidget, 1, mAnswers), mAnswers + 1);
        if (++mAnswers == ACTIONS)
            mFinished.count_down();
    }

    TestWidget& mWidget;
    int mAnswers = 0;
    std::latch mFinished{1};
};

} // namespace

TEST(UserActionTest, AListenerMayWaitForAFacadeWhileTheGuiThreadRaisesTheNextCommand)
{
    GuiLoop gui;
    const Command anchor("anchor", Command::OK);
    Command command("Call", Command::OK);
    CommandListener* listener = nullptr;
    TestWidget widget([&](GuiRequestEvent& request) {
        test::answer(request, request.intParam1 + 1);
        if (request.intParam1 + 1 < ACTIONS)
            listener->postCommandAction(&command, nullptr);
    });
    Application application(widget);
    listener = &application;
    gui.call([&] { listener->postCommandAction(&command, nullptr); });
    application.waitUntilFinished();
    EXPECT_EQ(application.answers(), ACTIONS);
}

TEST(UserActionTest, ManyActionsAtOnceAreAnsweredOneAfterAnother)
{
    GuiLoop gui;
    TestWidget widget([&](GuiRequestEvent& request) { test::answer(request, request.intParam1 + 1); });
    Application application(widget);
    gui.call([&] {
        for (int action = 1; action <= ACTIONS; ++action)
            application.postItemStateChange(reinterpret_cast<Item*>(static_cast<std::size_t>(action)));
    });
    application.waitUntilFinished();
    EXPECT_EQ(application.answers(), ACTIONS);
}
