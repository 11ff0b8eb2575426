#pragma once

namespace DisplayAPI::kit {

/// On which panels a list has a way back: the left key, and on the 208 x 42 panel a row of its own as well.
enum class WayBack { NOWHERE = 0, SMALL_PANEL = 1, FULL_PANEL = 2, EVERYWHERE = 3 };

/// What List's constructor takes for it.
constexpr int listType(WayBack wayBack)
{
    return static_cast<int>(wayBack);
}

} // namespace DisplayAPI::kit
