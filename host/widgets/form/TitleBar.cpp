#include "host/widgets/form/TitleBar.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Icons.h"
#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"
#include "host/widgets/form/Field.h"

namespace host {

namespace {

constexpr int TITLE_RULE = 1;
constexpr int TITLE_INSET = 4;
constexpr int BACK_WIDTH = 14;

} // namespace

int titleBarHeight()
{
    return hasTwoLines() ? BIG_LINE_HEIGHT : 20;
}

void drawTitleBar(PegPainter& painter, const PegRect& bar, const PegString& title)
{
    painter.fill(bar, Level::LIGHT);
    painter.fill(rectAt(bar.left, bar.bottom, widthOf(bar), TITLE_RULE), Level::DARK);
    Strip strip(rectAt(bar.left + TITLE_INSET, bar.top, widthOf(bar) - 2 * TITLE_INSET, heightOf(bar) - TITLE_RULE));
    const PegRect back = strip.fromEnd(BACK_WIDTH);
    painter.icon(icons::BACK, back, Level::DARK);
    painter.text(strip.rest(), title, {.font = Field::boldFont(), .align = startAlign()});
}

} // namespace host
