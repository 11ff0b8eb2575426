#include "host/toolkit/Loop.h"

#include "host/clock/Deadline.h"
#include "host/toolkit/LoopStatus.h"
#include "host/toolkit/MainQueue.h"
#include "utilities/Threadable.h"

namespace host {

bool Loop::waitUntilIdle(std::chrono::milliseconds limit)
{
    LoopStatus& status = LoopStatus::instance();
    if (!isRunning() || status.threadId == Threadable::currentThreadId())
        return false;
    const timespec deadline = realTimeAhead(limit.count());
    QueueMutex mutex;
    std::lock_guard lock(mutex);
    if (status.isIdle())
        return true;
    ++status.watchers;
    pthread_cond_broadcast(&gtPegMainQueue->condition);
    int result = 0;
    while (isRunning() && !status.isIdle() && result == 0)
        result = pthread_cond_timedwait(&status.becameIdle, &gtPegMainQueue->mutex, &deadline);
    --status.watchers;
    return isRunning() && status.isIdle();
}

std::uint64_t Loop::begun()
{
    return LoopStatus::instance().begun;
}

bool Loop::isIdleSince(std::uint64_t begun)
{
    const LoopStatus& status = LoopStatus::instance();
    if (!isRunning())
        return false;
    QueueMutex mutex;
    const std::lock_guard lock(mutex);
    return status.isIdle() && status.begun == begun;
}

bool Loop::isRunning()
{
    return LoopStatus::instance().threadId != 0;
}

std::chrono::milliseconds Loop::busyFor()
{
    return LoopStatus::instance().busyFor();
}

bool Loop::isBusy()
{
    return LoopStatus::instance().isBusy();
}

unsigned int Loop::guiThread()
{
    return LoopStatus::instance().guiThread;
}

void Loop::quit()
{
    LoopStatus::instance().askForExit();
}

} // namespace host
