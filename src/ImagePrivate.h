#pragma once

class PegBitmap;

namespace DisplayAPI {

/// The GUI-thread side of a picture. This telephone shows none: it keeps nothing of what it is given.
class ImagePrivate {
public:
    ImagePrivate() = default;
    ImagePrivate(const ImagePrivate&) = default;
    explicit ImagePrivate(PegBitmap* bitmap);
    virtual ~ImagePrivate();

    PegBitmap* pixmap() const;
    bool valid() const;
    int width() const;
    int height() const;
    bool isMutable() const;
};

} // namespace DisplayAPI
