#pragma once

#include "toolkit/PegRect.h"
#include "utilities/Rect.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

/// The toolkit's rectangles, which name the last row and column that belong to them, and the display's, which have a
/// width and a height. Plain functions, for any thread.
namespace DisplayAPI {

inline DisplayAPIUtils::Rect toRect(const PegRect& area)
{
    return {area.left, area.top, area.right - area.left + 1, area.bottom - area.top + 1};
}

/// What lies beyond the toolkit's coordinates is cut off.
inline PegRect toPegRect(const DisplayAPIUtils::Rect& rect)
{
    using Coordinate = std::numeric_limits<std::int16_t>;
    const auto cut = [](int value) {
        return static_cast<std::int16_t>(std::clamp<int>(value, Coordinate::min(), Coordinate::max()));
    };
    return {cut(rect.left()), cut(rect.top()), cut(rect.right()), cut(rect.bottom())};
}

/// Whether all of `inner` lies in `outer`.
inline bool contains(const DisplayAPIUtils::Rect& outer, const DisplayAPIUtils::Rect& inner)
{
    return outer.left() <= inner.left() && outer.top() <= inner.top() && inner.right() <= outer.right() &&
           inner.bottom() <= outer.bottom();
}

/// Whether `area` shares a pixel with one of `visible`.
inline bool isVisible(const PegRect& area, const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return std::ranges::any_of(visible, [whole = toRect(area)](const auto& part) { return part.Overlap(whole); });
}

} // namespace DisplayAPI
