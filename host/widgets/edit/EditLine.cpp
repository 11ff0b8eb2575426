#include "host/widgets/edit/EditLine.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"
#include "host/widgets/edit/EditRow.h"
#include "host/widgets/edit/Utf16.h"

#include <algorithm>

namespace host {

int EditLine::heightFor(int) const
{
    return lineHeight();
}

EditLine::Parts EditLine::parts() const
{
    const PegRect& line = Area();
    Strip strip(rectAt(line.left + INSET, line.top + 1, widthOf(line) - 2 * INSET, heightOf(line) - 2));
    const PegRect mode = strip.fromEnd(showsMode() ? MODE_WIDTH : 0);
    return {strip.rest(), mode};
}

std::optional<Caret> EditLine::caretBeside(bool right) const
{
    const TextOrder order(edited().shown());
    return right ? order.toTheRight(edited().caret()) : order.toTheLeft(edited().caret());
}

bool EditLine::isReadFromTheRight() const
{
    return TextOrder(edited().shown()).isFromTheRight();
}

void EditLine::Draw(PegPainter& painter)
{
    const Parts where = parts();
    fillGround(painter);
    painter.frame(Area(), hasFocus() ? Level::DARK : Level::MIDDLE);
    if (symbols().isOpen())
        return symbols().draw(painter, boundsOf(where.text, where.mode), font());
    if (edited().text().empty())
        drawEmpty(painter, where.text);
    else
        drawText(painter, where.text);
    drawMode(painter, where.mode);
}

void EditLine::drawText(PegPainter& painter, const PegRect& cell)
{
    const EditRow row(edited().shown(), font());
    keepInSight(row, widthOf(cell));
    painter.scrolledText(cell, shown(), look(), mGone, widthOf(cell));
    drawCursor(painter, row, cell, edited().caret(), mGone);
}

/// It moves no further than it has to, and leaves no room empty behind the text.
void EditLine::keepInSight(const EditRow& row, int width)
{
    const int caret = row.distanceOf(edited().caret());
    const auto goneBefore = [width](int end) { return std::max(0, end + EditRow::CARET_WIDTH - width); };
    mGone = std::clamp(std::min(mGone, goneBefore(row.width())), goneBefore(caret), std::max(0, caret));
}

/// The hint, clear of the cursor.
void EditLine::drawEmpty(PegPainter& painter, const PegRect& cell) const
{
    Strip strip(cell);
    strip.fromStart(EditRow::CARET_WIDTH);
    drawHint(painter, strip.rest());
    drawCursor(painter, EditRow({}, font()), cell, {}, 0);
}

} // namespace host
