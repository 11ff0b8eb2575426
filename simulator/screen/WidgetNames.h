#pragma once

#include "toolkit/PegThing.h"

#include <string_view>

namespace simulator {

constexpr bool isList(std::uint8_t widget)
{
    return widget == TYPE_LIST_WITH_TITLE || widget == TYPE_LIST_WP1;
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
