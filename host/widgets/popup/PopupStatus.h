#pragma once

#include "host/widgets/status/StatusStrip.h"
#include "toolkit/PegWindow.h"

namespace host {

/// The status lines of a popup on a graphic panel: at the panel's top, above the popup's frame, on screen as long as
/// the popup is.
class PopupStatus : public PegWindow {
public:
    PopupStatus();
    PopupStatus(const PopupStatus&) = delete;
    PopupStatus& operator=(const PopupStatus&) = delete;
    ~PopupStatus() override { show(false); }

    StatusStrip& strip() { return *mStrip; }

    void show(bool on);

private:
    void place();

    StatusStrip* mStrip;
    bool mIsWanted = false;
};

} // namespace host
