#include "SystemWindowText.h"

#include "DisplayAPI/ScreenText.h"

#include <string_view>

namespace DisplayAPI {

namespace {

constexpr std::string_view BLANK_LINE = "                        ";
constexpr std::string_view FIRST_TEXT = "string0:";

std::string object(const std::string& caption, const std::string& contents)
{
    return screen::object("PopupTextField", screen::caption(caption) + contents);
}

std::string subItem(const std::string& line)
{
    return screen::subItem("KestrelListBoxItem", screen::textLine(0, line));
}

/// Observers expect the line break before it and none behind.
std::string standingAlone(const std::string& subItem)
{
    return '\n' + subItem.substr(0, subItem.size() - 1);
}

bool isPresent(const std::string& line)
{
    return !line.empty() && line != BLANK_LINE;
}

} // namespace

std::string systemWindowObject(const std::string& caption, const std::string& line)
{
    return object(caption, subItem(line));
}

std::string presentSystemWindowObject(const std::string& caption, const std::string& line)
{
    const std::string contents = isPresent(line) ? subItem(line) : std::string();
    if (isPresent(caption))
        return object(caption, contents);
    return contents.empty() ? contents : standingAlone(contents);
}

std::string firstMenuLine(const std::string& text)
{
    const auto found = text.find(FIRST_TEXT);
    if (found == std::string::npos)
        return {};
    const auto start = found + FIRST_TEXT.size();
    return text.substr(start, text.find('\n', start) - start);
}

bool holdsSmallContextMenu(const std::string& text)
{
    return text.find(screen::objectStart("ContextMenu20Line2")) != std::string::npos;
}

} // namespace DisplayAPI
