#pragma once

#include "toolkit/PegMessage.h"

#include <cstddef>

namespace host {

/// What the host knows of the message records beyond the free pool itself. Safe from any thread.
/// Records are never returned to the system: they go round between the pool and the queue.
class MessagePool {
public:
    static constexpr std::size_t PREALLOCATED = 1024;

    /// Makes the pool on the first call; later ones do nothing.
    static void create();

    /// A record for the caller, out of the pool or new; null where neither can be had.
    static PegMessage* take();

    /// Takes back a chain of records that ends with `last`.
    static void giveBack(PegMessage* first, PegMessage* last);

    struct Counters {
        std::size_t records = 0;     ///< made since the process started
        std::size_t free = 0;        ///< lie in the pool
        std::size_t allocations = 0; ///< asked of AllocateMessage()
        std::size_t refused = 0;     ///< of these, answered with null
    };
    static Counters counters();

    /// Lets the next `count` allocations fail; a negative count lets all of them fail until the next call.
    static void failAllocations(int count);

    /// While it lives the pool is empty and no record can be allocated: every new message is lost.
    class Drained {
    public:
        Drained();
        Drained(const Drained&) = delete;
        Drained& operator=(const Drained&) = delete;
        ~Drained();

    private:
        PegMessage* mFirst;
        PegMessage* mLast;
    };
};

/// Collects records that are done with, so that the pool's lock is taken once for many.
class DoneMessages {
public:
    DoneMessages() = default;
    DoneMessages(const DoneMessages&) = delete;
    DoneMessages& operator=(const DoneMessages&) = delete;
    ~DoneMessages() { giveBack(); }

    void add(PegMessage* message)
    {
        message->Next = nullptr;
        (mLast != nullptr ? mLast->Next : mFirst) = message;
        mLast = message;
        if (++mCount == BATCH)
            giveBack();
    }

    void giveBack();

private:
    static constexpr int BATCH = 64;

    PegMessage* mFirst = nullptr;
    PegMessage* mLast = nullptr;
    int mCount = 0;
};

} // namespace host
