#include "toolkit/PegMessageQueue.h"

#include "host/toolkit/Loop.h"
#include "host/toolkit/MainQueue.h"
#include "host/toolkit/MessagePool.h"
#include "host/utilities/Log.h"
#include "host/utilities/Spin.h"
#include "support/RunningToolkit.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <vector>

namespace {

using test::RecordingThing;
using test::RunningToolkit;
using test::StartedToolkit;

std::vector<int> queuedNumbers()
{
    std::vector<int> numbers;
    for (const PegMessage* message : {gtPegMainQueue->taken, gtPegMainQueue->head})
        for (; message; message = message->Next)
            numbers.push_back(message->iData);
    return numbers;
}

TEST(PegMessageQueue, PushCopiesTheMessageToTheTail)
{
    const StartedToolkit toolkit;
    RecordingThing target;
    int data = 0;
    PegMessage message{PM_CLICKED, 7, &target, &target, nullptr, &data};
    PegMessageQueue().Push(message);
    message.iData = 8;
    PegMessageQueue().Push(message);

    EXPECT_EQ(queuedNumbers(), (std::vector{7, 8}));
    EXPECT_EQ(gtPegMainQueue->count(), 2);
    const PegMessage& first = *gtPegMainQueue->head;
    EXPECT_NE(&first, &message);
    EXPECT_EQ(first.wType, PM_CLICKED);
    EXPECT_EQ(first.pTarget, &target);
    EXPECT_EQ(first.pSource, &target);
    EXPECT_EQ(first.pData, &data);
    EXPECT_EQ(gtPegMainQueue->tail->iData, 8);
    EXPECT_EQ(gtPegMainQueue->tail->Next, nullptr);
}

TEST(PegMessageQueue, TakeGivesTheHeadUntilItIsEmpty)
{
    const StartedToolkit toolkit;
    PegMessageQueue().Push({PM_CLICKED, 1});
    PegMessageQueue().Push({PM_CLICKED, 2});
    for (const int expected : {1, 2}) {
        PegMessage* const message = host::MainQueue::take(host::MainQueue::Pace::PROMPT);
        ASSERT_NE(message, nullptr);
        EXPECT_EQ(message->iData, expected);
        host::MessagePool::giveBack(message, message);
    }
    EXPECT_EQ(host::MainQueue::take(host::MainQueue::Pace::PROMPT), nullptr);
    EXPECT_EQ(gtPegMainQueue->head, nullptr);
    EXPECT_EQ(gtPegMainQueue->tail, nullptr);
    EXPECT_EQ(gtPegMainQueue->count(), 0);
}

TEST(PegMessageQueue, TheFirstTakeTakesOverAllThatWaits)
{
    const StartedToolkit toolkit;
    for (int number = 1; number <= 3; ++number)
        PegMessageQueue().Push({PM_CLICKED, number});
    PegMessage* const message = host::MainQueue::take(host::MainQueue::Pace::BURST);
    host::MessagePool::giveBack(message, message);
    PegMessageQueue().Push({PM_CLICKED, 4});

    EXPECT_EQ(gtPegMainQueue->taken->iData, 2);
    EXPECT_EQ(gtPegMainQueue->takenCount, 2);
    EXPECT_EQ(gtPegMainQueue->head->iData, 4);
    EXPECT_EQ(gtPegMainQueue->count(), 3);
    EXPECT_EQ(queuedNumbers(), (std::vector{2, 3, 4}));
}

/// Of many: how long one take takes depends on what else the machine does.
std::chrono::nanoseconds shortestTake(host::MainQueue::Pace pace, bool isAwaited)
{
    auto shortest = std::chrono::nanoseconds::max();
    for (int round = 0; round < 200; ++round) {
        PegMessageQueue().Push({PM_CLICKED, round});
        gtPegMainQueue->awaited = isAwaited;
        const auto start = std::chrono::steady_clock::now();
        PegMessage* const message = host::MainQueue::take(pace);
        shortest = std::min<std::chrono::nanoseconds>(shortest, std::chrono::steady_clock::now() - start);
        host::MessagePool::giveBack(message, message);
    }
    return shortest;
}

TEST(PegMessageQueue, MessagesGatherInABurstUnlessSomebodyWaits)
{
    using enum host::MainQueue::Pace;
    if (!host::Spin::runsElsewhere(host::Spin::UNKNOWN))
        GTEST_SKIP() << "one CPU: the loop lingers nowhere";
    const StartedToolkit toolkit;
    constexpr std::chrono::nanoseconds GATHERING(host::MainQueue::GATHERING_NS);
    EXPECT_GE(shortestTake(BURST, false), GATHERING);
    EXPECT_LT(shortestTake(BURST, true), GATHERING);
    EXPECT_LT(shortestTake(PROMPT, false), GATHERING);
    EXPECT_FALSE(gtPegMainQueue->awaited);
}

TEST(PegMessageQueue, MessagesToADyingThingAreDroppedFromBothParts)
{
    const StartedToolkit toolkit;
    RecordingThing other;
    {
        RecordingThing dying;
        for (int number = 0; number < 8; ++number) {
            PegMessageQueue().Push({PM_CLICKED, number, number % 2 == 0 ? &dying : &other});
            if (number == 3)
                host::MainQueue::takeOver();
        }
    }
    EXPECT_EQ(queuedNumbers(), (std::vector{1, 3, 5, 7}));
    EXPECT_EQ(gtPegMainQueue->takenCount, 2);
    EXPECT_EQ(gtPegMainQueue->count(), 4);
}

TEST(PegMessageQueue, WithoutARecordTheMessageIsLost)
{
    const StartedToolkit toolkit;
    const host::MessagePool::Drained drained;
    PegMessageQueue().Push({PM_CLICKED, 1});
    EXPECT_EQ(gtPegMainQueue->count(), 0);
}

TEST(PegMessageQueue, ALostMessageLeavesALineInTheLog)
{
    const StartedToolkit toolkit;
    const host::LogCapture log({.level = 2, .modulePrefix = ""});
    {
        const host::MessagePool::Drained drained;
        host::Loop::quit();
    }
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(log.lines()[0].module, "PegWidgets");
    EXPECT_EQ(log.lines()[0].level, 2);
    EXPECT_EQ(log.lines()[0].text, "no PegMessage object is left, message 21 is lost");
}

TEST(PegMessageQueue, MessagesToADyingThingAreDropped)
{
    const StartedToolkit toolkit;
    const std::size_t free = host::MessagePool::counters().free;
    RecordingThing other;
    {
        RecordingThing dying;
        for (int number = 0; number < 6; ++number)
            PegMessageQueue().Push({PM_CLICKED, number, number % 2 == 0 ? &dying : &other});
    }
    EXPECT_EQ(queuedNumbers(), (std::vector{1, 3, 5}));
    EXPECT_EQ(gtPegMainQueue->count(), 3);
    EXPECT_EQ(gtPegMainQueue->tail->iData, 5);
    EXPECT_EQ(host::MessagePool::counters().free, free - 3);
}

TEST(PegMessageQueue, DroppingTheTailKeepsTheQueueUsable)
{
    const StartedToolkit toolkit;
    {
        RecordingThing dying;
        PegMessageQueue().Push({PM_CLICKED, 1});
        PegMessageQueue().Push({PM_CLICKED, 2, &dying});
    }
    PegMessageQueue().Push({PM_CLICKED, 3});
    EXPECT_EQ(queuedNumbers(), (std::vector{1, 3}));
}

TEST(PegMessageQueue, RequestsToADyingThingStayWithoutATarget)
{
    const StartedToolkit toolkit;
    int record = 0;
    {
        RecordingThing dying;
        PegMessageQueue().Push({PM_DISPLAY_REQUEST, 1, &dying, nullptr, nullptr, &record});
        PegMessageQueue().Push({PM_WIDGET_REQUEST, 2, &dying, nullptr, nullptr, &record});
        PegMessageQueue().Push({PM_CLICKED, 3, &dying});
    }
    ASSERT_EQ(queuedNumbers(), (std::vector{1, 2}));
    for (const PegMessage* message = gtPegMainQueue->head; message; message = message->Next) {
        EXPECT_EQ(message->pTarget, nullptr);
        EXPECT_EQ(message->pData, &record);
    }
    for (PegMessage* message = gtPegMainQueue->head; message; message = message->Next)
        message->wType = PM_CLICKED; // the record is nobody's, let the clean-up take them
}

TEST(PegMessageQueue, OrderOfEachThreadIsKept)
{
    RunningToolkit toolkit;
    constexpr int PER_THREAD = 20'000;
    constexpr int THREADS = 3;
    RecordingThing* target = nullptr;
    toolkit.run([&] { target = new RecordingThing; });

    std::vector<std::thread> threads;
    for (std::uint16_t thread = 0; thread < THREADS; ++thread)
        threads.emplace_back([=] {
            for (int number = 0; number < PER_THREAD; ++number)
                PegMessageQueue().Push({static_cast<std::uint16_t>(0x5100 + thread), number, target});
        });
    for (std::thread& thread : threads)
        thread.join();

    toolkit.run([&] {
        ASSERT_EQ(target->messages.size(), static_cast<std::size_t>(THREADS * PER_THREAD));
        std::vector<int> next(THREADS, 0);
        for (const PegMessage& message : target->messages)
            ASSERT_EQ(message.iData, next.at(message.wType - 0x5100u)++);
        delete target;
    });
}

} // namespace
