#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a player popup: a displayable, and nothing more. GUI thread only. Deleted by
/// Displayable::deletePrivateSide() alone.
class DISPLAYAPI_EXPORT PopupPlayerPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~PopupPlayerPrivateIfc() = default;
};

} // namespace DisplayAPI
