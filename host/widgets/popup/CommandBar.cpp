#include "host/widgets/popup/CommandBar.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Icons.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"

#include <algorithm>
#include <numeric>

namespace host {

namespace {

constexpr int PADDING = 4; ///< of a text within its cell, on either side
constexpr int ARROW_WIDTH = 10;

/// The same place seen in a mirror.
PegRect mirrored(const PegRect& part, const PegRect& whole)
{
    return rectAt(whole.left + whole.right - part.right, part.top, widthOf(part), heightOf(part));
}

} // namespace

void CommandBar::setCommands(std::vector<PegString> texts)
{
    mTexts = std::move(texts);
    mWidths.clear();
    for (const PegString& each : mTexts)
        mWidths.push_back(widthOfText(each));
    mCurrent = mTexts.empty() ? -1 : 0;
    Invalidate();
}

void CommandBar::append(PegString text)
{
    mWidths.push_back(widthOfText(text));
    mTexts.push_back(std::move(text));
    mCurrent = std::max(mCurrent, 0);
    Invalidate();
}

void CommandBar::remove(int command)
{
    if (command < 0 || command >= count())
        return;
    mWidths.erase(mWidths.begin() + command);
    mTexts.erase(mTexts.begin() + command);
    if (command < mCurrent || mCurrent == count())
        --mCurrent;
    Invalidate();
}

void CommandBar::setText(int command, PegString text)
{
    const auto place = static_cast<std::size_t>(command);
    mWidths.at(place) = widthOfText(text);
    mTexts[place] = std::move(text);
    Invalidate();
}

int CommandBar::widthOfText(const PegString& text)
{
    return Lcd::current() != nullptr ? Lcd::current()->textWidth(font(), text) : 0;
}

void CommandBar::setCurrent(int command)
{
    if (command < 0 || command >= count() || command == mCurrent)
        return;
    mCurrent = command;
    Invalidate();
}

int CommandBar::heightFor(int) const
{
    return lineHeight();
}

bool CommandBar::fits() const
{
    return std::accumulate(mWidths.begin(), mWidths.end(), 2 * PADDING * count()) <= widthOf(Area());
}

/// Painting asks here, and so does whoever wants to know where a command stands.
std::vector<CommandBar::Cell> CommandBar::cells() const
{
    if (count() == 0)
        return {};
    const PegRect& bar = Area();
    if (!fits())
        return {{mCurrent, rectAt(bar.left + ARROW_WIDTH, bar.top, widthOf(bar) - 2 * ARROW_WIDTH, heightOf(bar))}};
    const int taken = std::accumulate(mWidths.begin(), mWidths.end(), 2 * PADDING * count());
    const int spare = (widthOf(bar) - taken) / count();
    std::vector<Cell> all;
    int left = bar.left;
    for (int command = 0; command < count(); ++command) {
        const int width = mWidths[static_cast<std::size_t>(command)] + 2 * PADDING + spare;
        const PegRect area = rectAt(left, bar.top, width, heightOf(bar));
        all.push_back({command, isReadFromTheRight() ? mirrored(area, bar) : area});
        left += width;
    }
    return all;
}

bool CommandBar::key(int key)
{
    const int forward = isReadFromTheRight() ? -1 : 1;
    switch (key) {
    case PK_LEFT: return step(-forward);
    case PK_RIGHT: return step(forward);
    case PK_OK:
        if (mCurrent < 0)
            return false;
        tell(PM_CLICKED, mCurrent);
        return true;
    default: return false;
    }
}

bool CommandBar::step(int by)
{
    const int command = mCurrent + by;
    if (command < 0 || command >= count())
        return false;
    setCurrent(command);
    tell(PM_CURRENT_CHANGED, command);
    return true;
}

void CommandBar::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    for (const Cell& cell : cells())
        drawCell(painter, cell);
    if (!fits())
        drawArrows(painter);
}

void CommandBar::drawCell(PegPainter& painter, const Cell& cell) const
{
    const bool selected = hasFocus() && cell.command == mCurrent;
    if (selected)
        painter.fill(cell.area, Level::DARK);
    else if (cell.command == mCurrent)
        painter.frame(cell.area, Level::MIDDLE);
    painter.text(cell.area, text(cell.command), {.font = font(), .align = Align::CENTRE, .inverted = selected});
}

void CommandBar::drawArrows(PegPainter& painter) const
{
    const PegRect& bar = Area();
    const PegRect left = rectAt(bar.left, bar.top, ARROW_WIDTH, heightOf(bar));
    const PegRect right = mirrored(left, bar);
    const bool fromTheRight = isReadFromTheRight();
    if (mCurrent > 0)
        painter.icon(fromTheRight ? icons::SMALL_ARROW_RIGHT : icons::SMALL_ARROW_LEFT, fromTheRight ? right : left,
                     Level::DARK);
    if (mCurrent + 1 < count())
        painter.icon(fromTheRight ? icons::SMALL_ARROW_LEFT : icons::SMALL_ARROW_RIGHT, fromTheRight ? left : right,
                     Level::DARK);
}

} // namespace host
