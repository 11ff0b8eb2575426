#include "DisplayAPI/ItemStateListener.h"

#include "CommandExecutor.h"
#include "DisplayAPI/DisplayThreadPool.h"
#include "host/utilities/Log.h"
#include "utilities/Threadable.h"

#include <gmock/gmock.h>

#include <latch>
#include <optional>
#include <type_traits>

using DisplayAPI::CommandExecutor;
using DisplayAPI::Item;
using DisplayAPI::ItemStateListener;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(std::is_abstract_v<ItemStateListener>);
static_assert(!std::has_virtual_destructor_v<ItemStateListener>);

namespace {

class Listener final : public ItemStateListener {
public:
    void itemStateChanged(Item* item) override { received.push_back(item); }
    std::vector<Item*> received;
};

class ItemStateListenerTest : public testing::Test {
protected:
    /// A thread that still ends a delivery would be the only one to deliver.
    ~ItemStateListenerTest() override { delete DisplayAPI::DisplayThreadPool::instance(1); }

    static void queue(Listener& target, Item* item) { CommandExecutor::postCommand(&target, item, false); }
    static void deliver() { CommandExecutor().run(); }

    // Never looked at by the executor.
    Item* const first = reinterpret_cast<Item*>(0x1000);
    Item* const second = reinterpret_cast<Item*>(0x2000);
    Listener listener;
};

} // namespace

TEST_F(ItemStateListenerTest, APostedChangeIsDeliveredOnAnotherThread)
{
    class Waiting final : public ItemStateListener {
    public:
        void itemStateChanged(Item* i) override
        {
            item = i;
            thread = Threadable::currentThreadId();
            called.count_down();
        }
        Item* item = nullptr;
        unsigned int thread = 0;
        std::latch called{1};
    } waiting;

    waiting.postItemStateChange(first);
    waiting.called.wait();

    EXPECT_EQ(waiting.item, first);
    EXPECT_NE(waiting.thread, Threadable::currentThreadId());
}

TEST_F(ItemStateListenerTest, PendingChangesOfAnItemCanBeRetrieved)
{
    queue(listener, first);
    queue(listener, second);

    listener.retrievePendingItemStateChange(first);
    deliver();

    EXPECT_THAT(listener.received, ElementsAre(second));
}

TEST_F(ItemStateListenerTest, AllPendingChangesCanBeRetrieved)
{
    Listener other;
    queue(listener, first);
    queue(other, first);
    queue(listener, second);

    listener.retrievePendingItemStateChange(nullptr);
    deliver();

    EXPECT_THAT(listener.received, IsEmpty());
    EXPECT_THAT(other.received, ElementsAre(first));
}

TEST_F(ItemStateListenerTest, DeletingAListenerRecallsItsChanges)
{
    host::LogCapture recalls;
    std::optional<Listener> doomed(std::in_place);
    queue(*doomed, first);
    queue(listener, second);
    queue(*doomed, second);

    doomed.reset();
    EXPECT_EQ(recalls.lines().size(), 2u);
    deliver();

    EXPECT_THAT(listener.received, ElementsAre(second));
}
