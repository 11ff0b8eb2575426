#pragma once

#include "DisplayAPI/CallConnectedItem.h"
#include "host/variants/popup/PopupIcons.h"

namespace DisplayAPI {

inline const host::Icon* iconOf(CallConnectedItem::CallStateIcon state)
{
    using namespace host::icons;
    return iconAt(std::array<const host::Icon*, 16>{nullptr, &CALL_OUT, &PROCEEDING, &BELL, &CALL_IN, &HANDSET, &HOLD,
                                                    &HELD_BY_OTHER, &HELD_BY_BOTH, &RESUME, &FORWARD, &CONSULTED,
                                                    &CONFERENCE, &FORWARDED, &HUNG_UP, &FAILURE},
                  state);
}

inline const host::Icon* iconOf(CallConnectedItem::CallSecurityState state)
{
    using namespace host::icons;
    return iconAt(std::array<const host::Icon*, 3>{nullptr, &PADLOCK, &PADLOCK_OPEN}, state);
}

} // namespace DisplayAPI
