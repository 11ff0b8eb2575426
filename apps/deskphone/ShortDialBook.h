#pragma once

#include "DisplayAPI/AbbreviatedItem.h"

#include <array>
#include <string>

namespace deskphone {

/// Somebody who is called with one key: by a number, or chosen by what kind of telephone it is.
struct ShortDial {
    int number; ///< 0: none
    DisplayAPI::AbbreviatedItem::IconType icon;
    std::string name;
    std::string telephone;
};

extern const std::array<ShortDial, 8> SHORT_DIALS;

/// The one who has the number; null where nobody has it.
const ShortDial* shortDialOf(const std::string& number);

} // namespace deskphone
