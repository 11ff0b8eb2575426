#pragma once

#include "toolkit/PegMessageQueue.h"

/// Unlinks what `matches` from the messages that begin with `first`, and hands it to `take`, which owns it, until
/// `take` says that it is enough. `last` is the last of them, before and after. Returns whether it was enough. Under
/// the part's mutex.
template <typename Matches, typename Take>
bool siftMessages(PegMessage*& first, PegMessage*& last, std::atomic<int>& count, Matches& matches, Take& take)
{
    PegMessage* previous = nullptr;
    for (PegMessage** link = &first; *link != nullptr;) {
        PegMessage* const message = *link;
        if (!matches(*message)) {
            previous = message;
            link = &message->Next;
            continue;
        }
        *link = message->Next;
        if (last == message)
            last = previous;
        count.store(count.load(std::memory_order_relaxed) - 1, std::memory_order_release);
        if (take(message))
            return true;
    }
    return false;
}

/// The same for both parts of the queue, in the order in which they run. Under both mutexes.
template <typename Matches, typename Take>
void siftMessages(PegMainQueue& queue, Matches matches, Take take)
{
    PegMessage* noTail = nullptr;
    if (!siftMessages(queue.taken, noTail, queue.takenCount, matches, take))
        siftMessages(queue.head, queue.tail, queue.waiting, matches, take);
}
