#pragma once

#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/DetailsIcon.h"

namespace DisplayAPI {

/// By what a GUI-thread side answers; no icon where there is none, or the answer is unknown.
template <typename Side>
CallLogMainItem::IconType iconTypeOf(const Side* side)
{
    switch (side != nullptr ? side->iconType() : -1) {
    case DETAILS_DIALLED: return CallLogMainItem::ICON_DIALLED;
    case DETAILS_MISSED: return CallLogMainItem::ICON_MISSED;
    case DETAILS_RECEIVED: return CallLogMainItem::ICON_RECEIVED;
    case DETAILS_FORWARDED: return CallLogMainItem::ICON_FORWARDED;
    default: return CallLogMainItem::NO_ICON;
    }
}

} // namespace DisplayAPI
