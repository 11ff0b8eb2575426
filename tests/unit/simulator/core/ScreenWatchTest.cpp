#include "simulator/core/ScreenWatch.h"

#include "host/toolkit/MainQueue.h"
#include "host/toolkit/MessagePool.h"
#include "support/Worker.h"
#include "unit/simulator/rpc/RpcTest.h"

#include <gmock/gmock.h>

namespace {

using simulator::ScreenCondition;
using simulator::ScreenWatch;
using std::chrono::milliseconds;
using testing::ElementsAre;
using Verdict = ScreenWatch::Verdict;

class ScreenWatchTest : public test::RpcTest {
protected:
    std::future<Verdict> waitFor(int count, std::uint64_t since, milliseconds limit)
    {
        const auto verdict = std::make_shared<std::promise<Verdict>>();
        EXPECT_TRUE(watch->waitFor(this, conditionOf(count), since, limit,
                                   [verdict](const Verdict& v) { verdict->set_value(v); }));
        return verdict->get_future();
    }

    static ScreenCondition conditionOf(int count)
    {
        return {ScreenCondition::What::SCREEN, ScreenCondition::Match::EQUAL, screenOf(count)};
    }

    /// The GUI thread has handled what was queued, and stands until the gate is opened.
    void stopAt(test::Gate& gate)
    {
        test::Gate stands;
        toolkit.post([&] {
            stands.open();
            gate.wait();
        });
        EXPECT_TRUE(stands.wait());
    }

    Verdict verdictOn(int count, std::uint64_t since, milliseconds limit = test::PATIENCE)
    {
        return waitFor(count, since, limit).get();
    }
};

TEST_F(ScreenWatchTest, WhatHoldsAlreadyHolds)
{
    const Verdict verdict = verdictOn(0, 0);
    EXPECT_EQ(verdict.end, ScreenWatch::End::HELD);
    EXPECT_EQ(verdict.screen->number, 1u);
}

TEST_F(ScreenWatchTest, WhatHoldsOfAScreenAtHandIsAnsweredWithoutTheGuiThread)
{
    reader->read(test::PATIENCE);
    EXPECT_TRUE(toolkit.waitUntilIdle());
    const int before = asked;
    EXPECT_EQ(verdictOn(0, 0).end, ScreenWatch::End::HELD);
    EXPECT_EQ(asked, before);
    EXPECT_EQ(verdictOn(7, 0, milliseconds(0)).end, ScreenWatch::End::LAPSED);
    EXPECT_GT(asked, before);
}

TEST_F(ScreenWatchTest, EveryChangeIsJudged)
{
    auto verdict = waitFor(1, 0, test::PATIENCE);
    for (int i = 0; i < 20; ++i) {
        change();
        EXPECT_TRUE(toolkit.waitUntilIdle());
    }
    EXPECT_EQ(verdict.get().screen->words.displayables, screenOf(1));
}

TEST_F(ScreenWatchTest, WhatComesRightBehindTheFirstScreenIsJudged)
{
    reader->read(test::PATIENCE); // the first frame has been painted
    toolkit.run([this] {
        whenRead = [this] {
            ++thing->count;
            reader->frameReady();
            toolkit.post([this] { ++thing->count; }); // it does not stay
        };
    });
    EXPECT_EQ(verdictOn(1, 0, std::chrono::seconds(10)).end, ScreenWatch::End::HELD);
}

TEST_F(ScreenWatchTest, WhatWasBeforeDoesNotCount)
{
    watch->join(this);
    verdictOn(0, 0);
    change();
    EXPECT_EQ(verdictOn(0, 0, milliseconds(1)).end, ScreenWatch::End::LAPSED);
    EXPECT_EQ(verdictOn(0, 2, milliseconds(1)).end, ScreenWatch::End::LAPSED);
    EXPECT_EQ(verdictOn(0, 1).screen->number, 1u);
}

TEST_F(ScreenWatchTest, TimeOutTellsTheLastScreenAndWhatDiffers)
{
    const Verdict verdict = verdictOn(7, 0, milliseconds(1));
    EXPECT_EQ(verdict.end, ScreenWatch::End::LAPSED);
    ASSERT_NE(verdict.screen, nullptr);
    EXPECT_EQ(verdict.screen->number, 1u);
    EXPECT_EQ(verdict.difference, "- string0:7\n+ string0:0\n");
}

TEST_F(ScreenWatchTest, TimeOutIsKeptWhileEachScreenIsFollowedByAnother)
{
    constexpr int MOST = 100;
    const int other = 0;
    watch->join(this);
    const auto first = reader->read(test::PATIENCE)->number;
    bool isOver = false;
    int followed = 0;
    watch->subscribe(&other, first, [&](const auto&) {
        if (isOver || followed == MOST)
            return;
        ++followed;
        ++thing->count;
        reader->read(test::PATIENCE);
    });
    test::Gate gate;
    stopAt(gate);
    ++thing->count;
    std::promise<Verdict> verdict;
    EXPECT_TRUE(watch->waitFor(this, conditionOf(-1), first + 1, milliseconds(0), [&](const Verdict& reached) {
        isOver = true;
        verdict.set_value(reached);
    }));
    gate.open();
    EXPECT_EQ(verdict.get_future().get().screen->number, first + 1);
    EXPECT_LT(followed, MOST);
    watch->unsubscribe(&other);
}

TEST_F(ScreenWatchTest, WhatHasChangedWithoutAFrameHoldsWhenTimeIsOver)
{
    EXPECT_TRUE(test::becomesTrue([this] { // a first look that comes late is the last one too
        auto verdict = waitFor(thing->count + 1, 0, milliseconds(50));
        reader->read(test::PATIENCE);
        ++thing->count;
        return verdict.get().end == ScreenWatch::End::HELD;
    }));
}

TEST_F(ScreenWatchTest, WhoFindsNoRoomIsNotToldThatTheTelephoneHasGone)
{
    EXPECT_TRUE(toolkit.waitUntilIdle()); // gives no record back any more
    const host::MessagePool::Drained drained;
    const Verdict verdict = verdictOn(0, 0);
    EXPECT_EQ(verdict.end, ScreenWatch::End::LAPSED);
    EXPECT_EQ(verdict.screen, nullptr);
}

TEST_F(ScreenWatchTest, WhoIsNotShownAScreenIsNotAnsweredWithAnOldOne)
{
    watch.reset();
    watch.emplace(*reader, milliseconds(1));
    change();
    reader->read(test::PATIENCE);
    test::Gate gate;
    toolkit.post([&] { gate.wait(); });
    EXPECT_EQ(verdictOn(7, 0, milliseconds(1)).screen, nullptr);
    gate.open();
    EXPECT_TRUE(toolkit.waitUntilIdle());
}

TEST_F(ScreenWatchTest, TimeOutNeedsNoGuiThread)
{
    watch.reset();
    watch.emplace(*reader, milliseconds(1));
    test::Gate gate;
    toolkit.post([&] { gate.wait(); });
    const Verdict verdict = verdictOn(0, 0, milliseconds(1));
    EXPECT_EQ(verdict.end, ScreenWatch::End::LAPSED);
    EXPECT_EQ(verdict.screen, nullptr);
    gate.open();
    EXPECT_TRUE(toolkit.waitUntilIdle());
}

TEST_F(ScreenWatchTest, ManyAreRemembered)
{
    watch->join(this);
    for (std::size_t i = 0; i < ScreenWatch::REMEMBERED + 10; ++i) {
        change();
        reader->read(test::PATIENCE);
    }
    EXPECT_EQ(verdictOn(0, 1, milliseconds(1)).end, ScreenWatch::End::LAPSED);
    EXPECT_EQ(verdictOn(20, 1).screen->words.displayables, screenOf(20));
}

TEST_F(ScreenWatchTest, EndIsTold)
{
    auto verdict = waitFor(7, 0, test::PATIENCE);
    watch->end();
    EXPECT_EQ(verdict.get().end, ScreenWatch::End::GONE);
    EXPECT_EQ(verdictOn(0, 0).end, ScreenWatch::End::GONE);
}

TEST_F(ScreenWatchTest, WhoAsksForHisFirstScreenWhenAllEndsIsToldOnce)
{
    test::Gate gate;
    stopAt(gate);
    std::atomic<int> told = 0;
    auto waits = std::make_shared<int>(); // as long as the watch knows of him
    const std::weak_ptr<int> known = waits;
    test::Worker client([&, waits = std::move(waits)]() mutable {
        EXPECT_TRUE(watch->waitFor(this, conditionOf(0), 0, test::PATIENCE,
                                   [&told, waits = std::move(waits)](const Verdict&) { ++told; }));
    });
    test::waitUntil([] { return !host::MainQueue::isEmpty(); });
    watch->end();
    client.join();
    gate.open();
    EXPECT_TRUE(test::becomesTrue([&] { return known.expired(); }));
    EXPECT_EQ(told, 1);
}

TEST_F(ScreenWatchTest, ListenerHearsOfWhatHasBeenMeanwhile)
{
    watch->join(this);
    const auto first = reader->read(test::PATIENCE)->number;
    change();
    verdictOn(1, 0);
    std::vector<std::uint64_t> numbers;
    test::Gate third;
    watch->subscribe(this, first, [&](const auto& screen) {
        numbers.push_back(screen->number);
        if (screen->number == 3)
            third.open();
    });
    change();
    EXPECT_TRUE(third.wait());
    watch->leave(this);
    change();
    verdictOn(3, 0);
    EXPECT_THAT(numbers, ElementsAre(2, 3));
}

TEST_F(ScreenWatchTest, NobodyReadsFramesThatNobodyLooksAt)
{
    const auto frame = [this] {
        change();
        EXPECT_TRUE(toolkit.waitUntilIdle());
    };
    frame();
    const int before = asked;
    frame();
    EXPECT_EQ(asked, before);
    watch->join(this);
    frame();
    EXPECT_EQ(asked, before + 1);
    watch->leave(this);
    frame();
    EXPECT_EQ(asked, before + 1);
}

TEST_F(ScreenWatchTest, RememberedScreensHaveNoPixels)
{
    EXPECT_TRUE(verdictOn(0, 0).screen->picture.pixels.empty());
    EXPECT_EQ(reader->photograph(test::PATIENCE)->picture.pixels, host::Lcd::current()->picture().pixels);
}

TEST_F(ScreenWatchTest, WhoWaitsForMuchTakesTurnsWithTheOthers)
{
    constexpr int MANY = 20;
    const int other = 0;
    std::vector<std::string> order;
    test::Gate last;
    const auto wait = [&](ScreenWatch::Owner owner, const char* name) {
        EXPECT_TRUE(watch->waitFor(owner, conditionOf(1), 0, test::PATIENCE, [&, name](const Verdict&) {
            order.emplace_back(name);
            if (order.size() == MANY + 1)
                last.open();
        }));
    };
    for (int i = 0; i < MANY; ++i)
        wait(this, "many");
    wait(&other, "one");
    change();
    EXPECT_TRUE(last.wait());
    EXPECT_LE(std::ranges::find(order, "one") - order.begin(), 1);
}

TEST_F(ScreenWatchTest, WhatHasBeenIsJudgedWithoutTheGuiThread)
{
    watch->join(this);
    verdictOn(0, 0);
    change();
    verdictOn(1, 0);
    test::Gate gate;
    toolkit.post([&] { gate.wait(); });
    EXPECT_EQ(verdictOn(1, 1).screen->number, 2u);
    gate.open();
    EXPECT_TRUE(toolkit.waitUntilIdle());
}

TEST_F(ScreenWatchTest, WhoHasLeftIsNotCalled)
{
    auto verdict = waitFor(1, 0, test::PATIENCE);
    watch->leave(this);
    change();
    verdictOn(1, 0);
    EXPECT_THROW(verdict.get(), std::future_error);
}

} // namespace
