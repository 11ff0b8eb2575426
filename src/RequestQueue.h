#pragma once

#include "toolkit/PegMessageQueue.h"

#include <pthread.h>

/// The library's ways into the toolkit's main queue and free pool.
namespace DisplayAPI {

/// Holds the main queue's mutex.
class MainQueueLock {
public:
    explicit MainQueueLock(PegMainQueue& queue) : mQueue(queue) { pthread_mutex_lock(&mQueue.mutex); }
    ~MainQueueLock() { pthread_mutex_unlock(&mQueue.mutex); }
    MainQueueLock(const MainQueueLock&) = delete;
    MainQueueLock& operator=(const MainQueueLock&) = delete;

private:
    PegMainQueue& mQueue;
};

/// A message record from the head of the free pool, or a new one; null when memory is out.
PegMessage* takeMessage();

/// Gives a record back to the tail of the free pool.
void giveBackMessage(PegMessage* message);

enum class Place { HEAD, TAIL };

/// Links `message` in and wakes the loop: from then on it and its record belong to the GUI thread. `admit` has the last
/// word before that, under the mutex; where it says no, the message stays the caller's. Returns what it has said.
template <typename Admit>
bool enqueue(PegMessage* message, Place place, Admit admit)
{
    PegMainQueue& queue = *gtPegMainQueue;
    MainQueueLock lock(queue);
    if (!admit())
        return false;
    if (place == Place::TAIL) {
        message->Next = nullptr;
        (queue.tail != nullptr ? queue.tail->Next : queue.head) = message;
        queue.tail = message;
    } else {
        message->Next = queue.head;
        if (queue.tail == nullptr)
            queue.tail = message;
        queue.head = message;
    }
    queue.count.store(queue.count.load(std::memory_order_relaxed) + 1, std::memory_order_release);
    pthread_cond_broadcast(&queue.condition);
    return true;
}

/// Unlinks the message behind `previous` (the head where it is null) and returns it. The queue's mutex must be held.
PegMessage* unlinkAfter(PegMainQueue& queue, PegMessage* previous);

/// Unlinks every message that `matches` and hands it to `take`, which owns it. Under the queue's mutex.
template <typename Matches, typename Take>
void removeMessages(Matches matches, Take take)
{
    if (gtPegMainQueue == nullptr)
        return;
    MainQueueLock lock(*gtPegMainQueue);
    PegMessage* previous = nullptr;
    PegMessage* message = gtPegMainQueue->head;
    while (message != nullptr) {
        PegMessage* const next = message->Next;
        if (matches(*message))
            take(unlinkAfter(*gtPegMainQueue, previous));
        else
            previous = message;
        message = next;
    }
}

/// Unlinks the first message that `matches` and returns it; null where none does.
template <typename Matches>
PegMessage* removeFirstMessage(Matches matches)
{
    if (gtPegMainQueue == nullptr)
        return nullptr;
    MainQueueLock lock(*gtPegMainQueue);
    PegMessage* previous = nullptr;
    for (PegMessage* message = gtPegMainQueue->head; message != nullptr; message = message->Next) {
        if (matches(*message))
            return unlinkAfter(*gtPegMainQueue, previous);
        previous = message;
    }
    return nullptr;
}

} // namespace DisplayAPI
