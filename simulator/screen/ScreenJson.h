#pragma once

#include "host/lcd/Lcd.h"

#include <string>
#include <string_view>

namespace simulator {

/// What stands on the panel as JSON: the panel, the rectangle of the focus, and each text in full with its rectangle,
/// top to bottom and left to right. Text that is no UTF-8 gets U+FFFD where it is not.
std::string screenJson(const host::Picture& picture, std::string_view variant);

} // namespace simulator
