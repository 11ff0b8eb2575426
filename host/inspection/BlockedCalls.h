#pragma once

#include "utilities/RequestStatus.h"

#include <cstdint>
#include <typeinfo>
#include <vector>

namespace host {

/// A thread that sleeps until the GUI thread has carried out its request, or until it is its turn on the facade.
struct BlockedCall {
    int thread = 0;
    const std::type_info* facade = nullptr;
    int code = 0;
    std::int64_t since = 0; ///< nanoseconds of the monotonic clock; tells one sleep of a thread from another
};

/// Which threads wait for the GUI thread. Safe from any thread: who goes to sleep writes down what for, and nobody
/// waits for anybody.
///
/// Lock: a mutex guards the list of threads, a leaf; a thread takes it for its first sleep, and when it ends.
class BlockedCalls {
public:
    static std::vector<BlockedCall> all();

    /// The longest first.
    static std::vector<BlockedCall> longest();

private:
    friend class BlockedCallNote;
    struct Slot;
    struct Slots;
    class Tenancy;

    static Slots& slots();
    static Slot* slot();
};

/// Stands around the sleep of a thread that waits for a request.
class BlockedCallNote {
public:
    BlockedCallNote(const AwaitedRequest* request, std::int64_t now)
    {
        if (request != nullptr)
            begin(*request, now);
    }

    ~BlockedCallNote()
    {
        if (mSlot != nullptr)
            end();
    }

    BlockedCallNote(const BlockedCallNote&) = delete;
    BlockedCallNote& operator=(const BlockedCallNote&) = delete;

private:
    void begin(const AwaitedRequest& request, std::int64_t now);
    void end();

    BlockedCalls::Slot* mSlot = nullptr;
};

} // namespace host
