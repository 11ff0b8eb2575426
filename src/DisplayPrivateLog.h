#pragma once

#include "Log.h"

namespace DisplayAPI {

/// What a display's private side logs, whichever of its files the code stands in.
constexpr Log gDisplayLog{"DisplayAPI::DisplayPrivate", "./src/DisplayPrivate"};

} // namespace DisplayAPI
