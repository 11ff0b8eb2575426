#pragma once

#include "DisplayAPI/CallBackMainItem.h"
#include "DisplayAPI/CallLogMainItem.h"
#include "host/variants/popup/PopupIcons.h"

namespace DisplayAPI {

/// Of what is logged, and of a forwarding.
inline const host::Icon* iconOf(CallLogMainItem::IconType icon)
{
    using namespace host::icons;
    return iconAt(std::array<const host::Icon*, 8>{nullptr, &DIALLED, &MISSED_CALL, &RECEIVED, &FORWARDED, &FORWARDED,
                                                   &NO_ENTRY, &BELL_OFF},
                  icon);
}

inline const host::Icon* iconOf(CallBackMainItem::CallBackType type)
{
    using namespace host::icons;
    return iconAt(std::array<const host::Icon*, 2>{&NO_ENTRY, &BELL_OFF}, type);
}

inline const host::Icon* iconOf(CallBackMainItem::CallBackState state)
{
    using namespace host::icons;
    return iconAt(std::array<const host::Icon*, 3>{&QUESTION, &HOLD, &CHECK}, state);
}

} // namespace DisplayAPI
