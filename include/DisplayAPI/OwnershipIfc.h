#pragma once

#include "DisplayAPI/Export.h"

namespace DisplayAPI {

/// Which side deletes a toolkit widget. GUI thread only.
class DISPLAYAPI_EXPORT OwnershipIfc {
public:
    virtual ~OwnershipIfc() = default;
    virtual void releaseOwnership() = 0;

    /// Returns true.
    virtual bool gainOwnership() = 0;
    virtual bool hasOwnership() const = 0;
};

} // namespace DisplayAPI
