#pragma once

#include "host/lcd/Lcd.h"
#include "simulator/screen/Json.h"

#include <string>
#include <string_view>

namespace simulator {

/// The version of the form, which docs/screen-formats.md tells.
inline constexpr int SCREEN_FORM_VERSION = 1;

/// What stands on the panel: the panel, the rectangle of the focus, the rows as one reads them, and each text in full
/// with its rectangle, top to bottom and left to right.
Json screenForm(const host::Picture& picture, std::string_view variant);

/// The panel alone: its variant and its size.
Json panelJson(const host::Picture& picture, std::string_view variant);

/// The form as a file. Text that is no UTF-8 gets U+FFFD where it is not.
std::string screenJson(const host::Picture& picture, std::string_view variant);

} // namespace simulator
