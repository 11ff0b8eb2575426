#pragma once

#include "host/lcd/Lcd.h"

#include <optional>
#include <string>

namespace host {

/// Writes the pixels as a PNG file, each of them `scale` pixels wide and high. Returns an error for the user; empty
/// when all is well.
std::string writePng(const Picture& picture, const std::string& path, int scale = 1);

/// The same as bytes; empty where there is no memory for it.
std::string pngOf(const Picture& picture, int scale = 1);

/// What writePng() wrote with scale 1; nothing where the file is not there or no such picture.
std::optional<Picture> readPng(const std::string& path);

} // namespace host
