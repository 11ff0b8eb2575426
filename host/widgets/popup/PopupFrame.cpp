#include "host/widgets/popup/PopupFrame.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"

namespace host {

namespace {

constexpr int HALO = FRAME_WIDTH - 1; ///< outside the frame; the shadow lies in it

PegRect shrunk(const PegRect& area, int by)
{
    return rectAt(area.left + by, area.top + by, widthOf(area) - 2 * by, heightOf(area) - 2 * by);
}

} // namespace

PanelSize runningPanel()
{
    const Lcd* const lcd = Lcd::current();
    return lcd == nullptr ? panelSize() : PanelSize{lcd->width(), lcd->height()};
}

bool hasTwoLines()
{
    return runningPanel().height / BIG_LINE_HEIGHT <= 2;
}

PegRect drawPopupFrame(PegPainter& painter, const PegRect& area)
{
    const PegRect box = shrunk(area, HALO);
    painter.fill(area, Level::BARE);
    painter.fill(rectAt(box.left + HALO, box.bottom + 1, widthOf(box) - HALO + 1, 1), Level::MIDDLE);
    painter.fill(rectAt(box.right + 1, box.top + HALO, 1, heightOf(box) - HALO + 1), Level::MIDDLE);
    painter.frame(box, Level::DARK);
    return shrunk(box, 1);
}

} // namespace host
