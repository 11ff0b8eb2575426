#pragma once

#include "host/lcd/Drawing.h"

namespace host {

/// How Pango reads the text.
TextReading readText(const std::u16string& text);

} // namespace host
