#include "host/widgets/status/TimeText.h"

#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <cstdio>

namespace host {

namespace {

std::string formatted(const char* format, std::int64_t first, std::int64_t second, std::int64_t third = 0)
{
    char text[64];
    std::snprintf(text, sizeof text, format, static_cast<long>(first), static_cast<long>(second),
                  static_cast<long>(third));
    return text;
}

/// A number of the text: digits up to a colon or the end.
std::optional<std::int64_t> takeNumber(std::string& text, std::size_t leastDigits, std::size_t mostDigits)
{
    const std::size_t end = std::min(text.find(':'), text.size());
    const std::string digits = text.substr(0, end);
    if (digits.size() < leastDigits || digits.size() > mostDigits ||
        digits.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    text.erase(0, end);
    return std::stoll(digits);
}

} // namespace

bool hasTwelveHours()
{
    const auto* application = KestrelApplication::getCurrentApplication();
    return application != nullptr && ICC::fromUNICODEtoASCII(application->getTimeFormat()).starts_with("12");
}

std::string clockText(std::int64_t time, bool twelveHours)
{
    const std::int64_t hour = time / HOUR % 24;
    const std::int64_t minute = time / MINUTE % 60;
    if (!twelveHours)
        return formatted("%02ld:%02ld", hour, minute);
    return formatted(hour < 12 ? "%ld:%02ld AM" : "%ld:%02ld PM", hour % 12 == 0 ? 12 : hour % 12, minute);
}

std::string timerText(std::int64_t time, bool hours)
{
    if (!hours && time < HOUR)
        return formatted("%02ld:%02ld", time / MINUTE, time / SECOND % 60);
    return formatted("%02ld:%02ld:%02ld", time / HOUR, time / MINUTE % 60, time / SECOND % 60);
}

std::optional<std::int64_t> parseTimer(std::string text)
{
    constexpr std::size_t HOUR_DIGITS = 6;
    const bool hours = std::count(text.begin(), text.end(), ':') == 2;
    std::int64_t seconds = 0;
    const int first = hours ? 0 : 1;
    for (int part = first; part < 3; ++part) {
        const auto number = takeNumber(text, part == first ? 1 : 2, part == 0 ? HOUR_DIGITS : 2);
        const bool last = part == 2;
        if (!number || (part > 0 && *number > 59) || text.empty() != last)
            return std::nullopt;
        seconds = seconds * 60 + *number;
        text.erase(0, 1);
    }
    return seconds * SECOND;
}

} // namespace host
