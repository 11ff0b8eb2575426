#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/PopupPlayerPrivateIfc.h"

namespace DisplayAPI {

/// A player popup with nothing to show, on every panel. GUI thread only.
class PopupPlayerPrivate : public DisplayablePrivate, public PopupPlayerPrivateIfc {
public:
    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;

    /// Nobody else has the widget that is not there.
    virtual bool hasOwnership() const;
};

} // namespace DisplayAPI
