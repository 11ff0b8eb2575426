#include "host/toolkit/MainQueue.h"

#include "host/toolkit/MessagePool.h"
#include "host/utilities/Spin.h"
#include "toolkit/MessageSift.h"
#include "utilities/Logging.h"
#include "utilities/Prefetch.h"

#include <utility>

PegMainQueue* gtPegMainQueue = nullptr;

namespace host {

namespace {

/// The loop's.
constinit std::atomic<int> gMostWaiting{0};

void initialise(pthread_cond_t& condition)
{
    pthread_condattr_t attributes;
    pthread_condattr_init(&attributes);
    pthread_condattr_setclock(&attributes, CLOCK_MONOTONIC);
    pthread_cond_init(&condition, &attributes);
    pthread_condattr_destroy(&attributes);
}

void add(std::atomic<int>& count, int change)
{
    count.store(count.load(std::memory_order_relaxed) + change, std::memory_order_relaxed);
}

/// Some messages are waited for without end: that of the loop's own end, for one.
void logLost(const PegMessage& message)
{
    if (loggingOnUni())
        logAppUni("PegWidgets", "MainQueue", 2, __LINE__, "no PegMessage object is left, message %d is lost",
                  message.wType);
}

void append(PegMessage* message)
{
    PegMainQueue& queue = *gtPegMainQueue;
    (queue.tail != nullptr ? queue.tail->Next : queue.head) = message;
    queue.tail = message;
    add(queue.waiting, 1);
    pthread_cond_broadcast(&queue.condition);
}

/// A run of many costs little more than one of one, and while it is worked through nobody competes for the queue.
void letMessagesGather()
{
    Spin::rest(MainQueue::GATHERING_NS, [] { return gtPegMainQueue->awaited.load(std::memory_order_relaxed); });
}

/// The messages that come next were written by other CPUs: ask for their lines while this one is being handled.
void fetchAhead(const PegMessage& next)
{
    constexpr int RECORD = 256;
    constexpr int LINE = 64;
    prefetchForWriting(next.Next);
    for (int line = 0; next.pData != nullptr && line < RECORD; line += LINE)
        prefetchForWriting(static_cast<const char*>(next.pData) + line);
}

bool isRequest(const PegMessage& message)
{
    return message.wType == PM_DISPLAY_REQUEST || message.wType == PM_WIDGET_REQUEST;
}

/// Takes the messages that `unwanted` names out of both parts.
template <typename Unwanted>
void removeIf(Unwanted unwanted)
{
    DoneMessages removed;
    QueueMutex mutex;
    std::lock_guard lock(mutex);
    TakenMutex takenMutex;
    std::lock_guard takenLock(takenMutex);
    siftMessages(*gtPegMainQueue, unwanted, [&removed](PegMessage* message) {
        removed.add(message);
        return false;
    });
}

/// The first message of those that have been taken over, or null.
PegMessage* takeTaken()
{
    TakenMutex mutex;
    std::lock_guard lock(mutex);
    PegMainQueue& queue = *gtPegMainQueue;
    PegMessage* const message = queue.taken;
    if (message == nullptr)
        return nullptr;
    queue.taken = message->Next;
    add(queue.takenCount, -1);
    if (queue.taken != nullptr)
        fetchAhead(*queue.taken);
    return message;
}

} // namespace

void MainQueue::create()
{
    if (gtPegMainQueue != nullptr)
        return;
    auto* const queue = new PegMainQueue;
    pthread_mutex_init(&queue->mutex, nullptr);
    pthread_mutex_init(&queue->takenMutex, nullptr);
    initialise(queue->condition);
    gtPegMainQueue = queue;
}

bool MainQueue::push(const PegMessage& message)
{
    if (gtPegMainQueue == nullptr)
        return false;
    PegMessage* const record = MessagePool::take();
    if (record == nullptr) {
        logLost(message);
        return false;
    }
    *record = message;
    record->Next = nullptr;
    QueueMutex mutex;
    std::lock_guard lock(mutex);
    append(record);
    return true;
}

PegMessage* MainQueue::take(Pace pace)
{
    const PegMainQueue& queue = *gtPegMainQueue;
    if (queue.takenCount.load(std::memory_order_relaxed) != 0)
        if (PegMessage* const message = takeTaken())
            return message;
    if (queue.waiting.load(std::memory_order_relaxed) == 0)
        return nullptr;
    if (pace == Pace::BURST)
        letMessagesGather();
    takeOver();
    return takeTaken();
}

void MainQueue::takeOver()
{
    QueueMutex mutex;
    std::lock_guard lock(mutex);
    TakenMutex takenMutex;
    std::lock_guard takenLock(takenMutex);
    PegMainQueue& queue = *gtPegMainQueue;
    if (queue.taken != nullptr)
        return;
    queue.taken = std::exchange(queue.head, nullptr);
    queue.tail = nullptr;
    const int waiting = queue.waiting.load(std::memory_order_relaxed);
    if (waiting > gMostWaiting.load(std::memory_order_relaxed))
        gMostWaiting.store(waiting, std::memory_order_relaxed);
    queue.takenCount.store(waiting, std::memory_order_relaxed);
    queue.waiting.store(0, std::memory_order_release);
    if (queue.awaited.load(std::memory_order_relaxed)) // posters read its line
        queue.awaited.store(false, std::memory_order_relaxed);
}

int MainQueue::mostWaiting()
{
    return gMostWaiting.load(std::memory_order_relaxed);
}

void MainQueue::dropMessagesTo(const PegThing* thing)
{
    if (gtPegMainQueue == nullptr || isEmpty())
        return;
    removeIf([thing](PegMessage& message) {
        if (message.pTarget != thing)
            return false;
        message.pTarget = nullptr;
        return !isRequest(message);
    });
}

void MainQueue::dropMessages()
{
    removeIf([](const PegMessage& message) { return !isRequest(message); });
}

} // namespace host
