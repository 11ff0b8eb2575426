#pragma once

#include "DisplayAPI/Export.h"

namespace DisplayAPI {

/// The GUI-thread side of a lamp. GUI thread only.
class DISPLAYAPI_EXPORT LampPrivateIfc {
public:
    virtual ~LampPrivateIfc() = default;

    virtual void blink(int milliseconds) = 0;
    virtual bool isLit() = 0;
};

} // namespace DisplayAPI
