#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/edit/EditField.h"
#include "host/widgets/edit/EditRow.h"

namespace host {

void EditField::fillGround(PegPainter& painter) const
{
    painter.fill(Area(), mBlinks ? Level::DARK : Level::BARE);
}

void EditField::drawHint(PegPainter& painter, const PegRect& cell) const
{
    painter.text(cell, hint(), {.font = font(), .align = startAlign(), .inverted = mBlinks});
}

void EditField::drawMode(PegPainter& painter, const PegRect& cell) const
{
    if (showsMode() && hasFocus() && !symbols().isOpen())
        painter.text(cell, nameOf(mode()), {.font = font(), .align = endAlign(), .inverted = mBlinks});
}

void EditField::drawCursor(PegPainter& painter, const EditRow& row, const PegRect& cell, const Caret& caret,
                           int gone) const
{
    if (!hasFocus())
        return;
    if (edited().isChoosing() && caret.at > 0)
        row.drawCandidate(painter, cell, caret, gone, ink());
    else
        row.drawCaret(painter, cell, caret, gone, ink());
}

} // namespace host
