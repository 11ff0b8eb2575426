#include "DisplayAPI/CommandListener.h"

#include "CommandExecutor.h"
#include "DisplayAPI/Command.h"
#include "DisplayAPI/DisplayThreadPool.h"
#include "host/utilities/Log.h"
#include "utilities/Threadable.h"

#include <gmock/gmock.h>

#include <latch>
#include <optional>
#include <type_traits>

using DisplayAPI::Command;
using DisplayAPI::CommandExecutor;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

static_assert(std::has_virtual_destructor_v<CommandListener>);
static_assert(std::is_abstract_v<CommandListener>);

namespace {

class Listener : public CommandListener {
public:
    void commandAction(Command* command, Displayable* displayable) override
    {
        received.emplace_back(command, displayable);
    }
    std::vector<std::pair<Command*, Displayable*>> received;
};

class CommandListenerTest : public testing::Test {
protected:
    /// A thread that still ends a delivery would be the only one to deliver.
    ~CommandListenerTest() override { delete DisplayAPI::DisplayThreadPool::instance(1); }

    /// Queues without delivering.
    void queue(CommandListener& target, Command& command, Displayable* displayable)
    {
        CommandExecutor::postCommand(&target, &command, displayable, false);
    }

    static void deliver() { CommandExecutor().run(); }

    // Never looked at by the executor.
    Displayable* const screen = reinterpret_cast<Displayable*>(0x1000);
    Displayable* const popup = reinterpret_cast<Displayable*>(0x2000);
    Command call{"Call", Command::OK};
    Command back{"Back", Command::BACK};
    Listener listener;
};

} // namespace

TEST_F(CommandListenerTest, APostedCommandIsDeliveredOnAnotherThread)
{
    class Waiting : public CommandListener {
    public:
        void commandAction(Command* c, Displayable* d) override
        {
            command = c;
            displayable = d;
            thread = Threadable::currentThreadId();
            called.count_down();
        }
        Command* command = nullptr;
        Displayable* displayable = nullptr;
        unsigned int thread = 0;
        std::latch called{1};
    } waiting;

    waiting.postCommandAction(&call, screen);
    waiting.called.wait();

    EXPECT_EQ(waiting.command, &call);
    EXPECT_EQ(waiting.displayable, screen);
    EXPECT_NE(waiting.thread, Threadable::currentThreadId());
}

TEST_F(CommandListenerTest, NullsTravelThrough)
{
    CommandExecutor::postCommand(&listener, nullptr, nullptr, false);
    deliver();
    EXPECT_THAT(listener.received, ElementsAre(Pair(nullptr, nullptr)));
}

TEST_F(CommandListenerTest, PendingActionsOfACommandCanBeRetrieved)
{
    queue(listener, call, screen);
    queue(listener, back, screen);
    queue(listener, call, popup);

    listener.retrievePendingCommandAction(&call, nullptr);
    deliver();

    EXPECT_THAT(listener.received, ElementsAre(Pair(&back, screen)));
}

TEST_F(CommandListenerTest, PendingActionsOnADisplayableCanBeRetrieved)
{
    queue(listener, call, screen);
    queue(listener, call, popup);
    queue(listener, back, popup);

    listener.retrievePendingCommandAction(nullptr, popup);
    deliver();

    EXPECT_THAT(listener.received, ElementsAre(Pair(&call, screen)));
}

TEST_F(CommandListenerTest, APendingActionCanBeRetrievedByBoth)
{
    queue(listener, call, screen);
    queue(listener, call, popup);

    listener.retrievePendingCommandAction(&call, screen);
    deliver();

    EXPECT_THAT(listener.received, ElementsAre(Pair(&call, popup)));
}

TEST_F(CommandListenerTest, RetrievingLeavesOtherListenersAlone)
{
    Listener other;
    queue(listener, call, screen);
    queue(other, call, screen);

    listener.retrievePendingCommandAction(nullptr, nullptr);
    deliver();

    EXPECT_THAT(listener.received, IsEmpty());
    EXPECT_THAT(other.received, ElementsAre(Pair(&call, screen)));
}

TEST_F(CommandListenerTest, DeletingAListenerRecallsItsNotifications)
{
    host::LogCapture recalls;
    std::optional<Listener> doomed(std::in_place);
    queue(*doomed, call, screen);
    queue(listener, call, screen);
    queue(*doomed, back, popup);

    doomed.reset();
    EXPECT_EQ(recalls.lines().size(), 2u);
    deliver();

    EXPECT_THAT(listener.received, ElementsAre(Pair(&call, screen)));
}

TEST_F(CommandListenerTest, AListenerMayDeleteItselfInItsNotification)
{
    class Once : public CommandListener {
    public:
        explicit Once(int& calls) : mCalls(calls) {}
        void commandAction(Command*, Displayable*) override
        {
            ++mCalls;
            delete this;
        }

    private:
        int& mCalls;
    };
    int calls = 0;
    auto* const once = new Once(calls);
    queue(*once, call, screen);
    queue(*once, call, screen);

    deliver();

    EXPECT_EQ(calls, 1);
}
