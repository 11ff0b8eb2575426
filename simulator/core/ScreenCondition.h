#pragma once

#include "simulator/core/Screen.h"

#include <string>
#include <vector>

namespace simulator {

/// What somebody waits for on the screen. What runs, a clock or a timer, counts only where it is asked for.
struct ScreenCondition {
    enum class What {
        TEXT,     ///< a row, or a text on the panel, is it
        NO_TEXT,  ///< none is
        SELECTED, ///< a selected one is
        SCREEN,   ///< the whole screen as text is it
        ROWS      ///< these are the rows, and no others
    };
    enum class Match { EQUAL, CONTAINS, REGEX };

    What what = What::TEXT;
    Match match = Match::EQUAL;
    std::string text{};
    std::vector<std::string> rows{};
    bool withVolatile = false;

    /// What is wrong with the regular expression; empty where nothing is, and where there is none.
    std::string error() const;

    /// How the screen differs from what it ought to be, for people; empty where the condition holds.
    std::string differenceOf(const Screen& screen) const;

private:
    bool matches(const std::string& shown) const;
    std::string differenceOfTexts(const Screen& screen) const;
    std::string differenceOfScreen(const Screen& screen) const;
    std::string differenceOfRows(const Screen& screen) const;
};

/// What the texts of a screen are to somebody who waits: without what runs, or with it.
struct ShownText {
    std::string text;
    bool selected = false;
};
std::vector<ShownText> shownTexts(const Screen& screen, bool withVolatile);

} // namespace simulator
