#pragma once

#include "DisplayAPI/Export.h"

#include <string>
#include <vector>

class PegThing;

namespace DisplayAPIUtils {
class Rect;
}

namespace DisplayAPI {

class DisplayablePrivate;
class DisplayPrivateIfc;

/// The GUI-thread side of a displayable, as the display sees it. GUI thread only.
///
/// Base it virtually: a private side that is both a DisplayablePrivate and a `...PrivateIfc` has one object of this.
/// Not deleted through this interface.
class DISPLAYAPI_EXPORT DisplayablePrivateIfc {
public:
    /// The toolkit widget; null where there is none yet.
    virtual PegThing* getWidget() = 0;

    /// The widget has been given to the presentation manager, which will delete it.
    virtual void releaseOwnership() = 0;

    /// The widget has been taken back; this side deletes it again.
    virtual void gainOwnership() = 0;

    /// The displayable has been put on screen.
    virtual void show() = 0;

    /// Another displayable has taken the user's attention.
    virtual void lostFocus() = 0;

    /// True for a full screen, which replaces the whole stack; false for a popup, which stacks on top.
    virtual bool hideOldWidgetOnFocusGained() = 0;

    /// Where the widget stands among others; 0 where that does not matter.
    virtual int widgetPosition() = 0;

    /// Attaches to a display, which is not owned; null detaches.
    virtual void connectDisplayChangedSignal(DisplayPrivateIfc* display) = 0;

    /// What is shown, as text.
    virtual std::string serialise() = 0;
    virtual std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) = 0;

    /// Tells the attached display that `dismissed` has closed itself.
    virtual void widgetDismissed(DisplayablePrivate* dismissed) = 0;

    /// Whether the user can work with it.
    virtual void enable(bool on) = 0;

protected:
    ~DisplayablePrivateIfc() = default;
};

} // namespace DisplayAPI
