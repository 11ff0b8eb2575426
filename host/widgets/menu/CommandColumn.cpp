#include "host/widgets/menu/CommandColumn.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"

#include <algorithm>

namespace host {

namespace {

constexpr int PADDING = 4; ///< of a row, on either side
constexpr int ICON_WIDTH = 14;
constexpr int MARK_WIDTH = 10;
constexpr int SCROLL_WIDTH = 9;
constexpr int ARROW_HEIGHT = 8;

} // namespace

void CommandColumn::insert(int command, Entry entry)
{
    mHasIcons = mHasIcons || entry.icon != nullptr;
    mEntries.insert(mEntries.begin() + std::clamp(command, 0, count()), std::move(entry));
    if (mCurrent < 0 || command <= mCurrent)
        ++mCurrent;
    keepInSight();
    Invalidate();
}

void CommandColumn::clear()
{
    mEntries.clear();
    mHasIcons = false;
    mCurrent = -1;
    mTop = 0;
    Invalidate();
}

void CommandColumn::setText(int command, PegString text)
{
    if (command < 0 || command >= count())
        return;
    mEntries[static_cast<std::size_t>(command)].text = std::move(text);
    Invalidate(rowArea(command));
}

void CommandColumn::setCurrent(int command)
{
    if (command >= 0 && command < count() && command != mCurrent)
        moveTo(command);
}

void CommandColumn::moveTo(int command)
{
    Invalidate(rowArea(mCurrent));
    mCurrent = command;
    if (keepInSight())
        Invalidate();
    else
        Invalidate(rowArea(mCurrent));
}

/// Returns whether others are in sight now.
bool CommandColumn::keepInSight()
{
    const int before = mTop;
    mTop = std::clamp(mTop, mCurrent + 1 - rowsInSight(), std::max(0, mCurrent));
    mTop = std::clamp(mTop, 0, std::max(0, count() - rowsInSight()));
    return mTop != before;
}

int CommandColumn::rowsInSight() const
{
    return std::max(1, heightOf(Area()) / lineHeight());
}

void CommandColumn::setMostRows(int rows)
{
    mMostRows = std::max(1, rows);
}

int CommandColumn::heightFor(int) const
{
    return lineHeight() * (hasTwoLines() ? mMostRows : std::clamp(count(), 1, mMostRows));
}

PegRect CommandColumn::rowArea(int command) const
{
    const PegRect& all = Area();
    const int row = command - mTop;
    if (command < 0 || command >= count() || row < 0 || row >= rowsInSight())
        return rectAt(all.left, all.top, 0, 0);
    const int width = widthOf(all) - (scrolls() ? SCROLL_WIDTH : 0);
    const int left = scrolls() && isReadFromTheRight() ? all.left + SCROLL_WIDTH : all.left;
    return rectAt(left, all.top + row * lineHeight(), width, lineHeight());
}

PegRect CommandColumn::scrollArea() const
{
    return Strip(Area()).fromEnd(SCROLL_WIDTH);
}

bool CommandColumn::key(int key)
{
    switch (key) {
    case PK_UP: return step(-1);
    case PK_DOWN: return step(1);
    case PK_OK: return choose();
    default: return false;
    }
}

bool CommandColumn::step(int by)
{
    if (count() < 2)
        return false;
    const int command = (mCurrent + by + count()) % count();
    moveTo(command);
    tell(PM_CURRENT_CHANGED, command);
    return true;
}

bool CommandColumn::choose()
{
    if (mCurrent < 0)
        return false;
    tell(PM_CLICKED, mCurrent);
    return true;
}

void CommandColumn::Resize(const PegRect& area)
{
    Field::Resize(area);
    keepInSight();
}

void CommandColumn::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    const int end = std::min(count(), mTop + rowsInSight());
    for (int command = mTop; command < end; ++command)
        drawRow(painter, command);
    if (scrolls())
        drawScroll(painter);
}

void CommandColumn::drawRow(PegPainter& painter, int command) const
{
    const PegRect area = rowArea(command);
    if (painter.isClippedOut(area))
        return;
    const Entry& entry = at(command);
    const bool selected = hasFocus() && command == mCurrent;
    const Level ink = selected ? Level::BARE : Level::DARK;
    if (selected)
        painter.fill(area, Level::DARK);
    Strip strip(rectAt(area.left + PADDING, area.top, widthOf(area) - 2 * PADDING, heightOf(area)));
    const PegRect front = strip.fromStart(mHasIcons ? ICON_WIDTH : 0);
    const PegRect behind = strip.fromEnd(entry.mark != nullptr ? MARK_WIDTH : 0);
    if (entry.icon != nullptr)
        painter.icon(*entry.icon, front, ink);
    if (entry.mark != nullptr)
        painter.icon(*entry.mark, behind, ink);
    painter.text(strip.rest(), entry.text, {.font = font(), .align = startAlign(), .inverted = selected});
}

void CommandColumn::drawScroll(PegPainter& painter) const
{
    const PegRect area = scrollArea();
    if (mTop > 0)
        painter.icon(icons::SMALL_ARROW_UP, rectAt(area.left, area.top, SCROLL_WIDTH, ARROW_HEIGHT), Level::DARK);
    if (mTop + rowsInSight() < count())
        painter.icon(icons::SMALL_ARROW_DOWN,
                     rectAt(area.left, area.bottom + 1 - ARROW_HEIGHT, SCROLL_WIDTH, ARROW_HEIGHT), Level::DARK);
}

} // namespace host
