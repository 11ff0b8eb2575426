#pragma once

#include "toolkit/PegWindow.h"

#include <array>
#include <string>

class GUIEventIfc;

/// The status lines at the top of the screen: up to six, line 0 is the caption. GUI thread only.
class SystemWindow : public PegWindow {
public:
    static constexpr int MAX_LINES = 6;

    SystemWindow();
    ~SystemWindow() override;

    void Draw(PegPainter& painter) override;

    /// Not owned; null reports to nobody.
    void setEventHandler(GUIEventIfc* handler);

    void setSystemWindowSize(int lines);

    /// Lines outside 0 to 5 are ignored. The text is UTF-8.
    void setSystemWindowText(int line, const std::string& text);
    std::string getSystemWindowText(int line) const;

    void setSystemWindowTop(int top, bool separator, bool redraw);
    void setAsPopup(bool popup);
    bool isPopup() const;

    /// Whether the line that separates the window from the screen is shown.
    void showLine(bool on);

    void showTime(bool on);
    void setTime(int hours, int minutes, int seconds);
    void setTimer(const std::string& text);
    void stopTimer();

private:
    void place();

    GUIEventIfc* mHandler = nullptr;
    std::array<std::string, MAX_LINES> mLines;
    int mSize = 0;
    int mTop = 0;
    bool mPopup = false;
    bool mSeparator = false;
    bool mTimeShown = false;
    std::array<int, 3> mTime{};
    std::string mTimer;
};
