#pragma once

#include <array>
#include <string_view>

namespace deskphone {

/// The names of one script.
struct Names {
    std::array<std::string_view, 10> given;
    std::array<std::string_view, 25> family;
    std::array<std::string_view, 5> kinds; ///< of numbers: home, work, mobile, fax, holiday
    std::string_view between;              ///< what stands between the two names
    bool familyFirst;
};

extern const std::array<Names, 8> PHONE_BOOK_NAMES;

} // namespace deskphone
