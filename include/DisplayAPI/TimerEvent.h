#pragma once

#include "DisplayAPI/Export.h"

namespace DisplayAPI {

/// Implemented by the application to learn on the GUI thread that a timer has run out.
class DISPLAYAPI_EXPORT TimerEvent {
public:
    virtual ~TimerEvent() = default;

    /// Called on the GUI thread, which waits meanwhile. It may call any facade, remove and add listeners of the timer,
    /// start and stop it, and delete it while no other thread calls it. It must not throw.
    virtual void timerExpired() = 0;
};

} // namespace DisplayAPI
