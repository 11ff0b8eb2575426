#include "simulator/core/ScreenReader.h"

#include "host/toolkit/MessagePool.h"
#include "support/Worker.h"
#include "unit/simulator/rpc/RpcTest.h"

#include <gmock/gmock.h>

namespace {

using simulator::ScreenPtr;
using testing::ElementsAre;

class ScreenReaderTest : public test::RpcTest {
protected:
    ScreenPtr read() { return reader->read(test::PATIENCE); }
};

TEST_F(ScreenReaderTest, OnlyAnotherScreenHasAnotherNumber)
{
    EXPECT_EQ(read()->number, 1u);
    EXPECT_EQ(read()->number, 1u);
    change();
    EXPECT_EQ(read()->number, 2u);
    toolkit.run([] { gpPresent->MoveFocusTree(gpPresent); });
    EXPECT_EQ(read()->number, 3u);
}

TEST_F(ScreenReaderTest, WhatWasQueuedBeforeHasBeenHandled)
{
    for (int i = 1; i <= 100; ++i) {
        toolkit.post([this] { ++thing->count; });
        EXPECT_EQ(read()->words.displayables, "object:\nname:Counter\nstring0:" + std::to_string(i) + "\nend:\n");
    }
}

TEST_F(ScreenReaderTest, PanelIsPaintedBeforeItIsRead)
{
    toolkit.run([] { host::Lcd::current()->invalidate({0, 0, 9, 9}); });
    EXPECT_GT(read()->picture.frame, 0u);
    EXPECT_FALSE(host::Lcd::current()->isDirty());
}

TEST_F(ScreenReaderTest, ListenerIsToldOfEachOtherScreenOnce)
{
    watch.reset();
    const std::uint64_t before = read()->number; // the first frame has been painted
    std::vector<std::uint64_t> numbers;
    toolkit.run([&] { reader->setListener([&](const ScreenPtr& screen) { numbers.push_back(screen->number); }); });
    for (int i = 0; i < 2; ++i) {
        toolkit.run([this, i] {
            thing->count += i; // what is painted first is no other screen
            host::Lcd::current()->invalidate({0, 0, 9, 9});
        });
        EXPECT_TRUE(toolkit.waitUntilIdle());
    }
    reader->setListener({});
    change();
    read();
    EXPECT_THAT(numbers, ElementsAre(before + 1));
}

TEST_F(ScreenReaderTest, ScreenIsAtHandUntilTheGuiThreadDoesSomething)
{
    EXPECT_EQ(reader->atHand(), nullptr);
    const ScreenPtr screen = read();
    EXPECT_TRUE(toolkit.waitUntilIdle());
    const int before = asked;
    EXPECT_EQ(reader->atHand(), screen);
    EXPECT_EQ(read(), screen);
    EXPECT_EQ(asked, before);
    test::Gate gate;
    toolkit.post([&] { gate.wait(); });
    EXPECT_EQ(reader->atHand(), nullptr);
    gate.open();
    EXPECT_TRUE(toolkit.waitUntilIdle());
    EXPECT_EQ(reader->atHand(), nullptr);
    EXPECT_EQ(read(), screen);
    EXPECT_EQ(asked, before + 1);
}

TEST_F(ScreenReaderTest, ScreenIsNotAtHandWhenATimerHasRun)
{
    struct Ticking : PegThing {
        int Message(const PegMessage&) override { return ticked.open(), 0; }
        test::Gate ticked;
    };
    auto ticking = std::make_unique<Ticking>();
    toolkit.run([&] { whenRead = [&] { ticking->SetTimer(1, 1, false); }; });
    read();
    EXPECT_TRUE(ticking->ticked.wait());
    EXPECT_TRUE(toolkit.waitUntilIdle());
    EXPECT_EQ(reader->atHand(), nullptr);
    toolkit.run([&] { ticking.reset(); });
}

TEST_F(ScreenReaderTest, WhoFindsNoRoomLeavesTheOthersTheirScreens)
{
    test::Gate gate;
    toolkit.post([&] { gate.wait(); });
    std::promise<ScreenPtr> first;
    reader->read([&](const ScreenPtr& screen) { first.set_value(screen); });
    {
        const host::MessagePool::Drained drained;
        EXPECT_EQ(reader->read(std::chrono::milliseconds(0)), nullptr);
    }
    gate.open();
    EXPECT_NE(first.get_future().get(), nullptr);
    EXPECT_TRUE(toolkit.waitUntilIdle());
}

TEST_F(ScreenReaderTest, WhoReadsFromALoopThatStandsStillIsLetGo)
{
    test::Gate gate;
    toolkit.post([&] { gate.wait(); });
    EXPECT_EQ(reader->read(std::chrono::milliseconds(1)), nullptr);
    test::Worker client([this] { EXPECT_EQ(read(), nullptr); });
    EXPECT_TRUE(client.isBlocked());
    reader->leave();
    client.join();
    gate.open();
    EXPECT_TRUE(toolkit.waitUntilIdle());
    EXPECT_FALSE(reader->isThere());
    EXPECT_EQ(read(), nullptr);
}

} // namespace
