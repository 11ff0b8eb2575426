#pragma once

#include "toolkit/PegMessageQueue.h"

#include <cstdint>
#include <mutex>

namespace host {

/// The mutex of what waits in the main queue, for std::lock_guard.
class QueueMutex {
public:
    void lock() { pthread_mutex_lock(&gtPegMainQueue->mutex); }
    void unlock() { pthread_mutex_unlock(&gtPegMainQueue->mutex); }
};

/// The mutex of what the loop has taken over, inside the other one where both are needed.
class TakenMutex {
public:
    void lock() { pthread_mutex_lock(&gtPegMainQueue->takenMutex); }
    void unlock() { pthread_mutex_unlock(&gtPegMainQueue->takenMutex); }
};

/// What the toolkit itself does with the main queue. Each takes the queue's mutexes; none holds one on return.
class MainQueue {
public:
    /// Makes the queue on the first call; later ones do nothing.
    static void create();

    /// Appends a copy. Returns false where there is no record for it, or no queue.
    static bool push(const PegMessage& message);

    /// In a burst the loop lets messages gather before it takes them over, unless somebody waits for one of them.
    enum class Pace { PROMPT, BURST };
    static constexpr std::int64_t GATHERING_NS = 25'000;

    /// The first message, which is the caller's from now on; null where there is none. The loop's thread only.
    static PegMessage* take(Pace pace);

    /// Takes over all that waits, where nothing taken over is left. The loop's thread only.
    static void takeOver();

    /// Takes out what waits for `thing`, which is about to be gone. Requests stay, without a target: their records are
    /// the library's to complete and delete.
    static void dropMessagesTo(const PegThing* thing);

    /// Takes out everything but requests.
    static void dropMessages();

    /// The most that the loop has found waiting since the process started.
    static int mostWaiting();

    static bool isThere() { return gtPegMainQueue != nullptr; }
    static bool isEmpty() { return gtPegMainQueue->count() == 0; }
};

} // namespace host
