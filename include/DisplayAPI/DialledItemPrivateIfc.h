#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a dialled call's details: a row that stays as it has been made. GUI thread only.
class DISPLAYAPI_EXPORT DialledItemPrivateIfc : public ListItemPrivateIfc {
public:
    /// A DetailsIcon, or any other value. Always the same, so that any thread may ask.
    virtual int iconType() const = 0;
};

} // namespace DisplayAPI
