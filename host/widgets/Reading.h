#pragma once

#include "host/lcd/Painter.h"

namespace host {

/// Whether the current application's language is read from right to left.
bool isReadFromTheRight();

/// Where texts begin, and where they end.
Align startAlign();
Align endAlign();

} // namespace host
