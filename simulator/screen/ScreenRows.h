#pragma once

#include "host/lcd/Lcd.h"

#include <string>
#include <vector>

namespace simulator {

/// One line of the panel as text.
struct ScreenRow {
    std::string text;
    bool selected = false;
    std::string lasting = {}; ///< without what changes by itself as time passes: the clock in a status line, say

    friend bool operator==(const ScreenRow&, const ScreenRow&) = default;
};

/// The panel's texts line by line: what stands side by side is one row.
std::vector<ScreenRow> rowsOf(const std::vector<host::TextRun>& texts);

/// Whether a row contains `text`.
bool shows(const std::vector<ScreenRow>& rows, const std::string& text);

/// The rows one below the other, the selected one behind "> ", the others behind two spaces.
std::string describe(const std::vector<ScreenRow>& rows);

} // namespace simulator
