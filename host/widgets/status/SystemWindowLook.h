#pragma once

#include "host/widgets/status/StatusLines.h"

namespace host {

/// What of a system window decides where it stands and what it looks like.
struct SystemWindowState {
    int lines = 0; ///< that take room
    int top = 0;
    bool popup = false;
    bool separator = false;
};

/// The area that it takes on the current panel; empty without lines.
PegRect systemWindowArea(const SystemWindowState& state);

/// A framed popup shows none.
bool showsTime(const SystemWindowState& state);

/// REQUIRES: `area` is what systemWindowArea() says.
void drawSystemWindow(PegPainter& painter, const PegRect& area, const SystemWindowState& state,
                      const StatusLines& lines, const StatusTime& time);

} // namespace host
