#include "TimerPrivate.h"

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/TimerEvent.h"
#include "toolkit/PegMessage.h"

#include <algorithm>

namespace DisplayAPI {

/// An expiry on its way along the event listeners. They may change the list, let the timer expire again or delete it:
/// whoever was removed is not told, and whoever was added is told the next time.
struct TimerPrivate::Walk {
    std::size_t next;
    std::size_t end;
    std::shared_ptr<Walk> outer;
    bool timerIsGone = false;

    void hasLost(std::size_t index)
    {
        next -= index < next;
        end -= index < end;
    }

    void abandon()
    {
        end = next;
        timerIsGone = true;
    }
};

TimerPrivate::TimerPrivate(int interval) : mTimer(std::make_unique<KestrelPegTimer>())
{
    mTimer->setObserver(this);
    if (interval > 0)
        mTimer->setInterval(interval);
}

TimerPrivate::~TimerPrivate()
{
    for (Walk* walk = mWalk.get(); walk != nullptr; walk = walk->outer.get())
        walk->abandon();
    mTimer.reset();
    if (mCommand == nullptr)
        return;
    for (CommandListener* listener : mCommandListeners)
        listener->retrievePendingCommandAction(mCommand, nullptr);
}

int TimerPrivate::Message(const PegMessage& message)
{
    if (message.wType == PM_TIMER)
        timerEvent();
    return 0;
}

void TimerPrivate::timerEvent()
{
    for (CommandListener* listener : mCommandListeners)
        listener->postCommandAction(mCommand, nullptr);
    tellEventListeners();
}

void TimerPrivate::tellEventListeners()
{
    const auto walk = std::make_shared<Walk>(Walk{0, mEventListeners.size(), mWalk});
    mWalk = walk;
    while (walk->next < walk->end)
        mEventListeners[walk->next++]->timerExpired();
    if (!walk->timerIsGone)
        mWalk = walk->outer;
}

void TimerPrivate::start(int ms)
{
    if (ms == 0)
        timerEvent();
    else if (ms > 0)
        mTimer->start(ms);
}

void TimerPrivate::stop()
{
    mTimer->stop();
}

void TimerPrivate::enableSingleShot(bool on)
{
    mTimer->setSingleShot(on);
}

void TimerPrivate::addCommand(Command* command)
{
    mCommand = command;
}

void TimerPrivate::addCommandListener(CommandListener* listener)
{
    if (listener != nullptr)
        mCommandListeners.push_back(listener);
}

void TimerPrivate::removeCommandListener(CommandListener* listener)
{
    const auto found = std::find(mCommandListeners.begin(), mCommandListeners.end(), listener);
    if (found != mCommandListeners.end())
        mCommandListeners.erase(found);
}

void TimerPrivate::addEventListener(TimerEvent* listener)
{
    if (listener != nullptr)
        mEventListeners.push_back(listener);
}

void TimerPrivate::removeEventListener(TimerEvent* listener)
{
    const auto found = std::find(mEventListeners.begin(), mEventListeners.end(), listener);
    if (found == mEventListeners.end())
        return;
    const auto index = static_cast<std::size_t>(found - mEventListeners.begin());
    mEventListeners.erase(found);
    for (Walk* walk = mWalk.get(); walk != nullptr; walk = walk->outer.get())
        walk->hasLost(index);
}

const std::vector<CommandListener*>& TimerPrivate::getCommandListenerList() const
{
    return mCommandListeners;
}

const std::vector<TimerEvent*>& TimerPrivate::getTimerEventListenerList() const
{
    return mEventListeners;
}

} // namespace DisplayAPI
