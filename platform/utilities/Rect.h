#pragma once

#include <vector>

namespace DisplayAPIUtils {

/// A rectangle by position and size; `right()` and `bottom()` are the last column and row that belong to it.
class Rect {
public:
    Rect() = default;
    Rect(int x, int y, int width, int height);

    int left() const { return mX; }
    int top() const { return mY; }
    int right() const { return mX + mWidth - 1; }
    int bottom() const { return mY + mHeight - 1; }
    int width() const { return mWidth; }
    int height() const { return mHeight; }

    /// Whether the two share a pixel. An empty rectangle overlaps nothing.
    bool Overlap(const Rect& other) const;

    /// Cuts this rectangle to what it shares with `other`: width and height 0 where they share nothing.
    Rect& operator&=(const Rect& other);

    /// The parts of this rectangle that none of `covers` covers, without overlaps. Around each cover the pieces come in
    /// the order top, bottom, left, right.
    std::vector<Rect> subtract(const std::vector<Rect>& covers) const;

    friend bool operator==(const Rect&, const Rect&) = default;

private:
    int mX = 0;
    int mY = 0;
    int mWidth = 0;
    int mHeight = 0;
};

} // namespace DisplayAPIUtils
