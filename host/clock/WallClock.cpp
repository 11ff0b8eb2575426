#include "host/clock/WallClock.h"

#include "host/clock/Clock.h"

#include <chrono>
#include <cstdio>

namespace host {

namespace {

constexpr std::time_t VIRTUAL_START = 1773049260; // 2026-03-09 09:41:00 UTC
constexpr std::int64_t SECOND = 1000;

/// Milliseconds since 1970.
std::int64_t sinceEpoch()
{
    using namespace std::chrono;
    static const std::int64_t start = Clock::instance().now();
    if (!Clock::instance().isVirtual())
        return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
    return VIRTUAL_START * SECOND + Clock::instance().now() - start;
}

std::string digits(int number, int width)
{
    char text[16];
    std::snprintf(text, sizeof text, "%0*d", width, number);
    return text;
}

void replace(std::string& text, const char* mark, const std::string& by)
{
    if (const std::size_t at = text.find(mark); at != std::string::npos)
        text.replace(at, std::char_traits<char>::length(mark), by);
}

} // namespace

std::time_t WallClock::now()
{
    return sinceEpoch() / SECOND;
}

std::tm WallClock::local(std::time_t moment)
{
    std::tm parts{};
    if (Clock::instance().isVirtual())
        gmtime_r(&moment, &parts);
    else
        localtime_r(&moment, &parts);
    return parts;
}

int WallClock::timeOfDay()
{
    const std::int64_t now = sinceEpoch();
    const std::tm parts = local(now / SECOND);
    return ((parts.tm_hour * 60 + parts.tm_min) * 60 + parts.tm_sec) * SECOND + static_cast<int>(now % SECOND);
}

std::string WallClock::date(std::time_t moment, std::string format)
{
    const std::tm parts = local(moment);
    replace(format, "dd", digits(parts.tm_mday, 2));
    replace(format, "mm", digits(parts.tm_mon + 1, 2));
    replace(format, "yyyy", digits(parts.tm_year + 1900, 4));
    return format;
}

std::string WallClock::time(std::time_t moment, const std::string& format)
{
    const std::tm parts = local(moment);
    const std::string minutes = ":" + digits(parts.tm_min, 2);
    if (format == "24h")
        return digits(parts.tm_hour, 2) + minutes;
    return std::to_string((parts.tm_hour + 11) % 12 + 1) + minutes + (parts.tm_hour < 12 ? " AM" : " PM");
}

} // namespace host
