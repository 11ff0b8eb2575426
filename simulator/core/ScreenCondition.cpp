#include "simulator/core/ScreenCondition.h"

#include "simulator/core/TextDifference.h"
#include "simulator/screen/ScreenRows.h"
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

std::string onLines(const std::vector<std::string>& texts)
{
    std::string lines;
    for (const std::string& text : texts)
        lines += text + '\n';
    return lines;
}

} // namespace

ScreenCondition::ScreenCondition(What what, Match match, std::string text, std::vector<std::string> rows,
                                 bool withVolatile)
    : mWhat(what), mMatch(match), mText(std::move(text)), mRows(std::move(rows)), mWithVolatile(withVolatile),
      mRegex(match == Match::REGEX ? std::make_shared<const Regex>(mText) : nullptr)
{
}

std::string ScreenCondition::error() const
{
    return mRegex != nullptr ? mRegex->error() : std::string();
}

bool ScreenCondition::holdsFor(const Screen& screen) const
{
    switch (mWhat) {
    case What::SCREEN: return isScreen(textOf(screen));
    case What::ROWS: return areAlike(onLines(mRows), rowsShown(screen), VolatileLines::COUNT);
    default: return shows(screen) != (mWhat == What::NO_TEXT);
    }
}

std::string ScreenCondition::differenceOf(const Screen& screen) const
{
    switch (mWhat) {
    case What::SCREEN:
        if (mMatch == Match::EQUAL)
            return textDifference(mText, textOf(screen),
                                  mWithVolatile ? VolatileLines::COUNT : VolatileLines::MAY_DIFFER);
        return "the screen has no '" + mText + "', it is:\n" + textOf(screen);
    case What::ROWS: return textDifference(onLines(mRows), rowsShown(screen), VolatileLines::COUNT);
    default: break;
    }
    const std::string subject = mWhat == What::NO_TEXT    ? "there is '"
                                : mWhat == What::SELECTED ? "no selected row is '"
                                                          : "there is no '";
    std::string texts = mText;
    for (const std::string& other : mOtherTexts)
        texts += "' or '" + other;
    return subject + texts + "'\nthe screen shows:\n" + describe(rowsOf(screen.picture.texts));
}

bool ScreenCondition::matches(const std::string& shown) const
{
    const auto isIt = [&](const std::string& text) { return matches(shown, text); };
    return isIt(mText) || std::ranges::any_of(mOtherTexts, isIt);
}

bool ScreenCondition::matches(const std::string& shown, const std::string& text) const
{
    switch (mMatch) {
    case Match::EQUAL: return shown == text;
    case Match::CONTAINS: return shown.find(text) != std::string::npos;
    case Match::REGEX: return mRegex->isIn(shown);
    }
    return false;
}

/// A row or a text, and a selected one where it has to be.
bool ScreenCondition::shows(const Screen& screen) const
{
    const bool anyone = mWhat != What::SELECTED;
    const auto isRow = [&](const ScreenRow& row) {
        return (anyone || row.selected) && matches(mWithVolatile ? row.text : row.lasting);
    };
    const auto isText = [&](const host::TextRun& run) {
        const bool counts = mWithVolatile || !run.runs || run.widget == TYPE_TICKER;
        return counts && (anyone || run.inverted) && matches(run.text);
    };
    return std::ranges::any_of(screen.picture.texts, isText) ||
           std::ranges::any_of(rowsOf(screen.picture.texts), isRow);
}

bool ScreenCondition::isScreen(const std::string& shown) const
{
    if (mMatch == Match::EQUAL)
        return areAlike(mText, shown, mWithVolatile ? VolatileLines::COUNT : VolatileLines::MAY_DIFFER);
    return matches(mWithVolatile ? shown : withoutVolatileLines(shown));
}

std::string ScreenCondition::rowsShown(const Screen& screen) const
{
    std::vector<std::string> rows;
    for (const ScreenRow& row : rowsOf(screen.picture.texts))
        rows.push_back(mWithVolatile ? row.text : row.lasting);
    return onLines(rows);
}

} // namespace simulator
