#include "SystemWindowText.h"

#include <algorithm>
#include <string_view>

namespace DisplayAPI {

namespace {

constexpr std::string_view BLANK_LINE = "                        ";
constexpr std::string_view SMALL_CONTEXT_MENU = "object:\nname:ContextMenu20Line2\n";
constexpr std::string_view FIRST_TEXT = "string0:";
constexpr std::string_view CLOSING = "\nend:\n";

/// A line break of the application's would begin a keyword.
std::string onOneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

std::string opening(const std::string& caption)
{
    return "object:\nname:PopupTextField\ncaption:" + onOneLine(caption);
}

std::string subItem(const std::string& line)
{
    return "\nsubitem:\nname:KestrelListBoxItem\nstring0:" + onOneLine(line) + "\nendsubitem:";
}

bool isPresent(const std::string& line)
{
    return !line.empty() && line != BLANK_LINE;
}

} // namespace

std::string systemWindowObject(const std::string& caption, const std::string& line)
{
    return (opening(caption) + subItem(line)).append(CLOSING);
}

std::string presentSystemWindowObject(const std::string& caption, const std::string& line)
{
    std::string object;
    if (isPresent(caption))
        object += opening(caption);
    if (isPresent(line))
        object += subItem(line);
    if (isPresent(caption))
        object += CLOSING;
    return object;
}

std::string firstMenuLine(const std::string& screen)
{
    const auto found = screen.find(FIRST_TEXT);
    if (found == std::string::npos)
        return {};
    const auto start = found + FIRST_TEXT.size();
    return screen.substr(start, screen.find('\n', start) - start);
}

bool holdsSmallContextMenu(const std::string& screen)
{
    return screen.find(SMALL_CONTEXT_MENU) != std::string::npos;
}

} // namespace DisplayAPI
