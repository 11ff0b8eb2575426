#include "DisplayAPI/Item.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "doubles/Screen.h"
#include "support/ItemChanges.h"
#include "unit/src/PoolGate.h"

#include <gmock/gmock.h>

#include <memory>

using namespace DisplayAPI;

namespace {

/// An item that overrides nothing that it need not.
class PlainItem : public Item {
public:
    void processGuiRequest(GuiRequestEvent& request) override { signalComplete(request); }
    ItemPrivateIfc* getPrivateImpl() override { return nullptr; }
    void localeChanged(std::string) override {}
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
    test::ItemChanges listener;
    PlainItem other;
    {
        test::PoolGate gate;
        auto item = std::make_unique<PlainItem>();
        listener.postItemStateChange(item.get());
        listener.postItemStateChange(&other);
        item.reset();
    }
    EXPECT_THAT(listener.take(), testing::ElementsAre(&other));
}
