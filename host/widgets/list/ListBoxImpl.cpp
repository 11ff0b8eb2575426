#include "host/widgets/list/ListBoxImpl.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"
#include "widgets/KestrelListBoxItem.h"

#include <algorithm>

using namespace host;

ListGeometry KestrelListBox::Impl::geometry() const
{
    return geometryOf(layout, box.Area(),
                      {.rows = rows.size(),
                       .top = top,
                       .statusLines = statusShown,
                       .titled = !title.empty(),
                       .ticker = ticker,
                       .back = back,
                       .exclusive = exclusive,
                       .mirrored = isReadFromTheRight()});
}

int KestrelListBox::Impl::lastTop() const
{
    return std::max(0, rows.size() - geometry().visibleRows);
}

void KestrelListBox::Impl::insert(KestrelListBoxItem* item, int row)
{
    const ListGeometry before = geometry();
    const int topBefore = top;
    KestrelListBoxItem* currentItem = rows.at(current);
    rows.insert(item, row);
    if (row < top)
        ++top;
    if (row <= current || current < 0)
        ++current;
    scrollToCurrent();
    moveMark(currentItem);
    repaintRows(row, rows.size() - 1);
    repaintAfter(before, topBefore);
}

void KestrelListBox::Impl::removeAt(int row)
{
    const ListGeometry before = geometry();
    const int topBefore = top;
    rows.at(row)->setMarked(false);
    rows.erase(row);
    if (row < top)
        --top;
    if (row < current || current == rows.size())
        --current;
    scrollToCurrent();
    moveMark(nullptr);
    repaintRows(row, rows.size());
    repaintAfter(before, topBefore);
}

void KestrelListBox::Impl::makeCurrent(int row)
{
    const ListGeometry before = geometry();
    const int topBefore = top;
    KestrelListBoxItem* currentItem = rows.at(current);
    repaintRow(current);
    current = row;
    scrollToCurrent();
    moveMark(currentItem);
    repaintRow(current);
    repaintAfter(before, topBefore);
}

void KestrelListBox::Impl::scrollToCurrent()
{
    const int visible = std::max(1, geometry().visibleRows);
    top = std::min(std::clamp(top, current - visible + 1, std::max(0, current)), lastTop());
    top = std::max(0, top);
}

/// In an exclusive list the current row carries the mark, and no other does.
void KestrelListBox::Impl::moveMark(KestrelListBoxItem* from)
{
    if (from != nullptr)
        from->setMarked(false);
    if (KestrelListBoxItem* item = rows.at(current))
        item->setMarked(exclusive);
}

/// Texts may begin at the other side now.
void KestrelListBox::Impl::languageChanged()
{
    placeTicker();
    box.Invalidate();
}

void KestrelListBox::Impl::placeTicker()
{
    for (PegThing* child = box.First(); child != nullptr; child = child->NextSibling())
        if (child->Type() == TYPE_TICKER)
            child->Resize(geometry().ticker);
}

bool KestrelListBox::Impl::key(int key)
{
    switch (key) {
    case PK_UP: step(-1); return true;
    case PK_DOWN: step(1); return true;
    case PK_LEFT: tell(PM_LEFT, current); return true;
    case PK_RIGHT: tellIfRow(PM_RIGHT); return true;
    case PK_OK: tellIfRow(PM_CLICKED); return true;
    default: return false;
    }
}

void KestrelListBox::Impl::step(int by)
{
    const int row = current + by;
    if (rows.at(row) == nullptr)
        return;
    makeCurrent(row);
    tell(PM_CURRENT_CHANGED, row);
}

void KestrelListBox::Impl::tellIfRow(std::uint16_t type)
{
    if (current >= 0)
        tell(type, current);
}

/// The last thing that a handler does: the target may delete the list.
void KestrelListBox::Impl::tell(std::uint16_t type, int data)
{
    if (target == nullptr)
        return;
    PegMessage message;
    message.wType = type;
    message.iData = data;
    message.pTarget = target;
    message.pSource = &box;
    target->Message(message);
}

void KestrelListBox::Impl::repaintRow(int row)
{
    repaintRows(row, row);
}

/// Looks at the rows in view only: a list that changes all its rows asks for each.
void KestrelListBox::Impl::repaintItem(const KestrelListBoxItem* item)
{
    if (item == nullptr || !box.StatusIs(PSF_VISIBLE))
        return;
    for (int row = top, end = top + geometry().visibleRows; row < end; ++row) {
        if (rows.at(row) == item)
            return repaintRow(row);
    }
}

void KestrelListBox::Impl::repaintRows(int first, int last)
{
    const ListGeometry parts = geometry();
    const int firstSlot = std::max(first - top, 0);
    const int lastSlot = std::min(last - top, parts.visibleRows - 1);
    if (firstSlot > lastSlot || first < 0)
        return;
    const PegRect rowsArea = boundsOf(parts.row(firstSlot), parts.row(lastSlot));
    box.Invalidate(exclusive ? boundsOf(rowsArea, parts.mark(firstSlot)) : rowsArea);
}

/// Repaints what has moved between two states of the list, beyond the rows that changed themselves.
void KestrelListBox::Impl::repaintAfter(const ListGeometry& before, int topBefore)
{
    const ListGeometry parts = geometry();
    if (parts == before && top == topBefore)
        return;
    if (!(parts.body == before.body) || top != topBefore)
        box.Invalidate(boundsOf(parts.body, before.body));
    if (exclusive && top != topBefore)
        box.Invalidate(boundsOf(parts.mark(0), parts.mark(parts.visibleRows - 1)));
    if (!isEmpty(parts.scroll))
        box.Invalidate(parts.scroll);
}
