#pragma once

#include "DisplayAPI/Export.h"

namespace DisplayAPI {

/// The GUI-thread side of an item. GUI thread only.
class DISPLAYAPI_EXPORT ItemPrivateIfc {
public:
    virtual ~ItemPrivateIfc() = default;
};

} // namespace DisplayAPI
