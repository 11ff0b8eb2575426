#pragma once

#include "utilities/ICC.h"

#include <algorithm>
#include <string>
#include <string_view>

/// The grammar of the screen as text, which Display::serialise() shows. Texts are UTF-8; any text will do. Complete
/// here, so that whoever reads or writes it needs nothing but this header. Plain functions, for any thread.
namespace DisplayAPI::screen {

/// What would end a line of the text, or begin a keyword, becomes a blank.
inline std::string onOneLine(std::string text)
{
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
    return text;
}

/// "keyword:text" and the end of the line.
inline std::string line(std::string_view keyword, const std::string& text)
{
    return std::string(keyword).append(":").append(onOneLine(text)).append("\n");
}

inline std::string caption(const std::string& text)
{
    return line("caption", text);
}

/// One of the texts of a sub-item, numbered from 0.
inline std::string textLine(int number, const std::string& text)
{
    return line("string" + std::to_string(number), text);
}

/// How an object begins, whatever it holds.
inline std::string objectStart(const std::string& name)
{
    return "object:\n" + line("name", name);
}

/// `contents` are captions, texts and sub-items.
inline std::string object(const std::string& name, const std::string& contents)
{
    return objectStart(name).append(contents).append("end:\n");
}

/// The same inside of an object; `contents` are texts.
inline std::string subItem(const std::string& name, const std::string& contents)
{
    return ("subitem:\n" + line("name", name)).append(contents).append("endsubitem:\n");
}

/// What leaves the display: characters beyond ASCII become what the platform puts in their place.
inline std::string toAscii(const std::string& text)
{
    return ICC::fromUNICODEtoASCII(ICC::fromUTF8toUNICODE(text));
}

} // namespace DisplayAPI::screen
