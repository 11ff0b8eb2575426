#pragma once

#include <cstdint>

class PegThing;

/// The message types that the library and the widgets under it agree on.
enum PegMessageType : std::uint16_t {
    PM_EXIT = 21,                    ///< to the presentation manager: leave the Execute loop
    PM_TIMER = 31,                   ///< a timer ran out; `iData` is its id
    PM_KEY = 40,                     ///< a key went down; `iData` is its PegKey
    PM_KEYRELEASE = 41,              ///< a key went up; `iData` is its PegKey
    PM_DISPLAY_REQUEST = 0x4000,     ///< `pData` is a display-level request record; `iData` as below
    PM_WIDGET_REQUEST = 0x4001,      ///< `pData` is a widget-level request record; `iData` its RequestObserver's number
    PM_CURRENT_CHANGED = 0x4008,     ///< a list's current row changed; `iData` is the row
    PM_CLICKED = 0x400A,             ///< a row was chosen; `iData` is the row
    PM_LEFT = 0x400B,                ///< left was pressed on a list
    PM_RIGHT = 0x400C,               ///< right was pressed on a list; `iData` is the row
    PM_ROW_CHANGED = 0x400D,         ///< a list shows other rows; `iData` is the one that looks different, or -1
    PM_APPLICATION_CHANGED = 0x401A, ///< locale or formats changed; `pData` is the locale, a `const PegString*`
    PM_FOCUS_CHANGED = 0x401E        ///< the focus moved to or from the target
};

/// The keys of the telephone. Digits, star and hash carry their ASCII character.
enum PegKey : std::int32_t {
    PK_STAR = '*',
    PK_HASH = '#',
    PK_0 = '0',
    PK_9 = '9',
    PK_UP = 0x100,
    PK_DOWN,
    PK_LEFT,
    PK_RIGHT,
    PK_OK,
    PK_VOLUME_UP,
    PK_VOLUME_DOWN,
    PK_HOOK,
    PK_FPK1 = 0x200, ///< the first programmable key; the others follow
    PK_FPK_LAST = PK_FPK1 + 15
};

/// Whether it is a digit, star or hash.
constexpr bool isOfKeypad(int key)
{
    return (key >= PK_0 && key <= PK_9) || key == PK_STAR || key == PK_HASH;
}

/// One message of the toolkit. A record is in exactly one place: the free pool, the main queue, or a dispatcher's
/// hands.
struct PegMessage {
    std::uint16_t wType = 0;
    std::int32_t iData = 0;
    PegThing* pTarget = nullptr; ///< null: the thing that has the focus
    PegThing* pSource = nullptr;
    PegMessage* Next = nullptr;
    void* pData = nullptr;
};
