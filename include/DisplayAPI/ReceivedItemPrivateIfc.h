#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a received call's details: a row that stays as it has been made. GUI thread only.
class DISPLAYAPI_EXPORT ReceivedItemPrivateIfc : public ListItemPrivateIfc {};

} // namespace DisplayAPI
