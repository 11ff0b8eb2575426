#pragma once

#include "DisplayAPI/ForwardedCallType.h"
#include "DisplayAPI/PopupCall.h"
#include "DisplayAPI/PopupConfirm.h"
#include "DisplayAPI/PopupNotification.h"
#include "DisplayAPI/PopupProgress.h"
#include "host/lcd/Icons.h"

#include <array>
#include <cstddef>

namespace DisplayAPI {

/// By a value that may be any; null where it has no icon.
template <std::size_t SIZE>
const host::Icon* iconAt(const std::array<const host::Icon*, SIZE>& icons, int value)
{
    return value >= 0 && value < static_cast<int>(SIZE) ? icons[static_cast<std::size_t>(value)] : nullptr;
}

inline const host::Icon* iconOf(PopupConfirm::PopupState state)
{
    using namespace host::icons;
    return iconAt(std::to_array<const host::Icon*>({nullptr, &QUESTION, &WARNING, &FAILURE}), state);
}

inline const host::Icon* iconOf(PopupNotification::InfoType type)
{
    using namespace host::icons;
    return iconAt(std::to_array<const host::Icon*>({nullptr, &INFORMATION, &WARNING, &FAILURE, &CHECK}), type);
}

/// The same news, of work that is under way.
inline const host::Icon* iconOf(PopupProgress::InfoType type)
{
    return iconOf(static_cast<PopupNotification::InfoType>(type));
}

inline const host::Icon* iconOf(PopupNotification::IconElemType icon)
{
    using namespace host::icons;
    return iconAt(
        std::to_array<const host::Icon*>({nullptr, &HANDSET, &MISSED_CALL, &FORWARDED, &LETTER, &PERSON, &PADLOCK}),
        icon);
}

inline const host::Icon* iconOf(PopupCall::CallState state)
{
    using namespace host::icons;
    return iconAt(std::to_array<const host::Icon*>({nullptr, &CALL_IN, &CALL_OUT, &CALL_OUT, &HANDSET, &HOLD, &FORWARD,
                                                    &FORWARDED, &NO_ENTRY, &FAILURE}),
                  state);
}

inline const host::Icon* iconOf(PopupCall::CallPriority priority)
{
    using namespace host::icons;
    return iconAt(std::to_array<const host::Icon*>({nullptr, &URGENT, &WARNING}), priority);
}

inline const host::Icon* iconOf(ForwardedCallType type)
{
    using namespace host::icons;
    return iconAt(std::to_array<const host::Icon*>({nullptr, &FORWARDED, &NO_ENTRY, &BELL_OFF, &SERVER_FORWARDED}),
                  type);
}

} // namespace DisplayAPI
