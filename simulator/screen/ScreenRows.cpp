#include "simulator/screen/ScreenRows.h"

#include <algorithm>

namespace simulator {

namespace {

bool isBeside(const host::TextRun& run, const PegRect& row)
{
    const int middle = (run.area.top + run.area.bottom) / 2;
    return row.top <= middle && middle <= row.bottom;
}

} // namespace

std::vector<ScreenRow> rowsOf(const std::vector<host::TextRun>& texts)
{
    std::vector<ScreenRow> rows;
    PegRect current;
    for (const host::TextRun& run : texts) {
        if (!rows.empty() && isBeside(run, current)) {
            rows.back().text += "  " + run.text;
            rows.back().selected |= run.inverted;
            continue;
        }
        rows.push_back({run.text, run.inverted});
        current = run.area;
    }
    return rows;
}

bool shows(const std::vector<ScreenRow>& rows, const std::string& text)
{
    return std::ranges::any_of(rows, [&](const ScreenRow& row) { return row.text.find(text) != std::string::npos; });
}

std::string describe(const std::vector<ScreenRow>& rows)
{
    std::string lines;
    for (const ScreenRow& row : rows)
        lines += (row.selected ? "> " : "  ") + row.text + '\n';
    return lines;
}

} // namespace simulator
