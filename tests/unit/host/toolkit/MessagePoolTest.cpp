#include "host/toolkit/MessagePool.h"

#include "support/RunningToolkit.h"
#include "toolkit/PegMessageQueue.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace {

using host::MessagePool;
using test::RunningToolkit;
using test::StartedToolkit;

TEST(MessagePool, RecordsComeFromTheHeadAndGoToTheTail)
{
    const StartedToolkit toolkit;
    PegMessage* const head = gpFreePool->head;
    PegMessage* const taken = MessagePool::take();
    EXPECT_EQ(taken, head);
    MessagePool::giveBack(taken, taken);
    EXPECT_EQ(gpFreePool->tail, taken);
    EXPECT_EQ(taken->Next, nullptr);
}

TEST(MessagePool, GrowsWhenItIsEmpty)
{
    const StartedToolkit toolkit;
    const MessagePool::Counters before = MessagePool::counters();
    std::set<PegMessage*> taken;
    for (std::size_t i = 0; i <= before.free; ++i)
        taken.insert(MessagePool::take());
    EXPECT_EQ(taken.size(), before.free + 1);
    EXPECT_EQ(taken.count(nullptr), 0u);
    const MessagePool::Counters grown = MessagePool::counters();
    EXPECT_GT(grown.records, before.records);
    EXPECT_EQ(grown.allocations, before.allocations + 1);
    for (PegMessage* message : taken)
        MessagePool::giveBack(message, message);
    EXPECT_EQ(MessagePool::counters().free, grown.records);
}

TEST(MessagePool, NewRecordIsZeroed)
{
    const StartedToolkit toolkit;
    PegMessage* const message = AllocateMessage();
    ASSERT_NE(message, nullptr);
    EXPECT_EQ(message->pTarget, nullptr);
    EXPECT_EQ(message->pSource, nullptr);
    EXPECT_EQ(message->Next, nullptr);
    MessagePool::giveBack(message, message);
}

TEST(MessagePool, AllocationsFailAsOftenAsAsked)
{
    const StartedToolkit toolkit;
    const MessagePool::Counters before = MessagePool::counters();
    MessagePool::failAllocations(2);
    EXPECT_EQ(AllocateMessage(), nullptr);
    EXPECT_EQ(AllocateMessage(), nullptr);
    PegMessage* const message = AllocateMessage();
    ASSERT_NE(message, nullptr);
    MessagePool::giveBack(message, message);
    EXPECT_EQ(MessagePool::counters().refused, before.refused + 2);
}

TEST(MessagePool, DrainedHasNothingUntilItEnds)
{
    const StartedToolkit toolkit;
    const std::size_t free = MessagePool::counters().free;
    {
        const MessagePool::Drained drained;
        EXPECT_EQ(gpFreePool->head, nullptr);
        EXPECT_EQ(MessagePool::take(), nullptr);
    }
    EXPECT_EQ(MessagePool::counters().free, free);
    PegMessage* const message = MessagePool::take();
    EXPECT_NE(message, nullptr);
    MessagePool::giveBack(message, message);
}

TEST(MessagePool, IdleLoopHoldsNoRecord)
{
    RunningToolkit toolkit;
    for (int round = 0; round < 1'000; ++round)
        PegMessageQueue().Push({PM_CLICKED, round});
    ASSERT_TRUE(toolkit.waitUntilIdle());
    const MessagePool::Counters counters = MessagePool::counters();
    EXPECT_EQ(counters.free, counters.records);
}

TEST(MessagePool, DoneMessagesGoBackInBatches)
{
    const StartedToolkit toolkit;
    const std::size_t free = MessagePool::counters().free;
    {
        host::DoneMessages done;
        std::vector<PegMessage*> taken;
        for (int i = 0; i < 100; ++i)
            taken.push_back(MessagePool::take());
        for (PegMessage* message : taken)
            done.add(message);
        EXPECT_EQ(MessagePool::counters().free, free - 36);
    }
    EXPECT_EQ(MessagePool::counters().free, free);
}

} // namespace
