#include "utilities/ICC.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

using Byte = unsigned char;

constexpr PegChar REPLACEMENT = 0xFFFD;

/// What may follow a lead byte: how many bytes, and the range of the first of them, which is narrower than 80 to BF
/// where overlong forms, surrogates and values past U+10FFFF have to be kept out. A `length` of 0: not a lead byte.
struct Lead {
    int length;
    Byte low;
    Byte high;
};

Lead leadOf(Byte byte)
{
    if (byte >= 0xC2 && byte <= 0xDF)
        return {1, 0x80, 0xBF};
    if (byte >= 0xE0 && byte <= 0xEF)
        return {2, Byte(byte == 0xE0 ? 0xA0 : 0x80), Byte(byte == 0xED ? 0x9F : 0xBF)};
    if (byte >= 0xF0 && byte <= 0xF4)
        return {3, Byte(byte == 0xF0 ? 0x90 : 0x80), Byte(byte == 0xF4 ? 0x8F : 0xBF)};
    return {0, 0, 0};
}

/// Takes one sequence of more than one byte, or the ill-formed part of it, off `at`.
PegChar takeSequence(const Byte*& at, const Byte* end)
{
    const Byte first = *at++;
    const auto [length, low, high] = leadOf(first);
    std::uint32_t point = first & (0x3F >> length);
    for (int taken = 0; taken < length; ++taken) {
        if (at == end || *at < (taken == 0 ? low : 0x80) || *at > (taken == 0 ? high : 0xBF))
            return REPLACEMENT;
        point = point << 6 | (*at++ & 0x3F);
    }
    return length == 0 || point > 0xFFFF ? REPLACEMENT : static_cast<PegChar>(point);
}

bool startsWithEightAscii(const Byte* at, const Byte* end)
{
    std::uint64_t eight = 0;
    if (end - at < static_cast<std::ptrdiff_t>(sizeof eight))
        return false;
    std::memcpy(&eight, at, sizeof eight);
    return (eight & 0x8080808080808080) == 0;
}

void appendUtf8(std::string& text, PegChar unit)
{
    if (unit < 0x80) {
        text += static_cast<char>(unit);
    } else if (unit < 0x800) {
        text += static_cast<char>(0xC0 | unit >> 6);
        text += static_cast<char>(0x80 | (unit & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | unit >> 12);
        text += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (unit & 0x3F));
    }
}

bool isSurrogate(PegChar unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

} // namespace

PegString ICC::fromUTF8toUNICODE(const std::string& text)
{
    std::vector<PegChar> units(text.size());
    PegChar* to = units.data();
    const Byte* at = reinterpret_cast<const Byte*>(text.data());
    const Byte* const end = at + text.size();
    while (at != end) {
        for (; startsWithEightAscii(at, end); at += 8)
            for (int byte = 0; byte < 8; ++byte)
                *to++ = at[byte];
        if (at != end)
            *to++ = *at < 0x80 ? *at++ : takeSequence(at, end);
    }
    return PegString(units.data(), static_cast<std::size_t>(to - units.data()));
}

std::string ICC::fromUNICODEtoUTF8(const PegString& text)
{
    std::string bytes;
    bytes.reserve(text.length());
    for (std::size_t at = 0; at < text.length(); ++at)
        appendUtf8(bytes, isSurrogate(text.data()[at]) ? REPLACEMENT : text.data()[at]);
    return bytes;
}

std::string ICC::fromUNICODEtoASCII(const PegString& text)
{
    std::string bytes(text.length(), '?');
    for (std::size_t at = 0; at < text.length(); ++at)
        if (text.data()[at] < 0x80)
            bytes[at] = static_cast<char>(text.data()[at]);
    return bytes;
}
