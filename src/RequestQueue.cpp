#include "RequestQueue.h"

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
        __builtin_prefetch(message->Next, 1);
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

PegMessage* unlinkAfter(PegMainQueue& queue, PegMessage* previous)
{
    PegMessage* const message = previous != nullptr ? previous->Next : queue.head;
    (previous != nullptr ? previous->Next : queue.head) = message->Next;
    if (queue.tail == message)
        queue.tail = previous;
    queue.count.store(queue.count.load(std::memory_order_relaxed) - 1, std::memory_order_release);
    return message;
}

} // namespace DisplayAPI
