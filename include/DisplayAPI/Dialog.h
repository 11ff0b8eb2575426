#pragma once

#include "DisplayAPI/Displayable.h"

namespace DisplayAPI {

/// Base of the popups: a displayable with nothing of its own.
class DISPLAYAPI_EXPORT Dialog : public Displayable {};

} // namespace DisplayAPI
