#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace DisplayAPI {

/// How long something has taken, as every screen says it: "42:07", from one hour on "1:42:07". Below zero is zero.
/// Complete here, as an application wants the same; a plain function, for any thread.
inline std::string durationText(std::int64_t seconds)
{
    const auto all = static_cast<long long>(seconds > 0 ? seconds : 0);
    const long long hours = all / 3600, minutes = all / 60 % 60, rest = all % 60;
    char text[40];
    if (hours == 0)
        std::snprintf(text, sizeof text, "%02lld:%02lld", minutes, rest);
    else
        std::snprintf(text, sizeof text, "%lld:%02lld:%02lld", hours, minutes, rest);
    return text;
}

} // namespace DisplayAPI
