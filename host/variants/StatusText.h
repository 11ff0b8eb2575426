#pragma once

#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/widgets/status/StatusStrip.h"

#include <string>
#include <vector>

namespace DisplayAPI {

/// The status lines of a screen that shows them itself; empty where none is in sight.
inline std::string statusAsText(const host::StatusStrip& status, const std::vector<DisplayAPIUtils::Rect>& visible)
{
    std::string lines;
    for (int line = 0; line < status.lines(); ++line)
        lines += screen::textLine(line, status.text(line));
    return !lines.empty() && isVisible(status.Area(), visible) ? screen::subItem("SystemWindow", lines) : "";
}

} // namespace DisplayAPI
