#pragma once

#include <string>

/// The system window as it stands in the text of the screen.
namespace DisplayAPI {

/// Caption and line 1, whatever they are.
std::string systemWindowObject(const std::string& caption, const std::string& line);

/// The same without what is absent: empty, or the blank line of the small panel. Where only the line is there its
/// sub-item stands alone, without an object around it: observers rely on that.
std::string presentSystemWindowObject(const std::string& caption, const std::string& line);

/// The first sub-item's text in the screen's, which holds a context menu of the small panel; empty where there is none.
std::string firstMenuLine(const std::string& text);

/// Whether the screen's text holds a context menu of the small panel.
bool holdsSmallContextMenu(const std::string& text);

} // namespace DisplayAPI
