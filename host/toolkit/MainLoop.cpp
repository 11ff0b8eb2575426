#include "host/toolkit/MainLoop.h"

#include "host/clock/Clock.h"
#include "host/clock/Deadline.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/LoopStatus.h"
#include "host/toolkit/MainQueue.h"
#include "host/utilities/Spin.h"
#include "utilities/Threadable.h"

#include <algorithm>

namespace host {

namespace {

constexpr int MESSAGES_BEFORE_A_BURST = 16;

/// Milliseconds of real time until something is due that no message announces; NEVER where nothing is.
std::int64_t untilDue()
{
    const Clock& clock = Clock::instance();
    const std::int64_t timerDue = clock.timerDue();
    std::int64_t wait = Clock::NEVER;
    if (clock.isTimerDue())
        wait = 0;
    else if (timerDue != Clock::NEVER && !clock.isVirtual())
        wait = std::max<std::int64_t>(timerDue - clock.now(), 0);
    return MainLoop::isPainted() ? wait : std::min<std::int64_t>(wait, Lcd::current()->untilFrameDue());
}

void publish(unsigned int threadId)
{
    LoopStatus& status = LoopStatus::instance();
    QueueMutex mutex;
    std::lock_guard lock(mutex);
    status.threadId = threadId;
    pthread_cond_broadcast(&status.becameIdle);
}

} // namespace

MainLoop* MainLoop::gRun = nullptr;

MainLoop::MainLoop()
{
    gRun = this;
    publish(Threadable::currentThreadId());
}

MainLoop::~MainLoop()
{
    gRun = nullptr;
    publish(0);
}

void MainLoop::end()
{
    if (gRun != nullptr)
        gRun->mEnded = true;
}

PegMessage* MainLoop::take()
{
    PegMessage* const message =
        MainQueue::take(mMessagesInARow < MESSAGES_BEFORE_A_BURST ? MainQueue::Pace::PROMPT : MainQueue::Pace::BURST);
    mMessagesInARow = message != nullptr ? mMessagesInARow + 1 : 0;
    LoopStatus& status = LoopStatus::instance();
    status.begun += message != nullptr ? 1 : 0;
    if (isTurnOfOthers())
        status.beginWork();
    return message;
}

bool MainLoop::isPainted()
{
    return Lcd::current() == nullptr || !Lcd::current()->isDirty();
}

void MainLoop::paintIfDue()
{
    if (isPainted())
        return;
    const bool somebodyWaits =
        LoopStatus::instance().watchers > 0 && MainQueue::isEmpty() && !Clock::instance().leavesTimersToLoop();
    if (somebodyWaits || Lcd::current()->untilFrameDue() == 0)
        Lcd::current()->paint();
}

void MainLoop::waitForWork()
{
    if (mEnded || !MainQueue::isEmpty() || Clock::instance().moveToTimer() ||
        Spin::until([] { return !MainQueue::isEmpty(); }))
        return;
    mDone.giveBack();
    sleep();
}

void MainLoop::sleep()
{
    LoopStatus& status = LoopStatus::instance();
    QueueMutex mutex;
    std::lock_guard lock(mutex);
    const std::int64_t wait = untilDue();
    if (!MainQueue::isEmpty() || wait == 0 || (status.watchers > 0 && !isPainted()))
        return;
    const Spin::Sleep measured;
    status.restsWithoutWork = isPainted();
    if (status.watchers > 0)
        pthread_cond_broadcast(&status.becameIdle);
    status.beginRest();
    if (wait == Clock::NEVER) {
        pthread_cond_wait(&gtPegMainQueue->condition, &gtPegMainQueue->mutex);
    } else {
        const timespec deadline = realTimeAhead(wait);
        pthread_cond_timedwait(&gtPegMainQueue->condition, &gtPegMainQueue->mutex, &deadline);
    }
    status.beginWork();
    status.restsWithoutWork = false;
}

} // namespace host
