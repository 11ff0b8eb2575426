#include "host/widgets/status/StatusLines.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"
#include "host/widgets/status/StatusTime.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr int TIME_GAP = 8;

bool isLine(int line)
{
    return line >= 0 && line < StatusLines::MAX_LINES;
}

bool isBlank(const std::string& text)
{
    return text.find_first_not_of(' ') == std::string::npos;
}

/// Returns what is left of the line.
PegRect drawTime(PegPainter& painter, PegRect cell, Font font, const StatusTime& time)
{
    const PegString text = ICC::fromUTF8toUNICODE(time.text());
    if (text.empty())
        return cell;
    painter.text(cell, text, {.font = font, .align = endAlign(), .runs = time.runs()});
    const int taken = painter.textWidth(text, font, widthOf(cell)) + TIME_GAP;
    if (isReadFromTheRight())
        cell.left = static_cast<std::int16_t>(cell.left + taken);
    else
        cell.right = static_cast<std::int16_t>(cell.right - taken);
    return cell;
}

} // namespace

bool StatusLines::setSize(int lines)
{
    const int size = std::clamp(lines, 0, MAX_LINES);
    return std::exchange(mSize, size) != size;
}

bool StatusLines::setText(int line, std::string text)
{
    if (!isLine(line) || mTexts[static_cast<std::size_t>(line)] == text)
        return false;
    mTexts[static_cast<std::size_t>(line)] = std::move(text);
    return true;
}

const std::string& StatusLines::text(int line) const
{
    static const std::string none;
    return isLine(line) ? mTexts[static_cast<std::size_t>(line)] : none;
}

int StatusLines::used() const
{
    int lines = mSize;
    while (lines > 0 && isBlank(text(lines - 1)))
        --lines;
    return lines;
}

void drawStatusLine(PegPainter& painter, const PegRect& cell, const std::string& text, Font font,
                    const StatusTime* time)
{
    if (painter.isClippedOut(cell))
        return;
    const PegRect left = time == nullptr ? cell : drawTime(painter, cell, font, *time);
    if (!isEmpty(left))
        painter.text(left, ICC::fromUTF8toUNICODE(text), {.font = font, .align = startAlign()});
}

} // namespace host
