#include "walk/RandomKeys.h"

#include <array>

namespace test {

namespace {

/// Whoever goes nowhere sees nothing: what leads into a screen is pressed more often than what leads out of it.
constexpr std::array KEYS{"ok",          "ok",   "ok",    "ok",    "down",  "down", "down", "down",
                          "up",          "up",   "right", "right", "right", "left", "left", "star",
                          "hash",        "hook", "0",     "1",     "2",     "5",    "9",    "volume-up",
                          "volume-down", "fpk1", "fpk2",  "fpk3",  "fpk5",  "fpk16"};
constexpr std::array HELD{"0", "up", "down", "left", "right", "ok", "star"};
constexpr std::array HOLDS{"300", "700", "1500"};
constexpr std::array WAITS{"wait 200", "wait 1100", "wait 4500", "wait 31000", "advance 180000", "advance 3700000"};
constexpr std::array CALLERS{"4711", "4712", "0301000000", "99"};
constexpr std::size_t MOST_DIGITS = 6;

} // namespace

std::string RandomKeys::next()
{
    switch (below(30)) {
    case 0: return std::string(WAITS[below(WAITS.size())]);
    case 1:
    case 4: return std::string("hold ") + HELD[below(HELD.size())] + ' ' + HOLDS[below(HOLDS.size())];
    case 2: return "type " + number();
    case 3: return "exchange " + caller();
    default: return std::string("key ") + KEYS[below(KEYS.size())];
    }
}

/// Somebody calls on one line or the other, whether it is free or not.
std::string RandomKeys::caller()
{
    const std::string line = below(3) == 0 ? " line 2" : "";
    return std::string(CALLERS[below(CALLERS.size())]) + " calls" + line;
}

std::size_t RandomKeys::below(std::size_t limit)
{
    return mRandom() % limit; // std::uniform_int_distribution is not the same everywhere
}

std::string RandomKeys::number()
{
    constexpr std::string_view DIGITS = "0123456789*#";
    std::string digits;
    for (std::size_t left = 1 + below(MOST_DIGITS); left > 0; --left)
        digits += DIGITS[below(DIGITS.size())];
    return digits;
}

} // namespace test
