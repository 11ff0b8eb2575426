#include "host/toolkit/LoopStatus.h"

#include "host/clock/Clock.h"
#include "host/toolkit/MainQueue.h"

namespace host {

LoopStatus& LoopStatus::instance()
{
    static LoopStatus* const status = new LoopStatus;
    return *status;
}

LoopStatus::LoopStatus()
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

void LoopStatus::setRoot(PegThing* root)
{
    std::lock_guard lock(mRootMutex);
    mRoot = root;
}

void LoopStatus::askForExit()
{
    std::lock_guard lock(mRootMutex);
    if (mRoot)
        MainQueue::push({PM_EXIT, 0, mRoot});
}

} // namespace host
