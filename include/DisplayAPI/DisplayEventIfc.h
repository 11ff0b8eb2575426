#pragma once

#include "DisplayAPI/Export.h"

#include <string>

namespace DisplayAPI {

/// Implemented by the application that wants to know when what is shown changes.
class DISPLAYAPI_EXPORT DisplayEventIfc {
public:
    virtual ~DisplayEventIfc() = default;

    /// Something on screen has changed. Called on the GUI thread with an empty string, under the lock that subscribing
    /// and unsubscribing take: it may call the display, but it must not wait for a thread that unsubscribes.
    /// It may delete the screen that has changed, whose rows go with it, unless a thread waits in a call of that.
    virtual void displayChanged(std::string text) = 0;
};

} // namespace DisplayAPI
