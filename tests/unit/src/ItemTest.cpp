#include "DisplayAPI/Item.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/ItemStateListener.h"
#include "doubles/Screen.h"
#include "unit/src/PoolGate.h"

#include <gmock/gmock.h>

#include <memory>
#include <mutex>
#include <vector>

using namespace DisplayAPI;

namespace {

/// An item that overrides nothing that it need not.
class PlainItem : public Item {
public:
    void processGuiRequest(GuiRequestEvent& request) override { signalComplete(request); }
    ItemPrivateIfc* getPrivateImpl() override { return nullptr; }
    void localeChanged(std::string) override {}
};

/// Notes whose changes arrive.
class NotingListener : public ItemStateListener {
public:
    void itemStateChanged(Item* item) override
    {
        std::lock_guard lock(mMutex);
        mItems.push_back(item);
    }

    std::vector<Item*> items() const
    {
        std::lock_guard lock(mMutex);
        return mItems;
    }

private:
    mutable std::mutex mMutex;
    std::vector<Item*> mItems;
};

} // namespace

TEST(ItemTest, StartsWithoutAParentAndKeepsTheOneThatIsSet)
{
    doubles::Screen screen("form");
    PlainItem item;
    EXPECT_EQ(item.getParent(), nullptr);
    item.setParent(&screen);
    EXPECT_EQ(item.getParent(), &screen);
    item.setParent(nullptr);
    EXPECT_EQ(item.getParent(), nullptr);
}

TEST(ItemTest, AnswersForEverySubclassThatDoesNotOverride)
{
    PlainItem item;
    EXPECT_EQ(item.getType(), "baseItem");
    EXPECT_EQ(item.getID(), 0);
    item.setReadOnly(true);
    EXPECT_FALSE(item.isReadOnly());
}

TEST(ItemTest, DestructionRecallsItsQueuedChanges)
{
    NotingListener listener;
    PlainItem other;
    {
        test::PoolGate gate;
        auto item = std::make_unique<PlainItem>();
        listener.postItemStateChange(item.get());
        listener.postItemStateChange(&other);
        item.reset();
    }
    test::waitUntil([&] { return !listener.items().empty(); });
    EXPECT_THAT(listener.items(), testing::ElementsAre(&other));
}
