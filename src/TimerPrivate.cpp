#include "TimerPrivate.h"

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/TimerEvent.h"
#include "toolkit/PegMessage.h"

#include <algorithm>

namespace DisplayAPI {

/// An expiry on its way along listeners. They may change their list, let the timer expire again or delete it: whoever
/// was removed is not told, and whoever was added is told the next time.
struct TimerPrivate::Walk {
    const void* listeners;
    std::size_t next;
    std::size_t end;
    std::shared_ptr<Walk> outer;
    bool timerIsGone = false;

    void hasLost(std::size_t index)
    {
        next -= index < next ? 1 : 0;
        end -= index < end ? 1 : 0;
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
    if (tellEach(mCommandListeners,
                 [this](CommandListener& listener) { listener.postCommandAction(mCommand, nullptr); }))
        tellEach(mEventListeners, [](TimerEvent& listener) { listener.timerExpired(); });
}

/// Returns whether the timer is still there.
template <typename Listener, typename Tell>
bool TimerPrivate::tellEach(const std::vector<Listener*>& listeners, Tell tell)
{
    const auto walk = std::make_shared<Walk>(Walk{&listeners, 0, listeners.size(), mWalk});
    mWalk = walk;
    while (walk->next < walk->end)
        tell(*listeners[walk->next++]);
    if (walk->timerIsGone)
        return false;
    mWalk = walk->outer;
    return true;
}

/// Takes the first of them, on every walk along the list as well.
template <typename Listener>
void TimerPrivate::removeFirst(std::vector<Listener*>& listeners, const Listener* listener)
{
    const auto found = std::find(listeners.begin(), listeners.end(), listener);
    if (found == listeners.end())
        return;
    const auto index = static_cast<std::size_t>(found - listeners.begin());
    listeners.erase(found);
    for (Walk* walk = mWalk.get(); walk != nullptr; walk = walk->outer.get()) {
        if (walk->listeners == &listeners)
            walk->hasLost(index);
    }
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
    removeFirst(mCommandListeners, listener);
}

void TimerPrivate::addEventListener(TimerEvent* listener)
{
    if (listener != nullptr)
        mEventListeners.push_back(listener);
}

void TimerPrivate::removeEventListener(TimerEvent* listener)
{
    removeFirst(mEventListeners, listener);
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
