#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a short dial entry's row, which stays as it has been made. GUI thread only.
class DISPLAYAPI_EXPORT AbbreviatedItemPrivateIfc : public ListItemPrivateIfc {};

} // namespace DisplayAPI
