#pragma once

#include "DisplayAPI/Export.h"

namespace DisplayAPI {

class Command;
class Displayable;

/// Implemented by the application to learn which command the user has chosen.
class DISPLAYAPI_EXPORT CommandListener {
public:
    /// Recalls every queued notification for this listener. One that is being delivered meanwhile is not waited for:
    /// delete a listener when nothing is on its way, or from its own notification.
    virtual ~CommandListener();

    /// The user has chosen `command` on `displayable` (null where there is none). Called on a pool thread, one
    /// notification of the process at a time, in the order in which they were raised; it may call any facade. It must
    /// not throw.
    virtual void commandAction(Command* command, Displayable* displayable) = 0;

    /// Queues a notification and returns at once. From any thread. The same command twice is notified twice. Neither is
    /// owned, and both may be null: one that dies before the delivery recalls it.
    virtual void postCommandAction(Command* command, Displayable* displayable);

    /// Recalls this listener's queued notifications of the command and displayable; null matches any. From any thread;
    /// does not wait for one that is being delivered.
    void retrievePendingCommandAction(Command* command, Displayable* displayable);
};

} // namespace DisplayAPI
