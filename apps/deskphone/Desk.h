#pragma once

#include "apps/deskphone/About.h"
#include "apps/deskphone/CallLog.h"
#include "apps/deskphone/Contacts.h"
#include "apps/deskphone/Menu.h"
#include "apps/deskphone/Settings.h"

#include <vector>

namespace deskphone {

/// All screens of the telephone and how they hang together.
class Desk {
public:
    explicit Desk(DisplayAPI::Display& display);

    /// Shows the main menu.
    void open() { mMainMenu.open(); }

    /// Ends all that the screens do on other threads. Not on the GUI thread; its loop has to run meanwhile.
    void close();

private:
    std::vector<Screen*> screens();

    Menu mMainMenu;
    Menu mCallLogs;
    CallLog mMissed;
    CallLog mReceived;
    CallLog mDialled;
    Contacts mContacts;
    Settings mSettings;
    About mAbout;
};

} // namespace deskphone
