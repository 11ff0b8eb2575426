#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a phonebook entry's row, which stays as it has been made. GUI thread only.
class DISPLAYAPI_EXPORT PhonebookItemPrivateIfc : public ListItemPrivateIfc {};

} // namespace DisplayAPI
