#pragma once

#include "host/lcd/Painter.h"
#include "host/widgets/desktop/DesktopState.h"

namespace host {

/// Where the parts of a desktop stand. On the small panel the lines keep clear of the keys' labels, which have the
/// whole height.
struct DesktopParts {
    PegRect time;      ///< and the icon after it
    PegRect mode;      ///< on the small panel what the date leaves of its line
    PegRect icons;     ///< on the full panels they leave the rest of their line to the date
    PegRect date;      ///< the whole line
    PegRect extension; ///< the whole line; on the small panel with the logo behind it
    PegRect logo;
    PegRect labels;  ///< a column
    int labelHeight; ///< with the gap below it
    int labelGap;

    PegRect label(int key) const;
};

DesktopParts desktopParts(const PegRect& area, int keys);

/// The day's name and the date.
std::string wholeDate(const DesktopState& state);

/// Icons after the time that there are.
constexpr int POST_TIME_ICONS = 4;

/// Paints all of the area.
void drawDesktop(PegPainter& painter, const PegRect& area, const DesktopState& state);

} // namespace host
