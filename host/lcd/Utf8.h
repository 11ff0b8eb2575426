#pragma once

#include <string>
#include <string_view>

namespace host {

/// A unit of a text as it is drawn: controls are spaces, and what is no character is U+FFFD.
char16_t drawn(char16_t unit);

/// Of units that are drawn.
std::string toUtf8(std::u16string_view text);

} // namespace host
