#pragma once

#include "toolkit/PegMessage.h"

#include <string>

/// What a system window reports to the one who made it. Called on the GUI thread.
class GUIEventIfc {
public:
    virtual ~GUIEventIfc() = default;

    /// The window's caption has become `text` (UTF-8).
    virtual void OnChange(PegMessage message, std::string text) = 0;
    virtual void OnLeft(PegMessage message) = 0;
    virtual void OnRight(PegMessage message) = 0;
    virtual void OnUp(PegMessage message) = 0;
    virtual void OnDown(PegMessage message) = 0;
    virtual void OnOK(PegMessage message) = 0;
};
