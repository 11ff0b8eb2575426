#include "DisplayAPI/Timer.h"

#include "Operations.h"
#include "TimerPrivate.h"

#include <memory>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    CLEAN_UP = 1,
    START = 2,
    STOP = 3,
    ENABLE_SINGLE_SHOT = 4,
    ADD_COMMAND_LISTENER = 5,
    REMOVE_COMMAND_LISTENER = 6,
    ADD_EVENT_LISTENER = 7,
    REMOVE_EVENT_LISTENER = 8,
    ADD_COMMAND = 9
};

std::set<int>* const ANY_CODE = nullptr;

/// What comes after the creation.
std::set<int>* followers()
{
    static std::set<int> codes{START,
                               STOP,
                               ENABLE_SINGLE_SHOT,
                               ADD_COMMAND_LISTENER,
                               REMOVE_COMMAND_LISTENER,
                               ADD_EVENT_LISTENER,
                               REMOVE_EVENT_LISTENER,
                               ADD_COMMAND};
    return &codes;
}

} // namespace

struct Timer::Ops
    : Operations<Posts<CREATE, &Timer::create>, Waits<CLEAN_UP, &Timer::cleanUp>, Posts<START, &TimerPrivateIfc::start>,
                 Posts<STOP, &TimerPrivateIfc::stop>, Posts<ENABLE_SINGLE_SHOT, &TimerPrivateIfc::enableSingleShot>,
                 Posts<ADD_COMMAND_LISTENER, &TimerPrivateIfc::addCommandListener>,
                 Posts<REMOVE_COMMAND_LISTENER, &TimerPrivateIfc::removeCommandListener>,
                 Posts<ADD_EVENT_LISTENER, &TimerPrivateIfc::addEventListener>,
                 Posts<REMOVE_EVENT_LISTENER, &TimerPrivateIfc::removeEventListener>,
                 Posts<ADD_COMMAND, &TimerPrivateIfc::addCommand>> {};

Timer::Timer(int interval)
{
    name = "Timer";
    Ops::call<CREATE>(*this, mImplementation, interval);
}

Timer::Timer(TimerPrivateIfc* implementation) : mImplementation(implementation)
{
    name = "Timer";
}

Timer::~Timer()
{
    if (isGuiThread() || !dropQueuedRequests())
        Ops::call<CLEAN_UP>(*this, mImplementation);
}

void Timer::create(int interval)
{
    mImplementation = new TimerPrivate(interval);
}

void Timer::cleanUp()
{
    delete mImplementation;
    mImplementation = nullptr;
}

/// Returns whether the GUI-thread side was still to be made, and now never will be. The creation goes last: as long as
/// it is queued, the GUI thread has none of those behind it in hand.
bool Timer::dropQueuedRequests()
{
    purgeOwnMessage(followers());
    bool wasToBeMade = false;
    while (const std::unique_ptr<GuiRequestEvent> dropped{dequeueOwnMessage(ANY_CODE)}) {
        wasToBeMade = wasToBeMade || dropped->getType() == CREATE;
        dropped->signalComplete();
    }
    return wasToBeMade;
}

/// A listener may delete the timer, so nothing of it is used after its handler has run.
void Timer::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    request.signalComplete();
}

void Timer::start(int ms)
{
    Ops::call<START>(*this, mImplementation, ms);
}

void Timer::stop()
{
    Ops::call<STOP>(*this, mImplementation);
}

void Timer::enableSingleShot(bool on)
{
    Ops::call<ENABLE_SINGLE_SHOT>(*this, mImplementation, on);
}

void Timer::addCommand(Command* command)
{
    Ops::call<ADD_COMMAND>(*this, mImplementation, command);
}

void Timer::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void Timer::removeCommandListener(CommandListener* listener)
{
    Ops::call<REMOVE_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void Timer::addEventListener(TimerEvent* listener)
{
    Ops::call<ADD_EVENT_LISTENER>(*this, mImplementation, listener);
}

void Timer::removeEventListener(TimerEvent* listener)
{
    Ops::call<REMOVE_EVENT_LISTENER>(*this, mImplementation, listener);
}

TimerPrivateIfc* Timer::getPrivateImpl() const
{
    return mImplementation;
}

} // namespace DisplayAPI
