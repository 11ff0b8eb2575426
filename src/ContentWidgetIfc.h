#pragma once

#include <string>

class GUIEventIfc;
class PegThing;
struct PegRect;
class SystemWindow;

namespace DisplayAPI {

/// What frames every screen: a background window and the system window. GUI thread only.
class ContentWidgetIfc {
public:
    virtual ~ContentWidgetIfc() = default;

    virtual void setGeometry(const PegRect& area) = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual void showMaximized() = 0;
    virtual void move(int x, int y) = 0;
    virtual void raise() = 0;
    virtual void activateWindow() = 0;
    virtual int width() const = 0;
    virtual int height() const = 0;
    virtual PegThing* getPegWidget() = 0;
    virtual const PegThing* getConstPegWidget() const = 0;
    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, std::string text) = 0;
    virtual void setSystemWindowTop(int top, bool separator, bool redraw) = 0;
    virtual void showTimeInSystemWindow(bool on) = 0;
    virtual void setTimeInSystemWindow(int hours, int minutes, int seconds) = 0;
    virtual void setTimer(std::string text) = 0;
    virtual void stopTimer() = 0;
    virtual SystemWindow* getSystemWindow() = 0;
    virtual void setEventHandler(GUIEventIfc* handler) = 0;
};

} // namespace DisplayAPI
