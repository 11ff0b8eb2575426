#pragma once

#include "DisplayAPI/Widget.h"

namespace DisplayAPI {

class Command;
class CommandListener;
class TimerEvent;
class TimerPrivateIfc;

/// Tells its listeners when time has passed: command listeners on a pool thread, event listeners on the GUI thread.
/// Repeats until it is stopped, unless single shot is on. Times are milliseconds.
///
/// Threads: safe from any thread. Off the GUI thread the destructor waits; everything else posts and returns at once.
/// Ownership: a timer owns its GUI-thread side. Listeners and the command are not owned: remove them, or delete the
/// timer, before they go. A removal that was posted takes effect a little later; the destructor waits for that, too.
class DISPLAYAPI_EXPORT Timer : public Widget {
public:
    /// Does not start it: `interval` is what it would go on with, values below 1 leave it without one.
    explicit Timer(int interval);

    /// Adopts a GUI-thread side; null leaves the timer without one. Posts nothing.
    explicit Timer(TimerPrivateIfc* implementation);

    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    /// Drops the calls that are still queued, and recalls the command that it has from the listeners that it has, where
    /// it has not been delivered yet.
    ~Timer() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// Runs out after `ms` milliseconds, and every `ms` again; a running one starts anew. 0 tells the listeners once,
    /// as soon as the call is carried out, and leaves the rest as it is. Values below 0 are ignored.
    void start(int ms);
    void stop();

    /// Whether it stops when it has run out.
    void enableSingleShot(bool on);

    /// The command that command listeners are told; it takes the place of an earlier one. They are told null while
    /// there is none.
    void addCommand(Command* command);

    /// Null is ignored. A listener that has been added twice is told twice; each removal takes the first of them.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);
    void addEventListener(TimerEvent* listener);
    void removeEventListener(TimerEvent* listener);

    /// The GUI-thread side; null until it has been made. GUI thread only.
    TimerPrivateIfc* getPrivateImpl() const;

private:
    struct Ops;

    void create(int interval);
    void cleanUp();
    bool dropQueuedRequests();

    TimerPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
