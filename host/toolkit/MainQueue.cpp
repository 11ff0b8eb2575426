#include "host/toolkit/MainQueue.h"

#include "host/toolkit/MessagePool.h"
#include "host/utilities/Spin.h"
#include "utilities/Logging.h"

PegMainQueue* gtPegMainQueue = nullptr;

namespace host {

namespace {

void initialise(pthread_cond_t& condition)
{
    pthread_condattr_t attributes;
    pthread_condattr_init(&attributes);
    pthread_condattr_setclock(&attributes, CLOCK_MONOTONIC);
    pthread_cond_init(&condition, &attributes);
    pthread_condattr_destroy(&attributes);
}

void addToCount(int change)
{
    std::atomic<int>& count = gtPegMainQueue->count;
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
    addToCount(1);
    pthread_cond_broadcast(&queue.condition);
}

/// Sleeping and waking for every collision with a poster would cost more than the messages.
bool lockLater(std::unique_lock<QueueMutex>& lock)
{
    if (lock.try_lock())
        return true;
    Spin::stayAway();
    return lock.try_lock();
}

/// The messages that come next were written by other CPUs: ask for their lines while this one is being handled.
void fetchAhead(const PegMessage& next)
{
    constexpr int RECORD = 256;
    constexpr int LINE = 64;
    __builtin_prefetch(next.Next);
    for (int line = 0; next.pData != nullptr && line < RECORD; line += LINE)
        __builtin_prefetch(static_cast<const char*>(next.pData) + line, 1);
}

bool isRequest(const PegMessage& message)
{
    return message.wType == PM_DISPLAY_REQUEST || message.wType == PM_WIDGET_REQUEST;
}

/// Takes out the messages that `unwanted` names.
template <typename Unwanted>
void removeIf(Unwanted unwanted)
{
    DoneMessages removed;
    QueueMutex mutex;
    std::lock_guard lock(mutex);
    PegMainQueue& queue = *gtPegMainQueue;
    PegMessage* previous = nullptr;
    for (PegMessage* message = queue.head; message;) {
        PegMessage* const next = message->Next;
        if (unwanted(*message)) {
            (previous ? previous->Next : queue.head) = next;
            addToCount(-1);
            removed.add(message);
        } else {
            previous = message;
        }
        message = next;
    }
    queue.tail = previous;
}

} // namespace

void MainQueue::create()
{
    if (gtPegMainQueue != nullptr)
        return;
    auto* const queue = new PegMainQueue;
    pthread_mutex_init(&queue->mutex, nullptr);
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
    if (isEmpty())
        return nullptr;
    QueueMutex mutex;
    std::unique_lock lock(mutex, std::defer_lock);
    if (pace == Pace::PROMPT || !lockLater(lock))
        lock.lock();
    PegMainQueue& queue = *gtPegMainQueue;
    PegMessage* const message = queue.head;
    if (message == nullptr)
        return nullptr;
    queue.head = message->Next;
    if (queue.head == nullptr)
        queue.tail = nullptr;
    else
        fetchAhead(*queue.head);
    addToCount(-1);
    return message;
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
