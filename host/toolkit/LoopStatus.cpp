#include "host/toolkit/LoopStatus.h"

#include "host/clock/Clock.h"
#include "host/toolkit/MainQueue.h"
#include "utilities/Threadable.h"

#include <time.h>

namespace host {

namespace {

constexpr std::int64_t RESTS = 0;

/// A tick of some milliseconds, at a fraction of what an exact time costs: the loop reads it for each waiting call.
std::int64_t coarseNow()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return now.tv_sec * 1000LL + now.tv_nsec / 1'000'000;
}

} // namespace

LoopStatus& LoopStatus::instance()
{
    static LoopStatus* const status = new LoopStatus;
    return *status;
}

LoopStatus::LoopStatus() : mBusySince(RESTS)
{
    pthread_condattr_t attributes;
    pthread_condattr_init(&attributes);
    pthread_condattr_setclock(&attributes, CLOCK_MONOTONIC);
    pthread_cond_init(&becameIdle, &attributes);
    pthread_condattr_destroy(&attributes);
}

bool LoopStatus::isIdle() const
{
    return restsWithoutWork && MainQueue::isEmpty() && !Clock::instance().isTimerDue();
}

void LoopStatus::beginWork()
{
    mBusySince.store(coarseNow(), std::memory_order_relaxed);
}

void LoopStatus::beginRest()
{
    mBusySince.store(RESTS, std::memory_order_relaxed);
}

std::chrono::milliseconds LoopStatus::busyFor() const
{
    const std::int64_t since = mBusySince.load(std::memory_order_relaxed);
    return std::chrono::milliseconds(since == RESTS ? 0 : coarseNow() - since);
}

bool LoopStatus::isBusy() const
{
    return mBusySince.load(std::memory_order_relaxed) != RESTS;
}

void LoopStatus::setRoot(PegThing* root)
{
    guiThread = root != nullptr ? Threadable::currentThreadId() : 0;
    root != nullptr ? beginWork() : beginRest();
    std::lock_guard lock(mRootMutex);
    mRoot = root;
}

void LoopStatus::askForExit()
{
    std::lock_guard lock(mRootMutex);
    if (mRoot != nullptr)
        MainQueue::push({PM_EXIT, 0, mRoot});
}

} // namespace host
