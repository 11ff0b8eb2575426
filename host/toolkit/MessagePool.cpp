#include "host/toolkit/MessagePool.h"

#include "host/utilities/FutexLock.h"
#include "toolkit/PegMessageQueue.h"

#include <atomic>
#include <mutex>
#include <new>
#include <utility>

PegFreePool* gpFreePool = nullptr;

namespace host {

namespace {

/// On a cache line of its own: posters write it all the time, and the loop reads what lies beside it.
struct alignas(64) Pool {
    FutexLock lock;
    PegFreePool list;
};

constinit Pool gPool;
constinit FutexLock& gPoolLock = gPool.lock;
constinit std::atomic<int> gFailures{0};
constinit std::atomic<std::size_t> gRecords{0};
constinit std::atomic<std::size_t> gAllocations{0};
constinit std::atomic<std::size_t> gRefused{0};

bool failsOnPurpose()
{
    int left = gFailures;
    while (left > 0)
        if (gFailures.compare_exchange_weak(left, left - 1))
            return true;
    return left < 0;
}

/// A chain of new records; null when memory is out.
PegMessage* newChain(std::size_t count)
{
    PegMessage* const chain = new (std::nothrow) PegMessage[count];
    if (chain == nullptr)
        return nullptr;
    for (std::size_t at = 1; at < count; ++at)
        chain[at - 1].Next = &chain[at];
    gRecords += count;
    return chain;
}

} // namespace

void MessagePool::create()
{
    if (gpFreePool != nullptr)
        return;
    gpFreePool = &gPool.list;
    if (PegMessage* const chain = newChain(PREALLOCATED))
        giveBack(chain, chain + PREALLOCATED - 1);
}

PegMessage* MessagePool::take()
{
    {
        std::lock_guard lock(gPoolLock);
        if (PegMessage* const message = gpFreePool->head) {
            gpFreePool->head = message->Next;
            if (message->Next == nullptr)
                gpFreePool->tail = nullptr;
            return message;
        }
    }
    return AllocateMessage();
}

void MessagePool::giveBack(PegMessage* first, PegMessage* last)
{
    std::lock_guard lock(gPoolLock);
    last->Next = nullptr;
    (gpFreePool->tail != nullptr ? gpFreePool->tail->Next : gpFreePool->head) = first;
    gpFreePool->tail = last;
}

MessagePool::Counters MessagePool::counters()
{
    Counters counters{gRecords, 0, gAllocations, gRefused};
    std::lock_guard lock(gPoolLock);
    for (const PegMessage* message = gpFreePool != nullptr ? gpFreePool->head : nullptr; message != nullptr;
         message = message->Next)
        ++counters.free;
    return counters;
}

void MessagePool::failAllocations(int count)
{
    gFailures = count;
}

MessagePool::Drained::Drained()
{
    failAllocations(-1);
    std::lock_guard lock(gPoolLock);
    mFirst = std::exchange(gpFreePool->head, nullptr);
    mLast = std::exchange(gpFreePool->tail, nullptr);
}

MessagePool::Drained::~Drained()
{
    if (mFirst != nullptr)
        giveBack(mFirst, mLast);
    failAllocations(0);
}

void DoneMessages::giveBack()
{
    if (mFirst != nullptr)
        MessagePool::giveBack(mFirst, mLast);
    mFirst = mLast = nullptr;
    mCount = 0;
}

} // namespace host

void LockMessageQueue()
{
    host::gPoolLock.lock();
}

void UnlockMessageQueue()
{
    host::gPoolLock.unlock();
}

PegMessage* AllocateMessage() noexcept
{
    constexpr std::size_t RECORDS_AT_ONCE = 64;
    ++host::gAllocations;
    PegMessage* const chain = host::failsOnPurpose() ? nullptr : host::newChain(RECORDS_AT_ONCE);
    if (chain == nullptr) {
        ++host::gRefused;
        return nullptr;
    }
    host::MessagePool::giveBack(chain + 1, chain + RECORDS_AT_ONCE - 1);
    chain->Next = nullptr;
    return chain;
}
