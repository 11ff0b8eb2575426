#pragma once

#include <iosfwd>
#include <string>

namespace DisplayAPI {

class ImagePrivate;

/// Where pictures would be made. This telephone shows none: every form returns null.
namespace imageprivatefactory {

ImagePrivate* createPI(const std::string& location);
ImagePrivate* createPI(const char* data, int length, int format);
ImagePrivate* createPI(ImagePrivate* other);
ImagePrivate* createPI(std::istream& stream);
ImagePrivate* createPI(unsigned int width, unsigned int height);

} // namespace imageprivatefactory

} // namespace DisplayAPI
