#include "host/lcd/Utf8.h"

#include "host/lcd/Fonts.h"

namespace host {

namespace {

bool isControl(char16_t unit)
{
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x2028 || unit == 0x2029;
}

bool isSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

void appendUtf8(std::string& utf8, char16_t c)
{
    if (c < 0x80) {
        utf8 += static_cast<char>(c);
        return;
    }
    if (c < 0x800)
        utf8 += static_cast<char>(0xC0 | (c >> 6));
    else
        (utf8 += static_cast<char>(0xE0 | (c >> 12))) += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    utf8 += static_cast<char>(0x80 | (c & 0x3F));
}

} // namespace

char16_t drawn(char16_t unit)
{
    if (isControl(unit))
        return u' ';
    return isSurrogate(unit) ? REPLACEMENT : unit;
}

std::string toUtf8(std::u16string_view text)
{
    std::string utf8;
    for (const char16_t unit : text)
        appendUtf8(utf8, unit);
    return utf8;
}

} // namespace host
