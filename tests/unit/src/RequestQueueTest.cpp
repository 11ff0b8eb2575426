#include "RequestQueue.h"

#include "host/toolkit/MainQueue.h"
#include "host/toolkit/MessagePool.h"
#include "support/Replaced.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <functional>
#include <gmock/gmock.h>
#include <vector>

using DisplayAPI::Answer;
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
        EXPECT_TRUE(enqueue(message, place, Answer::NOT_AWAITED, [] { return true; }));
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
    enqueue(message, Place::TAIL, Answer::NOT_AWAITED, [] { return true; });

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

    EXPECT_TRUE(enqueue(DisplayAPI::takeMessage(), Place::TAIL, Answer::NOT_AWAITED, admit));

    EXPECT_TRUE(mutexWasHeld);
    gui.takeMessage();
}

TEST_F(RequestQueueTest, AMessageThatIsRefusedStaysTheCallers)
{
    add(1);
    PegMessage* const message = DisplayAPI::takeMessage();

    EXPECT_FALSE(enqueue(message, Place::TAIL, Answer::NOT_AWAITED, [] { return false; }));
    EXPECT_FALSE(enqueue(message, Place::HEAD, Answer::NOT_AWAITED, [] { return false; }));

    EXPECT_THAT(queuedData(), ElementsAre(1));
    EXPECT_EQ(gui.queued(), 1);
    giveBackMessage(message);
    gui.runAll();
}

// Taking out

TEST_F(RequestQueueTest, RemovingTheHeadMovesTheHead)
{
    add(1);
    add(2);

    PegMessage* const message = DisplayAPI::removeFirstMessage(hasData(1));

    EXPECT_EQ(message->iData, 1);
    EXPECT_THAT(queuedData(), ElementsAre(2));
    EXPECT_EQ(gui.queued(), 1);
    giveBackMessage(message);
    gui.runAll();
}

TEST_F(RequestQueueTest, RemovingTheTailMovesTheTail)
{
    add(1);
    add(2);
    PegMessage* const head = gtPegMainQueue->head;

    PegMessage* const message = DisplayAPI::removeFirstMessage(hasData(2));

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

// What the loop has taken over

TEST_F(RequestQueueTest, WhatIsTakenOverRunsBeforeWhatIsPutInLater)
{
    add(1);
    add(2);
    gui.takeOver();
    add(3);

    EXPECT_EQ(gtPegMainQueue->head, gtPegMainQueue->tail);
    EXPECT_EQ(gui.queued(), 3) << "the count covers both parts";
    EXPECT_THAT(queuedData(), ElementsAre(1, 2, 3));
    gui.runAll();
}

TEST_F(RequestQueueTest, TheHeadIsBeforeWhatIsTakenOver)
{
    add(1);
    gui.takeOver();
    add(2);
    add(3, Place::HEAD);
    add(4, Place::HEAD);

    EXPECT_THAT(queuedData(), ElementsAre(4, 3, 1, 2));
    EXPECT_EQ(gtPegMainQueue->taken->iData, 4);
    EXPECT_EQ(gui.queued(), 4);
    gui.runAll();
}

TEST_F(RequestQueueTest, TheHeadOfAQueueOfWhichAllHasBegunWaits)
{
    add(1);
    gui.takeOver();
    gui.takeMessage();
    add(2, Place::HEAD);

    EXPECT_EQ(gtPegMainQueue->taken, nullptr);
    EXPECT_EQ(gtPegMainQueue->head, gtPegMainQueue->tail);
    EXPECT_EQ(gui.queued(), 1);
    gui.runAll();
}

TEST_F(RequestQueueTest, RemovingTakesEveryMatchOutOfBothParts)
{
    for (const int data : {7, 1, 7})
        add(data);
    gui.takeOver();
    for (const int data : {2, 7, 7})
        add(data);

    DisplayAPI::removeMessages(hasData(7), giveBackMessage);

    EXPECT_THAT(queuedData(), ElementsAre(1, 2));
    EXPECT_EQ(gui.queued(), 2);
    EXPECT_EQ(gtPegMainQueue->takenCount, 1);
    add(3);
    EXPECT_THAT(queuedData(), ElementsAre(1, 2, 3));
    gui.runAll();
}

TEST_F(RequestQueueTest, TheFirstMatchIsTheOneThatWouldRunFirst)
{
    add(7);
    gui.takeOver();
    add(7);
    const PegMessage* const first = gtPegMainQueue->taken;

    PegMessage* const removed = DisplayAPI::removeFirstMessage(hasData(7));

    EXPECT_EQ(removed, first);
    EXPECT_EQ(gui.queued(), 1);
    giveBackMessage(removed);
    gui.runAll();
}

TEST_F(RequestQueueTest, TheFirstMatchIsFoundBehindWhatIsTakenOver)
{
    add(1);
    gui.takeOver();
    add(7);

    giveBackMessage(DisplayAPI::removeFirstMessage(hasData(7)));

    EXPECT_THAT(queuedData(), ElementsAre(1));
    EXPECT_EQ(gtPegMainQueue->tail, nullptr);
    gui.runAll();
}

TEST_F(RequestQueueTest, AnAwaitedMessageIsToldToTheLoopUntilItIsTakenOver)
{
    add(1);
    EXPECT_FALSE(gtPegMainQueue->awaited);
    enqueue(DisplayAPI::takeMessage(), Place::TAIL, Answer::AWAITED, [] { return true; });
    EXPECT_TRUE(gtPegMainQueue->awaited);

    gui.takeOver();

    EXPECT_FALSE(gtPegMainQueue->awaited);
    gui.takeMessage();
    gui.takeMessage();
}

namespace {

/// Two threads post and two take back, while the calling one takes messages as the loop does, at both paces. A message
/// has its poster's number and its own.
class Scramble {
public:
    static constexpr int MESSAGES = 10'000;

    void run()
    {
        test::Worker purging([this] { takeBackUntilTheEnd([this] { purge(); }); });
        test::Worker dequeuing([this] { takeBackUntilTheEnd([this] { dequeue(); }); });
        test::Worker first([] { postAll(0); });
        test::Worker second([] { postAll(1); });
        while (!first.hasReturned() || !second.hasReturned() || !host::MainQueue::isEmpty())
            takeOne();
        mIsOver = true;
    }

    int goneOnce() const
    {
        int once = 0;
        for (const Counts& gone : mGone)
            once += static_cast<int>(std::ranges::count_if(gone, [](const auto& times) { return times == 1; }));
        return once;
    }

    bool isInOrder() const { return mIsInOrder; }

private:
    /// Goes ahead of everything.
    static bool isUrgent(int number) { return number % 7 == 0; }

    static void postAll(std::uint16_t poster)
    {
        for (int number = 0; number < MESSAGES; ++number) {
            PegMessage* const message = DisplayAPI::takeMessage();
            *message = {poster, number};
            enqueue(message, isUrgent(number) ? Place::HEAD : Place::TAIL,
                    number % 3 == 0 ? Answer::AWAITED : Answer::NOT_AWAITED, [] { return true; });
        }
    }

    void takeBackUntilTheEnd(const std::function<void()>& takeBack)
    {
        while (!mIsOver)
            takeBack();
    }

    void purge()
    {
        DisplayAPI::removeMessages([](const PegMessage& message) { return message.iData % 5 == 1; },
                                   [this](PegMessage* message) { end(message); });
    }

    void dequeue()
    {
        if (PegMessage* const message =
                DisplayAPI::removeFirstMessage([](const PegMessage& queued) { return queued.iData % 11 == 3; }))
            end(message);
    }

    void takeOne()
    {
        using enum host::MainQueue::Pace;
        PegMessage* const message = host::MainQueue::take(mTakes++ % 64 == 0 ? BURST : PROMPT);
        if (message == nullptr)
            return;
        int& last = mLast.at(message->wType);
        mIsInOrder = mIsInOrder && (isUrgent(message->iData) || message->iData > last);
        last = isUrgent(message->iData) ? last : message->iData;
        end(message);
    }

    void end(PegMessage* message)
    {
        ++mGone.at(message->wType).at(static_cast<std::size_t>(message->iData));
        giveBackMessage(message);
    }

    using Counts = std::vector<std::atomic<int>>;
    std::array<Counts, 2> mGone{Counts(MESSAGES), Counts(MESSAGES)};
    std::array<int, 2> mLast{-1, -1};
    int mTakes = 0;
    bool mIsInOrder = true;
    std::atomic<bool> mIsOver{false};
};

} // namespace

TEST_F(RequestQueueTest, MessagesArePostedTakenAndTakenBackAtTheSameTime)
{
    Scramble scramble;
    scramble.run();

    EXPECT_EQ(scramble.goneOnce(), 2 * Scramble::MESSAGES);
    EXPECT_TRUE(scramble.isInOrder());
    EXPECT_EQ(gtPegMainQueue->count(), 0);
    EXPECT_EQ(gtPegMainQueue->taken, nullptr);
    EXPECT_EQ(gtPegMainQueue->head, nullptr);
    EXPECT_EQ(gtPegMainQueue->tail, nullptr);
}

TEST_F(RequestQueueTest, AMissingQueueHasNothingToRemove)
{
    const test::Replaced<PegMainQueue*> noQueue(gtPegMainQueue, nullptr);
    const auto any = [](const PegMessage&) { return true; };

    EXPECT_EQ(DisplayAPI::removeFirstMessage(any), nullptr);
    DisplayAPI::removeMessages(any, [](PegMessage*) { FAIL(); });
}
