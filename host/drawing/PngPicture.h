#pragma once

#include "host/lcd/Drawing.h"

namespace host {

/// As Drawing::decode(), Drawing::write() and Drawing::encode().
ColourPicture decodePng(const std::string& png, int mostWidth, int mostHeight);
std::string writePngFile(const ColourPicture& picture, const std::string& path);
std::string pngBytes(const ColourPicture& picture);

} // namespace host
