#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// A decimal number that keeps the decimals it is written with: "1.50" is 1.50 and not 1.5. Up to nine digits before
/// the point and six behind it.
class Decimal {
public:
    constexpr Decimal() = default;

    /// Nothing where it is no such number; blanks are none.
    static std::optional<Decimal> fromText(std::string_view text);
    std::string text() const;

    /// With as many decimals as the one that has more.
    Decimal plus(const Decimal& other) const;
    Decimal minus(const Decimal& other) const;

    /// The order of numbers: "1.50" is neither less nor more than "1.5".
    friend bool operator<(const Decimal& one, const Decimal& other) { return one.mMillionths < other.mMillionths; }
    bool isPositive() const { return mMillionths > 0; }

    /// How far it is from `least` to `most`, in hundredths; 0 where both are the same.
    int percentOf(const Decimal& least, const Decimal& most) const;

private:
    constexpr Decimal(std::int64_t millionths, int decimals) : mMillionths(millionths), mDecimals(decimals) {}

    std::int64_t mMillionths = 0;
    int mDecimals = 0;
};

} // namespace host
