#pragma once

#include "toolkit/PegWindow.h"

#include <memory>
#include <string>

class GUIEventIfc;

/// The status lines at the top of the screen, or a popup with two of them: up to six, line 0 is the caption. Blank
/// lines at the end take no room. Never takes the focus. GUI thread only.
class SystemWindow : public PegWindow {
public:
    static constexpr int MAX_LINES = 6;

    SystemWindow();
    ~SystemWindow() override;

    int Message(const PegMessage& message) override;
    void Draw(PegPainter& painter) override;

    /// Told of what the window does by itself. Not owned; null reports to nobody.
    void setEventHandler(GUIEventIfc* handler);
    GUIEventIfc* eventHandler() const;

    /// Cut to 0 to MAX_LINES.
    void setSystemWindowSize(int lines);

    /// Lines outside 0 to 5 are ignored. The text is UTF-8.
    void setSystemWindowText(int line, std::string text);

    /// Empty outside 0 to 5.
    std::string getSystemWindowText(int line) const;

    /// Pixels from the panel's top, cut into the range of the coordinates. The line that separates it from the screen,
    /// and whether it is painted again at once, go with it.
    void setSystemWindowTop(int top, bool separator, bool redraw);

    /// A popup stands over the screen, with a frame where the panel has room for one, and shows two lines at most.
    void setAsPopup(bool popup);
    bool isPopup() const;

    /// Whether the line that separates the window from the screen is shown.
    void showLine(bool on);

    /// The clock stands at the end of line 0, which it keeps visible unless the window is a popup. It goes on from what
    /// it was set to; numbers out of range are cut into it.
    void showTime(bool on);
    void setTime(int hours, int minutes, int seconds);

    /// A call timer takes the clock's place until it is stopped: "HH:MM:SS" and "MM:SS" count up from there, any other
    /// text stands still. An empty text stops it.
    void setTimer(const std::string& text);
    void stopTimer();

protected:
    void VisibilityChanged() override;

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};
