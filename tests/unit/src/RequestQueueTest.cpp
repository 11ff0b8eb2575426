#include "RequestQueue.h"

#include "host/toolkit/MessagePool.h"
#include "support/Replaced.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

using DisplayAPI::enqueue;
using DisplayAPI::giveBackMessage;
using DisplayAPI::Place;
using testing::ElementsAre;

namespace {

class RequestQueueTest : public test::SteppedTest {
protected:
    void add(std::int32_t data, Place place = Place::TAIL)
    {
        PegMessage* const message = DisplayAPI::takeMessage();
        *message = {PM_KEY, data};
        EXPECT_TRUE(enqueue(message, place, [] { return true; }));
    }

    std::vector<int> queuedData() const
    {
        std::vector<int> data;
        for (const PegMessage& message : gui.messages())
            data.push_back(message.iData);
        return data;
    }

    static auto hasData(int data)
    {
        return [data](const PegMessage& message) { return message.iData == data; };
    }
};

} // namespace

// The free pool

TEST_F(RequestQueueTest, AMessageIsTakenFromTheHeadOfTheFreePool)
{
    PegMessage* const head = gpFreePool->head;
    PegMessage* const second = head->Next;

    PegMessage* const message = DisplayAPI::takeMessage();

    EXPECT_EQ(message, head);
    EXPECT_EQ(gpFreePool->head, second);
    giveBackMessage(message);
}

TEST_F(RequestQueueTest, TheLastMessageOfThePoolTakesTheTailWithIt)
{
    PegMessage last;
    PegFreePool pool{&last, &last};
    const test::Replaced<PegFreePool*> small(gpFreePool, &pool);

    EXPECT_EQ(DisplayAPI::takeMessage(), &last);

    EXPECT_EQ(pool.head, nullptr);
    EXPECT_EQ(pool.tail, nullptr);
}

TEST_F(RequestQueueTest, AnEmptyPoolGetsANewMessageWithEmptyLinks)
{
    const host::MessagePool::Drained drained;
    host::MessagePool::failAllocations(0);

    PegMessage* const message = DisplayAPI::takeMessage();

    ASSERT_NE(message, nullptr);
    EXPECT_EQ(message->pTarget, nullptr);
    EXPECT_EQ(message->pSource, nullptr);
    EXPECT_EQ(message->Next, nullptr);
    giveBackMessage(message);
}

TEST_F(RequestQueueTest, AMessageIsNullWhenThereIsNoMemory)
{
    const host::MessagePool::Drained drained;
    EXPECT_EQ(DisplayAPI::takeMessage(), nullptr);
}

TEST_F(RequestQueueTest, AMessageIsGivenBackToTheTailOfThePool)
{
    PegMessage* const oldTail = gpFreePool->tail;
    PegMessage* const message = DisplayAPI::takeMessage();

    giveBackMessage(message);

    EXPECT_EQ(oldTail->Next, message);
    EXPECT_EQ(gpFreePool->tail, message);
    EXPECT_EQ(message->Next, nullptr);
}

TEST_F(RequestQueueTest, AMessageGivenToAnEmptyPoolIsItsHeadAndTail)
{
    PegMessage message;
    PegFreePool pool;
    const test::Replaced<PegFreePool*> empty(gpFreePool, &pool);

    giveBackMessage(&message);

    EXPECT_EQ(pool.head, &message);
    EXPECT_EQ(pool.tail, &message);
}

TEST_F(RequestQueueTest, ThePoolIsOnlyTouchedUnderItsLock)
{
    LockMessageQueue();
    PegMessage* taken = nullptr;
    test::Worker worker([&] { taken = DisplayAPI::takeMessage(); });
    EXPECT_TRUE(worker.isBlocked());
    UnlockMessageQueue();
    worker.join();

    LockMessageQueue();
    test::Worker giver([&] { giveBackMessage(taken); });
    EXPECT_TRUE(giver.isBlocked());
    UnlockMessageQueue();
}

// Putting in

TEST_F(RequestQueueTest, TheTailIsBehindEverythingThatIsQueued)
{
    add(1);
    EXPECT_EQ(gtPegMainQueue->head, gtPegMainQueue->tail);
    add(2);
    add(3);

    EXPECT_THAT(queuedData(), ElementsAre(1, 2, 3));
    EXPECT_EQ(gtPegMainQueue->tail->iData, 3);
    EXPECT_EQ(gui.queued(), 3);
    gui.runAll();
}

TEST_F(RequestQueueTest, TheHeadIsBeforeEverythingThatIsQueued)
{
    add(1, Place::HEAD);
    EXPECT_EQ(gtPegMainQueue->head, gtPegMainQueue->tail);
    add(2, Place::HEAD);
    add(3);

    EXPECT_THAT(queuedData(), ElementsAre(2, 1, 3));
    EXPECT_EQ(gui.queued(), 3);
    gui.runAll();
}

TEST_F(RequestQueueTest, APooledLinkDoesNotLeakIntoTheQueue)
{
    PegMessage* const message = DisplayAPI::takeMessage();
    ASSERT_NE(message->Next, nullptr) << "it still names its neighbour in the pool";
    enqueue(message, Place::TAIL, [] { return true; });

    EXPECT_EQ(message->Next, nullptr);
    gui.takeMessage();
}

TEST_F(RequestQueueTest, TheLastWordIsSaidUnderTheMutex)
{
    bool mutexWasHeld = false;
    const auto admit = [&] {
        test::onOtherThread([&] { mutexWasHeld = pthread_mutex_trylock(&gtPegMainQueue->mutex) != 0; });
        return true;
    };

    EXPECT_TRUE(enqueue(DisplayAPI::takeMessage(), Place::TAIL, admit));

    EXPECT_TRUE(mutexWasHeld);
    gui.takeMessage();
}

TEST_F(RequestQueueTest, AMessageThatIsRefusedStaysTheCallers)
{
    add(1);
    PegMessage* const message = DisplayAPI::takeMessage();

    EXPECT_FALSE(enqueue(message, Place::TAIL, [] { return false; }));
    EXPECT_FALSE(enqueue(message, Place::HEAD, [] { return false; }));

    EXPECT_THAT(queuedData(), ElementsAre(1));
    EXPECT_EQ(gui.queued(), 1);
    giveBackMessage(message);
    gui.runAll();
}

// Taking out

TEST_F(RequestQueueTest, UnlinkingTheHeadMovesTheHead)
{
    add(1);
    add(2);

    PegMessage* const message = DisplayAPI::unlinkAfter(*gtPegMainQueue, nullptr);

    EXPECT_EQ(message->iData, 1);
    EXPECT_THAT(queuedData(), ElementsAre(2));
    EXPECT_EQ(gui.queued(), 1);
    giveBackMessage(message);
    gui.runAll();
}

TEST_F(RequestQueueTest, UnlinkingTheTailMovesTheTail)
{
    add(1);
    add(2);
    PegMessage* const head = gtPegMainQueue->head;

    PegMessage* const message = DisplayAPI::unlinkAfter(*gtPegMainQueue, head);

    EXPECT_EQ(message->iData, 2);
    EXPECT_EQ(gtPegMainQueue->tail, head);
    EXPECT_EQ(head->Next, nullptr);
    giveBackMessage(message);
    gui.runAll();
}

TEST_F(RequestQueueTest, RemovingTakesEveryMatchAndKeepsTheRestInOrder)
{
    for (const int data : {7, 1, 7, 7, 2, 7})
        add(data);
    int removed = 0;

    DisplayAPI::removeMessages(hasData(7), [&](PegMessage* message) {
        ++removed;
        giveBackMessage(message);
    });

    EXPECT_EQ(removed, 4);
    EXPECT_THAT(queuedData(), ElementsAre(1, 2));
    EXPECT_EQ(gtPegMainQueue->tail->iData, 2);
    EXPECT_EQ(gui.queued(), 2);
    gui.runAll();
}

TEST_F(RequestQueueTest, RemovingTheFirstMatchLeavesTheOthers)
{
    for (const int data : {1, 7, 7})
        add(data);

    giveBackMessage(DisplayAPI::removeFirstMessage(hasData(7)));

    EXPECT_THAT(queuedData(), ElementsAre(1, 7));
    EXPECT_EQ(DisplayAPI::removeFirstMessage(hasData(8)), nullptr);
    gui.runAll();
}

TEST_F(RequestQueueTest, AMissingQueueHasNothingToRemove)
{
    const test::Replaced<PegMainQueue*> noQueue(gtPegMainQueue, nullptr);
    const auto any = [](const PegMessage&) { return true; };

    EXPECT_EQ(DisplayAPI::removeFirstMessage(any), nullptr);
    DisplayAPI::removeMessages(any, [](PegMessage*) { FAIL(); });
}
