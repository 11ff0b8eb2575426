#pragma once

#include "toolkit/PegRect.h"

#include <algorithm>

namespace host {

constexpr PegRect rectAt(int left, int top, int width, int height)
{
    const auto narrow = [](int value) { return static_cast<std::int16_t>(std::clamp(value, -32768, 32767)); };
    return {narrow(left), narrow(top), narrow(left + width - 1), narrow(top + height - 1)};
}

constexpr int widthOf(const PegRect& area)
{
    return area.right - area.left + 1;
}

constexpr int heightOf(const PegRect& area)
{
    return area.bottom - area.top + 1;
}

constexpr bool isEmpty(const PegRect& area)
{
    return area.right < area.left || area.bottom < area.top;
}

/// Empty where the two share no pixel.
constexpr PegRect intersection(const PegRect& one, const PegRect& other)
{
    return {std::max(one.left, other.left), std::max(one.top, other.top), std::min(one.right, other.right),
            std::min(one.bottom, other.bottom)};
}

/// The smallest rectangle around both.
constexpr PegRect boundsOf(const PegRect& one, const PegRect& other)
{
    return {std::min(one.left, other.left), std::min(one.top, other.top), std::max(one.right, other.right),
            std::max(one.bottom, other.bottom)};
}

constexpr bool overlap(const PegRect& one, const PegRect& other)
{
    return !isEmpty(intersection(one, other));
}

constexpr bool contains(const PegRect& outer, const PegRect& inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

} // namespace host
