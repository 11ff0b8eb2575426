#include "toolkit/PegWindow.h"

#include "host/lcd/Painter.h"

PegWindow::PegWindow(std::uint16_t style) : PegThing(0, style)
{
    Type(TYPE_WINDOW);
}

void PegWindow::Draw(PegPainter& painter)
{
    painter.fill(Area(), host::Level::BARE);
}
