#pragma once

#include "DisplayAPI/Export.h"

#include <vector>

namespace DisplayAPI {

class Command;
class CommandListener;
class TimerEvent;

/// The GUI-thread side of a timer. GUI thread only. Listeners and commands are not owned.
class DISPLAYAPI_EXPORT TimerPrivateIfc {
public:
    virtual ~TimerPrivateIfc() = default;

    /// Runs out after `ms` milliseconds; 0 tells the listeners at once; less is ignored.
    virtual void start(int ms) = 0;
    virtual void stop() = 0;

    /// Whether it stops when it has run out.
    virtual void enableSingleShot(bool on) = 0;

    /// Takes the place of an earlier one; null is reported as null.
    virtual void addCommand(Command* command) = 0;

    /// Null is ignored. What has been added twice is told twice; each removal takes the first of them.
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
    virtual void addEventListener(TimerEvent* listener) = 0;
    virtual void removeEventListener(TimerEvent* listener) = 0;

    /// In the order in which they were added; valid until the next change.
    virtual const std::vector<CommandListener*>& getCommandListenerList() const = 0;
    virtual const std::vector<TimerEvent*>& getTimerEventListenerList() const = 0;
};

} // namespace DisplayAPI
