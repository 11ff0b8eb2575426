#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a call-back's row, which stays as it has been made. GUI thread only.
class DISPLAYAPI_EXPORT CallBackMainItemPrivateIfc : public ListItemPrivateIfc {};

} // namespace DisplayAPI
