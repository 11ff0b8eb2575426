#pragma once

#include "host/lcd/Painter.h"
#include "toolkit/PString.h"

namespace host {

/// The title of a screen from which the left key goes back, which an arrow says.
int titleBarHeight();
void drawTitleBar(PegPainter& painter, const PegRect& bar, const PegString& title);

} // namespace host
