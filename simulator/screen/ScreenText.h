#pragma once

#include "host/lcd/Lcd.h"

#include <string>
#include <vector>

namespace simulator {

/// The screen as text in ASCII: what the library says of the displayables, then an object of the same grammar for the
/// running texts that they show and it does not tell of, the system window, the status message and each ticker. In
/// place of `string0:` and the like, `volatile:` stands before a text that changes by itself as time passes.
std::string screenText(const std::string& displayables, const std::vector<host::TextRun>& texts);

} // namespace simulator
