#pragma once

#include "simulator/core/Regex.h"
#include "simulator/core/Screen.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace simulator {

/// What somebody waits for on the screen. What runs, a clock or a timer, counts only where it is asked for.
class ScreenCondition {
public:
    enum class What {
        TEXT,     ///< a row, or a text on the panel, is it
        NO_TEXT,  ///< none is
        SELECTED, ///< a selected one is
        SCREEN,   ///< the whole screen as text is it
        ROWS      ///< these are the rows, and no others
    };
    enum class Match { EQUAL, CONTAINS, REGEX };

    ScreenCondition(What what, Match match, std::string text, std::vector<std::string> rows = {},
                    bool withVolatile = false);

    /// Another text that will do as well, or that must not be there either. REQUIRES: the match is none by an
    /// expression.
    void addText(std::string text) { mOtherTexts.push_back(std::move(text)); }

    /// What is wrong with the regular expression; empty where nothing is, and where there is none.
    std::string error() const;

    bool holdsFor(const Screen& screen) const;

    /// How the screen differs from what it ought to be, for people. REQUIRES: the condition does not hold for it.
    std::string differenceOf(const Screen& screen) const;

private:
    bool matches(const std::string& shown) const;
    bool matches(const std::string& shown, const std::string& text) const;
    bool shows(const Screen& screen) const;
    bool isScreen(const std::string& shown) const;
    std::string rowsShown(const Screen& screen) const;

    What mWhat;
    Match mMatch;
    std::string mText;
    std::vector<std::string> mOtherTexts;
    std::vector<std::string> mRows;
    bool mWithVolatile;
    std::shared_ptr<const Regex> mRegex; ///< where it is to match one
};

} // namespace simulator
