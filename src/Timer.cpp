#include "DisplayAPI/Timer.h"

#include "Request.h"
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

Timer::Timer(int interval)
{
    name = "Timer";
    if (isGuiThread())
        create(interval);
    else
        postEventAsync(request(this, CREATE, interval));
}

Timer::Timer(TimerPrivateIfc* implementation) : mImplementation(implementation)
{
    name = "Timer";
}

Timer::~Timer()
{
    if (isGuiThread())
        cleanUp();
    else if (!dropQueuedRequests())
        postEvent(CLEAN_UP);
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
    switch (request.getType()) {
    case CREATE: create(request.intParam1); break;
    case CLEAN_UP: cleanUp(); break;
    default:
        if (mImplementation != nullptr)
            processImplementationRequest(request);
        break;
    }
    request.signalComplete();
}

void Timer::processImplementationRequest(GuiRequestEvent& request)
{
    TimerPrivateIfc& timer = *mImplementation;
    switch (request.getType()) {
    case START: timer.start(request.intParam1); break;
    case STOP: timer.stop(); break;
    case ENABLE_SINGLE_SHOT: timer.enableSingleShot(request.boolParam1); break;
    case ADD_COMMAND_LISTENER: timer.addCommandListener(pointer<CommandListener>(request.ptrParam1)); break;
    case REMOVE_COMMAND_LISTENER: timer.removeCommandListener(pointer<CommandListener>(request.ptrParam1)); break;
    case ADD_EVENT_LISTENER: timer.addEventListener(pointer<TimerEvent>(request.ptrParam1)); break;
    case REMOVE_EVENT_LISTENER: timer.removeEventListener(pointer<TimerEvent>(request.ptrParam1)); break;
    case ADD_COMMAND: timer.addCommand(pointer<Command>(request.ptrParam1)); break;
    default: break;
    }
}

/// At once on the GUI thread, where a listener may delete the timer meanwhile; posted elsewhere.
void Timer::carryOut(GuiRequestEvent* request)
{
    if (!isGuiThread())
        return postEventAsync(request);
    const std::unique_ptr<GuiRequestEvent> done(request);
    processGuiRequest(*request);
}

void Timer::start(int ms)
{
    carryOut(request(this, START, ms));
}

void Timer::stop()
{
    carryOut(request(this, STOP));
}

void Timer::enableSingleShot(bool on)
{
    carryOut(request(this, ENABLE_SINGLE_SHOT, on));
}

void Timer::addCommand(Command* command)
{
    carryOut(request(this, ADD_COMMAND, command));
}

void Timer::addCommandListener(CommandListener* listener)
{
    carryOut(request(this, ADD_COMMAND_LISTENER, listener));
}

void Timer::removeCommandListener(CommandListener* listener)
{
    carryOut(request(this, REMOVE_COMMAND_LISTENER, listener));
}

void Timer::addEventListener(TimerEvent* listener)
{
    carryOut(request(this, ADD_EVENT_LISTENER, listener));
}

void Timer::removeEventListener(TimerEvent* listener)
{
    carryOut(request(this, REMOVE_EVENT_LISTENER, listener));
}

TimerPrivateIfc* Timer::getPrivateImpl() const
{
    return mImplementation;
}

} // namespace DisplayAPI
