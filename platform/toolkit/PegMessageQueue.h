#pragma once

#include "toolkit/PegMessage.h"

#include <atomic>
#include <pthread.h>

/// Message records that nobody uses, linked through PegMessage::Next.
/// Guarded by LockMessageQueue()/UnlockMessageQueue(). Users take from the head and give back to the tail.
struct PegFreePool {
    PegMessage* head = nullptr;
    PegMessage* tail = nullptr;
};

/// The messages that wait for the GUI thread, linked through PegMessage::Next; head is the next one to run.
/// `mutex` guards head, tail and the links. Whoever inserts adds one to `count` and broadcasts `condition` before
/// unlocking. `count` is atomic only so that a waiting loop may look at it without the mutex; it is written under it.
struct PegMainQueue {
    PegMessage* head = nullptr;
    PegMessage* tail = nullptr;
    pthread_mutex_t mutex;
    pthread_cond_t condition;
    std::atomic<int> count{0};
};

/// Null until the first pegInit(); valid from then on until the process ends.
extern PegFreePool* gpFreePool;
extern PegMainQueue* gtPegMainQueue;

/// The free pool's lock. May be taken inside the main queue's mutex, never the other way round. Not recursive.
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
