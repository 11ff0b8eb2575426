#include "ImagePrivate.h"

namespace DisplayAPI {

ImagePrivate::ImagePrivate(PegBitmap*) {}

ImagePrivate::~ImagePrivate() = default;

PegBitmap* ImagePrivate::pixmap() const
{
    return nullptr;
}

bool ImagePrivate::valid() const
{
    return false;
}

int ImagePrivate::width() const
{
    return 0;
}

int ImagePrivate::height() const
{
    return 0;
}

bool ImagePrivate::isMutable() const
{
    return false;
}

} // namespace DisplayAPI
