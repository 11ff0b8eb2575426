#include "simulator/screen/ScreenRows.h"

#include "toolkit/PegThing.h"

#include <algorithm>

namespace simulator {

namespace {

bool isBeside(const host::TextRun& run, const PegRect& row)
{
    const int middle = (run.area.top + run.area.bottom) / 2;
    return row.top <= middle && middle <= row.bottom;
}

/// A ticker's text stays what it is while it runs.
std::string lastingPart(const host::TextRun& run)
{
    return run.runs && run.widget != TYPE_TICKER ? std::string() : run.text;
}

std::string joined(const std::string& left, const std::string& right)
{
    return left + (left.empty() || right.empty() ? "" : "  ") + right;
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
            rows.back().lasting = joined(rows.back().lasting, lastingPart(run));
            continue;
        }
        rows.push_back({run.text, run.inverted, lastingPart(run)});
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
