#pragma once

#include "DisplayAPI/DisplayablePrivate.h"

namespace DisplayAPI {

/// What the GUI-thread sides of all popups have in common: a widget that lies over a screen, and status lines of their
/// own above it. GUI thread only.
class DISPLAYAPI_EXPORT PopupSide : public DisplayablePrivate {
public:
    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    bool hideOldWidgetOnFocusGained() override;
    void connectDisplayChangedSignal(DisplayPrivateIfc* display) override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    void setSysWindowSize(int lines) override;
    void setSysWindowText(std::string text, int line) override;
    bool hasSystemWindow() override;

    struct Popup; ///< the data, which the derived class has

protected:
    virtual Popup& popup() = 0;
};

} // namespace DisplayAPI
