#include "host/lcd/Scripts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace host {

namespace {

struct Range {
    char16_t first;
    char16_t last;
    Script script;
};

using enum Script;

/// In order. Left out are marks, what is invisible, hyphenation, fractions, tone letters, and letters of other scripts.
constexpr std::array RANGES = std::to_array<Range>({
    {0x20, 0x40, COMMON},     {0x41, 0x5A, LATIN},      {0x5B, 0x60, COMMON},     {0x61, 0x7A, LATIN},
    {0x7B, 0x7E, COMMON},     {0xA0, 0xA9, COMMON},     {0xAA, 0xAA, LATIN},      {0xAB, 0xAC, COMMON},
    {0xAE, 0xB9, COMMON},     {0xBA, 0xBA, LATIN},      {0xBB, 0xBF, COMMON},     {0xC0, 0xD6, LATIN},
    {0xD7, 0xD7, COMMON},     {0xD8, 0xF6, LATIN},      {0xF7, 0xF7, COMMON},     {0xF8, 0x2B8, LATIN},
    {0x2B9, 0x2DF, COMMON},   {0x370, 0x373, GREEK},    {0x375, 0x377, GREEK},    {0x37A, 0x37D, GREEK},
    {0x37F, 0x37F, GREEK},    {0x384, 0x384, GREEK},    {0x386, 0x386, GREEK},    {0x388, 0x3E1, GREEK},
    {0x3F0, 0x3FF, GREEK},    {0x400, 0x482, CYRILLIC}, {0x48A, 0x52F, CYRILLIC}, {0x1E00, 0x1EFF, LATIN},
    {0x1F00, 0x1FFE, GREEK},  {0x2010, 0x2026, COMMON}, {0x2030, 0x2043, COMMON}, {0x2045, 0x205E, COMMON},
    {0x20A0, 0x20BF, COMMON}, {0x2116, 0x2116, COMMON}, {0x2122, 0x2122, COMMON}, {0x2190, 0x21FF, COMMON},
});

constexpr std::u16string_view PAIRS = u"()<>[]{}\u00AB\u00BB\u2018\u2019\u201C\u201D\u2039\u203A\u2045\u2046";

} // namespace

Script scriptOf(char16_t character)
{
    const auto* range = std::ranges::lower_bound(RANGES, character, {}, &Range::last);
    return range != RANGES.end() && range->first <= character ? range->script : OTHER;
}

bool comesInPairs(char16_t character)
{
    return PAIRS.find(character) != PAIRS.npos;
}

} // namespace host
