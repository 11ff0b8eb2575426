#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "toolkit/PegWindow.h"
#include "utilities/Rect.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace doubles {

/// The private side of a screen or popup: a real widget, and a recorder's line for whatever the display does to it
/// ("menu: gainOwnership()").
class ScreenPrivate : public DisplayAPI::DisplayablePrivate {
public:
    enum Kind { SCREEN, POPUP };

    /// Owns the widget.
    ScreenPrivate(std::string name, Kind kind, PegThing* widget = new PegWindow);
    ~ScreenPrivate() override;

    PegThing* getWidget() override { return mWidget; }
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    bool hideOldWidgetOnFocusGained() override { return mKind == SCREEN; }
    void connectDisplayChangedSignal(DisplayAPI::DisplayPrivateIfc* display) override;
    void setSysWindowSize(int lines) override;
    void setSysWindowText(std::string line, int index) override;
    bool hasSystemWindow() override { return drawsSystemWindow; }
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    bool ownsWidget() const { return mOwnership.hasOwnership(); }
    DisplayAPI::DisplayPrivateIfc* attachedTo() const { return display(); }

    /// From here on the side has no widget.
    void dropWidget();

    bool drawsSystemWindow = false;
    std::optional<std::string> text;              ///< what it reads as; what every displayable does where it is not set
    std::vector<DisplayAPIUtils::Rect> lastRects; ///< what of it was last asked for

    /// What it does, once, when the display does to it what the name says: "show", "lostFocus", "gainOwnership",
    /// "releaseOwnership", "disconnect", "serialise".
    std::map<std::string, std::function<void()>> reactions;

private:
    template <typename... Args>
    void note(const char* call, const Args&... args);
    void react(const std::string& call);

    std::string mName;
    Kind mKind;
    PegThing* mWidget;
    DisplayAPI::OwnershipDelegate<PegThing> mOwnership{&mWidget, true};
};

} // namespace doubles
