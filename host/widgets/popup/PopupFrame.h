#pragma once

#include "host/Phone.h"
#include "host/lcd/Painter.h"

namespace host {

/// The panel that runs, or that would.
PanelSize runningPanel();

/// Whether it is the one of two lines, without room for frames.
bool hasTwoLines();
constexpr int BIG_LINE_HEIGHT = 21; ///< of that panel

/// What a frame takes from the area on each side.
constexpr int FRAME_WIDTH = 3;

/// Fills the area with a framed box that stands clear of what is around it and casts a shadow; returns its inside.
PegRect drawPopupFrame(PegPainter& painter, const PegRect& area);

} // namespace host
