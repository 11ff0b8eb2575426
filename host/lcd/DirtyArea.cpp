#include "host/lcd/DirtyArea.h"

#include "host/lcd/Geometry.h"

#include <utility>

namespace host {

namespace {

int pixels(const PegRect& area)
{
    return widthOf(area) * heightOf(area);
}

/// Rectangles that overlap become one, so that no pixel is painted twice; so do those that fill their bounds.
bool belongTogether(const PegRect& one, const PegRect& other)
{
    return overlap(one, other) || pixels(boundsOf(one, other)) == pixels(one) + pixels(other);
}

} // namespace

void DirtyArea::add(PegRect area)
{
    if (host::isEmpty(area))
        return;
    for (std::size_t i = 0; i < mRects.size();) {
        if (mRects.size() < MAX_RECTS && !belongTogether(mRects[i], area)) {
            ++i;
            continue;
        }
        area = boundsOf(area, mRects[i]);
        mRects.erase(mRects.begin() + static_cast<std::ptrdiff_t>(i));
        i = 0;
    }
    mRects.push_back(area);
}

std::vector<PegRect> DirtyArea::take()
{
    return std::exchange(mRects, {});
}

} // namespace host
