#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a call log's row. GUI thread only.
class DISPLAYAPI_EXPORT CallLogMainItemPrivateIfc : public ListItemPrivateIfc {
public:
    virtual void setbold(bool on) = 0;
};

} // namespace DisplayAPI
