#pragma once

#include "DisplayAPI/Ticker.h"
#include "apps/deskphone/About.h"
#include "apps/deskphone/Call.h"
#include "apps/deskphone/CallDetails.h"
#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/CallLogs.h"
#include "apps/deskphone/Contacts.h"
#include "apps/deskphone/Home.h"
#include "apps/deskphone/Services.h"
#include "apps/deskphone/Settings.h"
#include "apps/deskphone/Telephone.h"

#include <filesystem>
#include <string>
#include <vector>

namespace deskphone {

/// All screens of the telephone and how they hang together. Make and delete it on the GUI thread.
class Desk {
public:
    /// Begins in the language with this code. Keeps its calls in the folder `state`; without one it begins with some,
    /// and keeps none.
    Desk(DisplayAPI::Display& display, const std::string& language, const std::filesystem::path& state);

    /// First ends all that the screens do on other threads. REQUIRES: the display's loop does not run.
    ~Desk();

    /// Shows the home screen. REQUIRES: the display is shown.
    void open();

private:
    void close();
    std::vector<Place*> places();

    Telephone mTelephone;
    std::string mComplaint; ///< about the first language
    Text mNewsText;
    DisplayAPI::Ticker mNews;
    CallHistory mHistory;
    Call mCall;
    CallDetails mDetails;
    Home mHome;
    CallLogs mCallLogs;
    Contacts mContacts;
    Settings mSettings;
    Services mServices;
    About mAbout;
};

} // namespace deskphone
