#include "simulator/core/ScreenCondition.h"

#include "simulator/core/Regex.h"
#include "simulator/screen/ScreenRows.h"
#include "simulator/screen/ScreenText.h"
#include "simulator/core/TextDifference.h"
#include "toolkit/PegThing.h"

#include <algorithm>
#include <sstream>

namespace simulator {

namespace {

/// Lines that may say anything are left out.
std::string withoutVolatileLines(const std::string& text)
{
    std::istringstream lines(text);
    std::string lasting;
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with("volatile:"))
            lasting += line + '\n';
    return lasting;
}

std::string onLines(const std::vector<std::string>& rows)
{
    std::string text;
    for (const std::string& row : rows)
        text += row + '\n';
    return text;
}

std::vector<std::string> rowsShown(const Screen& screen, bool withVolatile)
{
    std::vector<std::string> rows;
    for (const ScreenRow& row : rowsOf(screen.picture.texts))
        rows.push_back(withVolatile ? row.text : row.lasting);
    return rows;
}

} // namespace

std::vector<ShownText> shownTexts(const Screen& screen, bool withVolatile)
{
    std::vector<ShownText> shown;
    for (const ScreenRow& row : rowsOf(screen.picture.texts))
        shown.push_back({withVolatile ? row.text : row.lasting, row.selected});
    for (const host::TextRun& run : screen.picture.texts)
        if (withVolatile || !run.runs || run.widget == TYPE_TICKER)
            shown.push_back({run.text, run.inverted});
    return shown;
}

std::string ScreenCondition::error() const
{
    return match == Match::REGEX ? Regex(text).error() : std::string();
}

std::string ScreenCondition::differenceOf(const Screen& screen) const
{
    switch (what) {
    case What::SCREEN: return differenceOfScreen(screen);
    case What::ROWS: return differenceOfRows(screen);
    default: return differenceOfTexts(screen);
    }
}

bool ScreenCondition::matches(const std::string& shown) const
{
    switch (match) {
    case Match::EQUAL: return shown == text;
    case Match::CONTAINS: return shown.find(text) != std::string::npos;
    case Match::REGEX: return Regex(text).isIn(shown);
    }
    return false;
}

std::string ScreenCondition::differenceOfTexts(const Screen& screen) const
{
    const std::vector<ShownText> shown = shownTexts(screen, withVolatile);
    const bool isThere = std::ranges::any_of(shown, [this](const ShownText& each) {
        return (each.selected || what != What::SELECTED) && matches(each.text);
    });
    if (isThere != (what == What::NO_TEXT))
        return {};
    const std::string subject = what == What::NO_TEXT    ? "there is '"
                                : what == What::SELECTED ? "no selected row is '"
                                                         : "there is no '";
    return subject + text + "'\nthe screen shows:\n" + describe(rowsOf(screen.picture.texts));
}

std::string ScreenCondition::differenceOfScreen(const Screen& screen) const
{
    const std::string shown = screenText(screen.words.displayables, screen.picture.texts);
    if (match == Match::EQUAL)
        return withVolatile && shown == text ? std::string() : textDifference(text, shown);
    if (matches(withVolatile ? shown : withoutVolatileLines(shown)))
        return {};
    return "the screen has no '" + text + "', it is:\n" + shown;
}

std::string ScreenCondition::differenceOfRows(const Screen& screen) const
{
    return textDifference(onLines(rows), onLines(rowsShown(screen, withVolatile)));
}

} // namespace simulator
