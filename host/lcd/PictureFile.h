#pragma once

#include "host/lcd/Lcd.h"

#include <string>

namespace host {

/// More than a telephone ever shows: what is larger is not read.
constexpr int MOST_PICTURE_PIXELS = 4 * 1024 * 1024;
constexpr int MOST_PICTURE_BYTES = 16 * 1024 * 1024;

/// The picture of a PNG file as the panel can show it: of four grey levels, dithered, scaled down to fit the size,
/// never up, and bare where it is transparent. Empty where the file has none that can be read, which a line in the log
/// says; an empty path means none and says nothing. It is read anew each time: whoever shows it keeps it.
Picture readPicture(const std::string& path, int width, int height);

} // namespace host
