#include "RequestQueue.h"

#include "utilities/Prefetch.h"

#include <thread>

namespace DisplayAPI {

namespace {

PegMessage* takePooledMessage()
{
    LockMessageQueue();
    PegMessage* message = gpFreePool->head;
    if (message != nullptr) {
        gpFreePool->head = message->Next;
        if (message->Next == nullptr)
            gpFreePool->tail = nullptr;
        prefetchForWriting(message->Next);
    }
    UnlockMessageQueue();
    return message;
}

} // namespace

PegMessage* takeMessage()
{
    PegMessage* message = takePooledMessage();
    return message != nullptr ? message : AllocateMessage();
}

void giveBackMessage(PegMessage* message)
{
    message->Next = nullptr;
    LockMessageQueue();
    (gpFreePool->tail != nullptr ? gpFreePool->tail->Next : gpFreePool->head) = message;
    gpFreePool->tail = message;
    UnlockMessageQueue();
}

void insertAtTail(PegMainQueue& queue, PegMessage* message)
{
    message->Next = nullptr;
    (queue.tail != nullptr ? queue.tail->Next : queue.head) = message;
    queue.tail = message;
    addTo(queue.waiting, 1);
}

void insertAtHead(PegMainQueue& queue, PegMessage* message)
{
    MainQueueLock lock(queue.takenMutex);
    const bool runsFirst = queue.taken != nullptr;
    PegMessage*& first = runsFirst ? queue.taken : queue.head;
    message->Next = first;
    first = message;
    if (!runsFirst && queue.tail == nullptr)
        queue.tail = message;
    addTo(runsFirst ? queue.takenCount : queue.waiting, 1);
}

void giveWayToLoop(int waiting)
{
    constexpr int MANY = 4096;
    constexpr int BETWEEN_TURNS = 64; // other programs may take the turn instead
    if (waiting >= MANY && waiting % BETWEEN_TURNS == 0)
        std::this_thread::yield();
}

} // namespace DisplayAPI
