#include "host/widgets/form/Decimal.h"

#include <algorithm>
#include <cstdlib>

namespace host {

namespace {

constexpr int MOST_DECIMALS = 6;
constexpr std::size_t MOST_DIGITS = 9; ///< before the point
constexpr std::int64_t ONE = 1'000'000;

bool areDigits(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::int64_t number(std::string_view digits)
{
    std::int64_t value = 0;
    for (const char digit : digits)
        value = value * 10 + (digit - '0');
    return value;
}

} // namespace

std::optional<Decimal> Decimal::fromText(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, point);
    std::string fraction(point < text.size() ? text.substr(point + 1) : std::string_view());
    const auto decimals = fraction.size();
    const bool pointAlone = point < text.size() && fraction.empty();
    if (whole.empty() || pointAlone || whole.size() > MOST_DIGITS || decimals > MOST_DECIMALS || !areDigits(whole) ||
        !areDigits(fraction))
        return std::nullopt;
    fraction.resize(MOST_DECIMALS, '0');
    const std::int64_t millionths = number(whole) * ONE + number(fraction);
    return Decimal(isNegative ? -millionths : millionths, static_cast<int>(decimals));
}

std::string Decimal::text() const
{
    const std::int64_t size = std::abs(mMillionths);
    std::string text = (mMillionths < 0 ? "-" : "") + std::to_string(size / ONE);
    if (mDecimals > 0)
        text += "." + std::to_string(ONE + size % ONE).substr(1, static_cast<std::size_t>(mDecimals));
    return text;
}

Decimal Decimal::plus(const Decimal& other) const
{
    return {mMillionths + other.mMillionths, std::max(mDecimals, other.mDecimals)};
}

Decimal Decimal::minus(const Decimal& other) const
{
    return {mMillionths - other.mMillionths, std::max(mDecimals, other.mDecimals)};
}

int Decimal::percentOf(const Decimal& least, const Decimal& most) const
{
    const std::int64_t range = most.mMillionths - least.mMillionths;
    return range > 0 ? static_cast<int>((mMillionths - least.mMillionths) * 100 / range) : 0;
}

} // namespace host
