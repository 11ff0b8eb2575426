#pragma once

namespace DisplayAPI {

class GuiRequestEvent;
class Widget;

/// A record for Widget::postEventHelper(), which never frees it on the GUI thread. Made in a place of its own so that a
/// leak checker can tell these from records that are lost by mistake.
GuiRequestEvent* newHelperRecord(Widget* requester, int code);

/// Says on stderr that the class at `file` and `line` does not know the request's code. For classes that leave such a
/// request uncompleted: who waits for it goes on waiting.
void reportUnknownRequest(const char* file, int line, const GuiRequestEvent& request);

} // namespace DisplayAPI
