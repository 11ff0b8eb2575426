// Listeners are deleted while notifications for them are queued and delivered.

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/ItemStateListener.h"
#include "support/Application.h"
#include "support/Recalls.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

using DisplayAPI::Command;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::Item;
using DisplayAPI::ItemStateListener;
using test::Chance;

namespace {

constexpr int POSTERS = 3;
constexpr int CALLS = 800;
constexpr int LISTENERS = 40;

class Listeners;

/// Tells the others of each notification.
class Listener final : public CommandListener, public ItemStateListener {
public:
    explicit Listener(Listeners& all) : mAll(all) {}

    void commandAction(Command*, Displayable*) override;
    void itemStateChanged(Item*) override;

private:
    Listeners& mAll;
};

/// The live listeners. Each notification deletes one of them, perhaps the one that is being notified, and makes a new
/// one: at that moment nothing is on its way to any of them.
class Listeners {
public:
    explicit Listeners(unsigned int seed) : mChance(seed, POSTERS)
    {
        for (int i = 0; i < LISTENERS; ++i)
            mLive.push_back(std::make_unique<Listener>(*this));
    }

    void postCommand(Command& command, Chance& chance)
    {
        std::lock_guard lock(mMutex);
        pick(chance)->postCommandAction(&command, nullptr);
    }

    void postItem(Item* item, Chance& chance)
    {
        std::lock_guard lock(mMutex);
        pick(chance)->postItemStateChange(item);
    }

    void notified(const Listener* listener)
    {
        std::unique_ptr<Listener> doomed;
        {
            std::lock_guard lock(mMutex);
            EXPECT_TRUE(isLive(listener)) << "notified after its end";
            if (mChance.oneIn(2)) {
                doomed = std::make_unique<Listener>(*this);
                std::swap(doomed, pick(mChance));
            }
        }
        doomed.reset();
        ++delivered;
    }

    std::atomic<int> delivered{0};

private:
    std::unique_ptr<Listener>& pick(Chance& chance) { return mLive[static_cast<std::size_t>(chance.below(LISTENERS))]; }

    bool isLive(const Listener* listener) const
    {
        return std::any_of(mLive.begin(), mLive.end(), [&](const auto& live) { return live.get() == listener; });
    }

    std::mutex mMutex;
    std::vector<std::unique_ptr<Listener>> mLive;
    Chance mChance;
};

void Listener::commandAction(Command*, Displayable*)
{
    mAll.notified(this);
}

void Listener::itemStateChanged(Item*)
{
    mAll.notified(this);
}

class ListenerDeletionTest : public test::SeededTest {
protected:
    Command command{"Call", Command::OK};
    test::Recalls recalls;
};

INSTANTIATE_SEEDED(ListenerDeletionTest);

} // namespace

TEST_P(ListenerDeletionTest, EveryCommandNotificationIsEitherDeliveredOrRecalled)
{
    Listeners listeners(seed());
    test::onThreads(POSTERS, [&](int thread) {
        Chance chance(seed(), thread);
        for (int call = 0; call < CALLS; ++call)
            listeners.postCommand(command, chance);
    });
    test::waitUntil([&] { return listeners.delivered + recalls.count() == POSTERS * CALLS; });
}

TEST_P(ListenerDeletionTest, NoItemNotificationReachesADeletedListener)
{
    std::atomic<int> posted{0};
    Listeners listeners(seed());
    test::onThreads(POSTERS, [&](int thread) {
        Chance chance(seed(), thread);
        for (int call = 0; call < CALLS; ++call) {
            listeners.postItem(reinterpret_cast<Item*>(++posted), chance); // each another item: none is merged
        }
    });
    test::waitUntil([&] { return listeners.delivered + recalls.count() == posted; });
}
