#include "host/variants/telephony/ForwardRow.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Painter.h"

namespace DisplayAPI {

void ForwardRow::setChecked(bool on)
{
    if (on == mChecked)
        return;
    mChecked = on;
    changed();
    tellChanged();
}

void ForwardRow::showMark(bool on)
{
    mShowsMark = on;
    changed();
}

/// Beside the first line.
void ForwardRow::drawMark(PegPainter& painter, const PegRect& cell, bool inverted) const
{
    const host::Level ink = host::inkOf({.inverted = inverted, .dimmed = look().dimmed});
    const int lineHeight = host::heightOf(cell) / static_cast<int>(look().lines.size());
    const PegRect place = host::rectAt(cell.left, cell.top, host::widthOf(cell), lineHeight);
    painter.icon(mChecked ? host::icons::BOX_CHECKED : host::icons::BOX, place, ink);
}

} // namespace DisplayAPI
