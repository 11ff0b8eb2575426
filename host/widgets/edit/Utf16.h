#pragma once

#include "toolkit/PString.h"

#include <string>
#include <string_view>
#include <vector>

namespace host {

inline std::u16string toUtf16(const PegString& text)
{
    return {text.data(), text.data() + text.length()};
}

inline PegString toPegString(std::u16string_view text)
{
    const std::vector<PegChar> characters(text.begin(), text.end());
    return PegString(characters.data(), characters.size());
}

} // namespace host
