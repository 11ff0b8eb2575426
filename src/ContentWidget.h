#pragma once

#include "ContentWidgetIfc.h"
#include "widgets/GUIEventIfc.h"

class PegWindow;

namespace DisplayAPI {

class DisplayPrivate;

/// The content widget of the real toolkit. It owns its window and its system window, whose events it hears. Geometry
/// and stacking are fixed on this telephone: those operations do nothing.
class ContentWidget : public ContentWidgetIfc, public GUIEventIfc {
public:
    ContentWidget();
    ContentWidget(const ContentWidget&) = delete;
    ContentWidget& operator=(const ContentWidget&) = delete;
    ~ContentWidget() override;

    void setGeometry(const PegRect& area) override;
    void show() override;
    void hide() override;
    void showMaximized() override;
    void move(int x, int y) override;
    void raise() override;
    void activateWindow() override;
    int width() const override;
    int height() const override;
    PegThing* getPegWidget() override;
    const PegThing* getConstPegWidget() const override;
    void setSystemWindowSize(int lines) override;
    void setSystemWindowText(int line, std::string text) override;
    void setSystemWindowTop(int top, bool separator, bool redraw) override;
    void showTimeInSystemWindow(bool on) override;
    void setTimeInSystemWindow(int hours, int minutes, int seconds) override;
    void setTimer(std::string text) override;
    void stopTimer() override;
    SystemWindow* getSystemWindow() override;
    void setEventHandler(GUIEventIfc* handler) override;

    /// The caption has changed by itself: takes it over as line 0 and tells the display.
    void OnChange(PegMessage message, std::string text) override;
    void OnLeft(PegMessage message) override;
    void OnRight(PegMessage message) override;
    void OnUp(PegMessage message) override;
    void OnDown(PegMessage message) override;
    void OnOK(PegMessage message) override;

    void showLine(bool on);
    std::string getSystemWindowText(int line) const;
    void setSystemWindowAsPopup(bool popup);

    void setSWCurrentNumLines(int lines) { mCurrentNumLines = lines; }
    int getSWCurrentNumLines() const { return mCurrentNumLines; }

    /// Not owned.
    void setParent(DisplayPrivate* parent) { mParent = parent; }
    DisplayPrivate* getParent() const { return mParent; }

private:
    PegWindow* mWindow;
    SystemWindow* mSystemWindow;
    int mCurrentNumLines = 0;
    DisplayPrivate* mParent = nullptr;
};

} // namespace DisplayAPI
