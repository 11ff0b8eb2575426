#pragma once

#include "DisplayAPI/Export.h"

namespace DisplayAPI {

/// Which side deletes a toolkit widget. GUI thread only.
class DISPLAYAPI_EXPORT OwnershipIfc {
public:
    virtual ~OwnershipIfc() = default;

    /// Somebody else deletes the widget from now on.
    virtual void releaseOwnership() = 0;

    /// This side deletes it again. Returns true.
    virtual bool gainOwnership() = 0;
    virtual bool hasOwnership() const = 0;
};

} // namespace DisplayAPI
