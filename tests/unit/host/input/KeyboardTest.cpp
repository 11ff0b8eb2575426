#include "host/input/Keyboard.h"

#include "support/RunningToolkit.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

using host::Keyboard;
using test::Gate;
using test::RecordingThing;
using test::RunningToolkit;
using test::StartedToolkit;

TEST(Keyboard, KnowsEachKeyByName)
{
    EXPECT_EQ(Keyboard::keyFromName("up"), PK_UP);
    EXPECT_EQ(Keyboard::keyFromName("down"), PK_DOWN);
    EXPECT_EQ(Keyboard::keyFromName("left"), PK_LEFT);
    EXPECT_EQ(Keyboard::keyFromName("right"), PK_RIGHT);
    EXPECT_EQ(Keyboard::keyFromName("ok"), PK_OK);
    EXPECT_EQ(Keyboard::keyFromName("star"), PK_STAR);
    EXPECT_EQ(Keyboard::keyFromName("hash"), PK_HASH);
    EXPECT_EQ(Keyboard::keyFromName("volume-up"), PK_VOLUME_UP);
    EXPECT_EQ(Keyboard::keyFromName("volume-down"), PK_VOLUME_DOWN);
    EXPECT_EQ(Keyboard::keyFromName("hook"), PK_HOOK);
    EXPECT_EQ(Keyboard::keyFromName("0"), PK_0);
    EXPECT_EQ(Keyboard::keyFromName("9"), PK_9);
    EXPECT_EQ(Keyboard::keyFromName("fpk1"), PK_FPK1);
    EXPECT_EQ(Keyboard::keyFromName("fpk16"), PK_FPK_LAST);
}

TEST(Keyboard, EachKeyHasTheNameByWhichItIsKnown)
{
    for (const char* name : {"up", "down", "left", "right", "ok", "star", "hash", "volume-up", "volume-down", "hook",
                             "0", "9", "fpk1", "fpk16"})
        EXPECT_EQ(Keyboard::nameOf(Keyboard::keyFromName(name).value()), name);
}

TEST(Keyboard, UnknownNameIsNoKey)
{
    for (const char* name :
         {"", "UP", "10", "a", "*", "#", "/", ":", "fpk", "fpk0", "fpk01", "fpk17", "fpk-1", "fpk1 ", "fpk99999999999"})
        EXPECT_EQ(Keyboard::keyFromName(name), std::nullopt) << name;
}

TEST(Keyboard, KeyIsDroppedWhileTheToolkitDoesNotRun)
{
    EXPECT_FALSE(Keyboard::instance().press(PK_OK));
    {
        const StartedToolkit toolkit;
        EXPECT_TRUE(Keyboard::instance().press(PK_OK));
    }
    EXPECT_FALSE(Keyboard::instance().press(PK_OK));
    EXPECT_FALSE(Keyboard::instance().release(PK_OK));
}

TEST(Keyboard, FloodIsDroppedPastTheLimit)
{
    const StartedToolkit toolkit;
    for (int key = 0; key < Keyboard::MAX_PENDING; ++key)
        ASSERT_TRUE(Keyboard::instance().press(PK_DOWN));
    EXPECT_FALSE(Keyboard::instance().press(PK_DOWN));
    EXPECT_FALSE(Keyboard::instance().release(PK_DOWN));
    EXPECT_EQ(gtPegMainQueue->count(), Keyboard::MAX_PENDING);
    Keyboard::instance().handled({.wType = PM_KEY, .iData = PK_DOWN});
    EXPECT_TRUE(Keyboard::instance().press(PK_DOWN));
}

TEST(Keyboard, PressAndReleaseReachTheFocusInOrder)
{
    RunningToolkit toolkit;
    auto* focused = new RecordingThing;
    toolkit.run([&] {
        gpPresent->Add(focused);
        gpPresent->MoveFocusTree(focused);
    });
    EXPECT_TRUE(Keyboard::instance().press(PK_STAR));
    EXPECT_TRUE(Keyboard::instance().release(PK_STAR));
    ASSERT_TRUE(toolkit.waitUntilIdle());
    toolkit.run([&] {
        ASSERT_EQ(focused->messages.size(), 2u);
        EXPECT_EQ(focused->messages[0].wType, PM_KEY);
        EXPECT_EQ(focused->messages[0].iData, PK_STAR);
        EXPECT_EQ(focused->messages[1].wType, PM_KEYRELEASE);
    });
}

TEST(Keyboard, HookIsHeardWhateverHasTheFocus)
{
    RunningToolkit toolkit;
    int heard = 0;
    Keyboard::instance().setHookListener([&heard] { ++heard; });
    for (const PegKey key : {PegKey(PK_HOOK), PegKey(PK_OK), PegKey(PK_HOOK)}) {
        EXPECT_TRUE(Keyboard::instance().press(key));
        EXPECT_TRUE(Keyboard::instance().release(key));
    }
    ASSERT_TRUE(toolkit.waitUntilIdle());
    EXPECT_EQ(heard, 2);
    Keyboard::instance().setHookListener({});
    EXPECT_TRUE(Keyboard::instance().press(PK_HOOK));
    ASSERT_TRUE(toolkit.waitUntilIdle());
    EXPECT_EQ(heard, 2);
}

TEST(Keyboard, HandledKeysMakeRoomForMore)
{
    RunningToolkit toolkit;
    for (int burst = 0; burst < 5; ++burst) {
        Gate release;
        toolkit.post([&] { EXPECT_TRUE(release.wait()); });
        int accepted = 0;
        for (int key = 0; key < 1'000; ++key)
            accepted += Keyboard::instance().press(PK_DOWN);
        EXPECT_EQ(accepted, Keyboard::MAX_PENDING);
        release.open();
        ASSERT_TRUE(toolkit.waitUntilIdle());
    }
}

/// Notes which message comes, and how many the thing has handled by then.
struct CountingWitness : Keyboard::Witness {
    explicit CountingWitness(const RecordingThing& watched) : thing(watched) {}
    void keyComes(const PegMessage& message) override { note("comes", message); }
    void keyIsHandled(const PegMessage& message) override { note("is handled", message); }
    void note(const std::string& what, const PegMessage& message)
    {
        notes.push_back(std::to_string(message.iData) + ' ' + what + ' ' + std::to_string(thing.messages.size()));
    }

    const RecordingThing& thing;
    std::vector<std::string> notes;
};

TEST(Keyboard, WitnessHearsAKeyBeforeItIsHandledAndAfter)
{
    RunningToolkit toolkit;
    auto* focused = new RecordingThing;
    CountingWitness witness(*focused);
    toolkit.run([&] {
        gpPresent->Add(focused);
        gpPresent->MoveFocusTree(focused);
        Keyboard::instance().setWitness(&witness);
    });
    EXPECT_TRUE(Keyboard::instance().press(PK_STAR));
    ASSERT_TRUE(toolkit.waitUntilIdle());
    toolkit.run([&] { Keyboard::instance().setWitness(nullptr); });
    EXPECT_TRUE(Keyboard::instance().release(PK_STAR));
    ASSERT_TRUE(toolkit.waitUntilIdle());
    EXPECT_EQ(witness.notes, (std::vector<std::string>{"42 comes 0", "42 is handled 1"}));
}

} // namespace
