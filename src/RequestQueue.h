#pragma once

#include "toolkit/MessageSift.h"
#include "toolkit/PegMessageQueue.h"

#include <pthread.h>

/// The library's ways into the toolkit's main queue and free pool.
namespace DisplayAPI {

/// Holds one of the main queue's mutexes.
class MainQueueLock {
public:
    explicit MainQueueLock(pthread_mutex_t& mutex) : mMutex(mutex) { pthread_mutex_lock(&mMutex); }
    ~MainQueueLock() { pthread_mutex_unlock(&mMutex); }
    MainQueueLock(const MainQueueLock&) = delete;
    MainQueueLock& operator=(const MainQueueLock&) = delete;

private:
    pthread_mutex_t& mMutex;
};

/// Holds the whole queue: what waits and what the loop has taken over.
class WholeQueueLock {
public:
    explicit WholeQueueLock(PegMainQueue& queue) : mWaiting(queue.mutex), mTaken(queue.takenMutex) {}

private:
    MainQueueLock mWaiting;
    MainQueueLock mTaken;
};

/// A message record from the head of the free pool, or a new one; null when memory is out.
PegMessage* takeMessage();

/// Gives a record back to the tail of the free pool.
void giveBackMessage(PegMessage* message);

enum class Place { HEAD, TAIL };

/// Whether the poster waits for the request.
enum class Answer { AWAITED, NOT_AWAITED };

inline void addTo(std::atomic<int>& count, int change)
{
    count.store(count.load(std::memory_order_relaxed) + change, std::memory_order_release);
}

/// Under the queue's mutex.
void insertAtTail(PegMainQueue& queue, PegMessage* message);

/// Ahead of everything that has not begun. Under the queue's mutex.
void insertAtHead(PegMainQueue& queue, PegMessage* message);

/// Lets the loop go on where posters outrun it: with more of them than CPUs it would get a turn like each of them, and
/// what waits would fill the memory. To be called for each message that nobody waits for, without the mutex; `waiting`
/// is how many there were then.
void giveWayToLoop(int waiting);

/// Links `message` in and wakes the loop: from then on it and its record belong to the GUI thread. `admit` has the last
/// word before that, under the mutex; where it says no, the message stays the caller's. Returns what it has said.
template <typename Admit>
bool enqueue(PegMessage* message, Place place, Answer answer, Admit admit)
{
    PegMainQueue& queue = *gtPegMainQueue;
    int waiting = 0;
    {
        MainQueueLock lock(queue.mutex);
        if (!admit())
            return false;
        (place == Place::TAIL ? insertAtTail : insertAtHead)(queue, message);
        if (answer == Answer::AWAITED)
            queue.awaited.store(true, std::memory_order_relaxed);
        waiting = queue.waiting.load(std::memory_order_relaxed);
        pthread_cond_broadcast(&queue.condition);
    }
    if (answer == Answer::NOT_AWAITED)
        giveWayToLoop(waiting);
    return true;
}

/// Sifts the whole queue, in the order in which it runs: siftMessages(). Does nothing where there is none.
template <typename Matches, typename Take>
void siftQueue(Matches matches, Take take)
{
    if (gtPegMainQueue == nullptr)
        return;
    const WholeQueueLock lock(*gtPegMainQueue);
    siftMessages(*gtPegMainQueue, matches, take);
}

/// Unlinks every message that `matches` and hands it to `take`, which owns it. Under the queue's mutexes.
template <typename Matches, typename Take>
void removeMessages(Matches matches, Take take)
{
    siftQueue(matches, [&take](PegMessage* message) {
        take(message);
        return false;
    });
}

/// Unlinks the first message that `matches` and returns it; null where none does.
template <typename Matches>
PegMessage* removeFirstMessage(Matches matches)
{
    PegMessage* found = nullptr;
    siftQueue(matches, [&found](PegMessage* message) {
        found = message;
        return true;
    });
    return found;
}

} // namespace DisplayAPI
