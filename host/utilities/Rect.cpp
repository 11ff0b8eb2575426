#include "utilities/Rect.h"

#include <algorithm>

namespace DisplayAPIUtils {

namespace {

bool isEmpty(const Rect& rect)
{
    return rect.width() <= 0 || rect.height() <= 0;
}

Rect fromEdges(int left, int top, int right, int bottom)
{
    return {left, top, right - left + 1, bottom - top + 1};
}

/// What is left of `whole` around `hole`, which lies inside it.
std::vector<Rect> piecesAround(const Rect& whole, const Rect& hole)
{
    std::vector<Rect> pieces{
        fromEdges(whole.left(), whole.top(), whole.right(), hole.top() - 1),
        fromEdges(whole.left(), hole.bottom() + 1, whole.right(), whole.bottom()),
        fromEdges(whole.left(), hole.top(), hole.left() - 1, hole.bottom()),
        fromEdges(hole.right() + 1, hole.top(), whole.right(), hole.bottom()),
    };
    std::erase_if(pieces, isEmpty);
    return pieces;
}

std::vector<Rect> withoutCover(const std::vector<Rect>& parts, const Rect& cover)
{
    std::vector<Rect> rest;
    for (const Rect& part : parts) {
        Rect hole = part;
        hole &= cover;
        const std::vector<Rect> pieces = isEmpty(hole) ? std::vector{part} : piecesAround(part, hole);
        rest.insert(rest.end(), pieces.begin(), pieces.end());
    }
    return rest;
}

} // namespace

Rect::Rect(int x, int y, int width, int height) : mX(x), mY(y), mWidth(width), mHeight(height) {}

bool Rect::Overlap(const Rect& other) const
{
    return !isEmpty(*this) && !isEmpty(other) && left() <= other.right() && other.left() <= right() &&
           top() <= other.bottom() && other.top() <= bottom();
}

Rect& Rect::operator&=(const Rect& other)
{
    if (!Overlap(other)) {
        mWidth = mHeight = 0;
        return *this;
    }
    *this = fromEdges(std::max(left(), other.left()), std::max(top(), other.top()), std::min(right(), other.right()),
                      std::min(bottom(), other.bottom()));
    return *this;
}

std::vector<Rect> Rect::subtract(const std::vector<Rect>& covers) const
{
    std::vector<Rect> rest;
    if (!isEmpty(*this))
        rest.push_back(*this);
    for (const Rect& cover : covers)
        rest = withoutCover(rest, cover);
    return rest;
}

} // namespace DisplayAPIUtils
