#include "host/widgets/status/DateText.h"

#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <cctype>

namespace host {

namespace {

std::string applicationsFormat()
{
    const auto* application = KestrelApplication::getCurrentApplication();
    const std::string format = application != nullptr ? ICC::fromUNICODEtoUTF8(application->getDateFormat()) : "";
    return format.empty() ? "dd.mm.yyyy" : format;
}

std::string digits(unsigned number, std::size_t width)
{
    const std::string text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

std::string yearText(int year, std::size_t width)
{
    const auto positive = static_cast<unsigned>(year);
    return width <= 2 ? digits(positive % 100, 2) : digits(positive, width);
}

std::string part(char letter, std::size_t width, const std::chrono::year_month_day& date)
{
    switch (std::tolower(static_cast<unsigned char>(letter))) {
    case 'd': return digits(unsigned(date.day()), width);
    case 'm': return digits(unsigned(date.month()), width);
    case 'y': return yearText(int(date.year()), width);
    default: return std::string(width, letter);
    }
}

} // namespace

std::string dateText(const std::chrono::year_month_day& date)
{
    const std::string format = applicationsFormat();
    std::string text;
    for (std::size_t at = 0; at < format.size();) {
        const std::size_t end = std::min(format.find_first_not_of(format[at], at), format.size());
        text += part(format[at], end - at, date);
        at = end;
    }
    return text;
}

} // namespace host
