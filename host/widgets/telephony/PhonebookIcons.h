#pragma once

#include "host/lcd/Icons.h"

#include <array>
#include <cstddef>

namespace host {

/// What kind of number an entry of a phonebook or of the short dial list is, by a type that may be any number; null
/// where it has no icon.
inline const Icon* phonebookIcon(int type)
{
    using namespace icons;
    static constexpr std::array ICONS{
        static_cast<const Icon*>(nullptr), &HANDSET, &HOUSE, &MOBILE, &LETTER, &PERSON, &PICTURE};
    const auto place = static_cast<std::size_t>(type);
    return place < ICONS.size() ? ICONS[place] : nullptr;
}

} // namespace host
