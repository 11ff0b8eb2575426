#include "DisplayAPI/Displayable.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Item.h"
#include "DisplayAPI/ItemStateListener.h"
#include "doubles/Screen.h"
#include "unit/src/PoolGate.h"
#include "utilities/Wait.h"

#include <gmock/gmock.h>

#include <mutex>
#include <vector>

using namespace DisplayAPI;
using testing::ElementsAre;

namespace {

/// A displayable that never sets a name.
class Nameless : public Displayable {
public:
    DisplayablePrivateIfc* getPrivateImpl() override { return nullptr; }
};

class PlainItem : public Item {
public:
    void processGuiRequest(GuiRequestEvent& request) override { signalComplete(request); }
    ItemPrivateIfc* getPrivateImpl() override { return nullptr; }
    void localeChanged(std::string) override {}
};

/// What several listeners have been told, in the order of arrival.
class Notes {
public:
    void add(std::string note)
    {
        std::lock_guard lock(mMutex);
        mNotes.push_back(std::move(note));
    }

    std::vector<std::string> wait(std::size_t count)
    {
        test::waitUntil([&] { return all().size() >= count; });
        return all();
    }

    std::vector<std::string> all() const
    {
        std::lock_guard lock(mMutex);
        return mNotes;
    }

private:
    mutable std::mutex mMutex;
    std::vector<std::string> mNotes;
};

class NotingItemListener : public ItemStateListener {
public:
    NotingItemListener(std::string name, Notes& notes) : mName(std::move(name)), mNotes(notes) {}
    void itemStateChanged(Item*) override { mNotes.add(mName); }

private:
    std::string mName;
    Notes& mNotes;
};

class NotingCommandListener : public CommandListener {
public:
    explicit NotingCommandListener(Notes& notes) : mNotes(notes) {}
    void commandAction(Command* command, Displayable*) override { mNotes.add(command->getText()); }

private:
    Notes& mNotes;
};

} // namespace

TEST(DisplayableTest, IsNamelessUntilItsClassSaysOtherwise)
{
    EXPECT_EQ(Nameless().getName(), "Displayable with no name");
    EXPECT_EQ(doubles::Screen("menu").getName(), "menu");
}

TEST(DisplayableTest, HandsAnItemsChangeToEachListenerInOrderOfAddition)
{
    Notes notes;
    NotingItemListener first("first", notes);
    NotingItemListener second("second", notes);
    PlainItem item;
    Nameless screen;
    screen.addItemStateListener(&second);
    screen.addItemStateListener(&first);
    screen.callListeners(&item);
    EXPECT_THAT(notes.wait(2), ElementsAre("second", "first"));
}

TEST(DisplayableTest, CallsAListenerThatWasAddedTwiceTwiceAndQueuesItsChangeOnce)
{
    Notes notes;
    NotingItemListener twice("twice", notes);
    NotingItemListener last("last", notes);
    PlainItem item;
    Nameless screen;
    screen.addItemStateListener(&twice);
    screen.addItemStateListener(&twice);
    screen.addItemStateListener(&last);
    {
        test::PoolGate gate;
        screen.callListeners(&item);
    }
    EXPECT_THAT(notes.wait(2), ElementsAre("twice", "last"));
}

TEST(DisplayableTest, ANullListenerIsIgnored)
{
    PlainItem item;
    Nameless screen;
    screen.addItemStateListener(nullptr);
    screen.callListeners(&item);
}

TEST(DisplayableTest, DestructionDeletesNoListener)
{
    Notes notes;
    NotingItemListener listener("alive", notes);
    PlainItem item;
    {
        Nameless screen;
        screen.addItemStateListener(&listener);
    }
    listener.postItemStateChange(&item);
    EXPECT_THAT(notes.wait(1), ElementsAre("alive"));
}

TEST(DisplayableTest, QueuedChangeWithoutAnItemIsStillToldAfterDestruction)
{
    Notes notes;
    NotingItemListener listener("told", notes);
    {
        test::PoolGate gate;
        Nameless screen;
        screen.addItemStateListener(&listener);
        screen.callListeners(nullptr);
    }
    EXPECT_THAT(notes.wait(1), ElementsAre("told"));
}

TEST(DisplayableTest, NoCommandOfADeletedDisplayableIsDelivered)
{
    Notes notes;
    NotingCommandListener listener(notes);
    Command dropped("dropped", Command::OK);
    Command kept("kept", Command::OK);
    Nameless other;
    {
        test::PoolGate gate;
        Nameless screen;
        listener.postCommandAction(&dropped, &screen);
        listener.postCommandAction(&kept, &other);
        listener.postCommandAction(&dropped, &screen);
    }
    EXPECT_THAT(notes.wait(1), ElementsAre("kept"));
}

TEST(DisplayableTest, SoftKeysDoNothing)
{
    Nameless screen;
    screen.useSoftKeys();
    screen.doNotUseSoftKeys();
    screen.doNotUseSoftKeysForContent();
    screen.useSoftKeysBasedOnCommands();
    EXPECT_EQ(screen.getName(), "Displayable with no name");
}

TEST(DisplayableTest, RequestsAreNotEvenCompletedAtThisLevel)
{
    struct NotingWait : Wait {
        void wakeUp() override { woken = true; }
        bool woken = false;
    } wait;
    Nameless screen;
    GuiRequestEvent request(&screen, 0);
    request.setWaitCondition(&wait);
    screen.processGuiRequest(request);
    EXPECT_FALSE(wait.woken);
}
