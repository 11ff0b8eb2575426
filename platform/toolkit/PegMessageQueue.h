#pragma once

#include "toolkit/PegMessage.h"

#include <atomic>
#include <cstddef>
#include <pthread.h>

/// Message records that nobody uses, linked through PegMessage::Next.
/// Guarded by LockMessageQueue()/UnlockMessageQueue(). Users take from the head and give back to the tail.
struct PegFreePool {
    PegMessage* head = nullptr;
    PegMessage* tail = nullptr;
};

/// The messages that wait for the GUI thread, linked through PegMessage::Next, in two parts. The running loop takes
/// over all that waits at once: `taken` is what it has not begun of that, and runs before `head`. Who searches the
/// queue searches both, in this order, under both mutexes.
///
/// `mutex` guards head, tail and their links. Whoever inserts adds one to `waiting` and broadcasts `condition` before
/// unlocking; who waits for what he inserts sets `awaited` as well, and the loop does not linger. Who inserts ahead of
/// everything inserts at `taken` unless that is empty. `takenMutex` guards `taken` and its links, and is taken inside
/// `mutex`. The loop alone fills `taken`, under both; it takes its next message under `takenMutex` alone.
///
/// Counts and flag are atomic only so that a waiting loop may look at them without a mutex; they are written under the
/// part's. What posters write, what they read and what the loop writes lie on cache lines of their own; so does
/// `waiting`, so that a loop that looks for work leaves the mutex to posters. Processors fetch lines in pairs: what
/// posters write is one, what they only read stands beside the loop's.
struct PegMainQueue {
    static constexpr std::size_t LINE = 64;

    alignas(2 * LINE) PegMessage* head = nullptr;
    PegMessage* tail = nullptr;
    pthread_mutex_t mutex;

    alignas(LINE) std::atomic<int> waiting{0};

    alignas(LINE) pthread_cond_t condition;
    std::atomic<bool> awaited{false};

    alignas(LINE) pthread_mutex_t takenMutex;
    PegMessage* taken = nullptr;
    std::atomic<int> takenCount{0};

    /// Of both parts. Never too few while messages go from one to the other.
    int count() const { return waiting.load(std::memory_order_acquire) + takenCount.load(std::memory_order_relaxed); }
};

/// Null until the first pegInit(); valid from then on until the process ends.
extern PegFreePool* gpFreePool;
extern PegMainQueue* gtPegMainQueue;

/// The free pool's lock. May be taken inside the main queue's mutexes, never the other way round. Not recursive.
void LockMessageQueue();
void UnlockMessageQueue();

/// A new record with target, source and next zeroed, for when the free pool is empty; null when memory is out.
PegMessage* AllocateMessage() noexcept;

/// The toolkit's own way into the main queue.
class PegMessageQueue {
public:
    /// Appends a copy of `message` at the tail of the main queue. From any thread. Without a record for the copy the
    /// message is lost.
    void Push(const PegMessage& message);
};
