#pragma once

#include "toolkit/PegThing.h"

#include <string_view>

namespace simulator {

/// Whether it belongs to what a displayable shows, which tells of its texts itself.
constexpr bool isDisplayables(std::uint8_t widget)
{
    return widget != TYPE_SYSTEM_WINDOW && widget != TYPE_STATUS_MESSAGE && widget != TYPE_TICKER;
}

/// What the thing that has painted a text is called where people read it.
constexpr std::string_view widgetName(std::uint8_t widget)
{
    switch (widget) {
    case TYPE_LIST_WITH_TITLE:
    case TYPE_LIST_WP1: return "list";
    case TYPE_SYSTEM_WINDOW: return "systemWindow";
    case TYPE_STATUS_MESSAGE: return "statusMessage";
    case TYPE_TICKER: return "ticker";
    case TYPE_WINDOW: return "window";
    default: return "other";
    }
}

} // namespace simulator
