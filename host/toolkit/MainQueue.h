#pragma once

#include "toolkit/PegMessageQueue.h"

#include <mutex>

namespace host {

/// The main queue's mutex for std::lock_guard.
class QueueMutex {
public:
    void lock() { pthread_mutex_lock(&gtPegMainQueue->mutex); }
    bool try_lock() { return pthread_mutex_trylock(&gtPegMainQueue->mutex) == 0; }
    void unlock() { pthread_mutex_unlock(&gtPegMainQueue->mutex); }
};

/// What the toolkit itself does with the main queue. Each takes the queue's mutex; none holds it on return.
class MainQueue {
public:
    /// Makes the queue on the first call; later ones do nothing.
    static void create();

    /// Appends a copy. Returns false where there is no record for it, or no queue.
    static bool push(const PegMessage& message);

    /// In a burst of messages the loop lets posters go on rather than compete with them for each.
    enum class Pace { PROMPT, BURST };

    /// The first message, which is the caller's from now on; null where there is none.
    static PegMessage* take(Pace pace);

    /// Takes out what waits for `thing`, which is about to be gone. Requests stay, without a target: their records are
    /// the library's to complete and delete.
    static void dropMessagesTo(const PegThing* thing);

    /// Takes out everything but requests.
    static void dropMessages();

    static bool isEmpty() { return gtPegMainQueue->count.load(std::memory_order_relaxed) == 0; }
};

} // namespace host
