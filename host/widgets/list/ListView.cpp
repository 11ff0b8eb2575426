#include "host/widgets/list/ListView.h"

#include "host/lcd/Geometry.h"

#include <algorithm>

namespace host {

namespace {

/// Empty where there are not so many rows.
PegRect areaOfRow(const ListView& view, std::size_t index)
{
    return index < view.rows.size() ? view.areaWithMark(view.rows[index]) : PegRect{0, 0, -1, -1};
}

bool isSameRow(const ListView& before, const ListView& after, std::size_t index)
{
    return index < before.rows.size() && index < after.rows.size() && before.rows[index] == after.rows[index];
}

PegRect areaOfRows(const ListView& view)
{
    return boundsOf(view.parts.body, view.parts.marks);
}

void repaint(PegThing& list, const PegRect& before, const PegRect& after)
{
    for (const PegRect& area : {before, after}) {
        if (!isEmpty(area))
            list.Invalidate(area);
    }
}

void repaintRows(PegThing& list, const ListView& before, const ListView& after)
{
    for (std::size_t i = 0; i < std::max(before.rows.size(), after.rows.size()); ++i) {
        if (!isSameRow(before, after, i))
            repaint(list, areaOfRow(before, i), areaOfRow(after, i));
    }
}

} // namespace

const RowInView* ListView::find(const KestrelListBoxItem* item) const
{
    const auto found = std::find_if(rows.begin(), rows.end(), [=](const RowInView& row) { return row.item == item; });
    return found != rows.end() ? &*found : nullptr;
}

PegRect ListView::areaWithMark(const RowInView& row) const
{
    return row.hasMark ? boundsOf(row.area, parts.mark(row.area)) : row.area;
}

void repaintDifferences(PegThing& list, const ListView& before, const ListView& after)
{
    if (!(before.parts == after.parts))
        repaint(list, before.parts.scroll, after.parts.scroll);
    if (before.parts.body == after.parts.body)
        repaintRows(list, before, after);
    else
        repaint(list, areaOfRows(before), areaOfRows(after));
}

} // namespace host
