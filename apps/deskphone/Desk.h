#pragma once

#include "DisplayAPI/Ticker.h"
#include "apps/deskphone/About.h"
#include "apps/deskphone/CallBacks.h"
#include "apps/deskphone/CallDetails.h"
#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/CallLogs.h"
#include "apps/deskphone/CallPopups.h"
#include "apps/deskphone/CallRecorder.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/CallStatus.h"
#include "apps/deskphone/Calls.h"
#include "apps/deskphone/ContactDeeds.h"
#include "apps/deskphone/ContactForm.h"
#include "apps/deskphone/ContactSearch.h"
#include "apps/deskphone/Contacts.h"
#include "apps/deskphone/DisturbScreen.h"
#include "apps/deskphone/ForwardingScreen.h"
#include "apps/deskphone/Handset.h"
#include "apps/deskphone/Home.h"
#include "apps/deskphone/LineOverview.h"
#include "apps/deskphone/LineStatus.h"
#include "apps/deskphone/NetworkSettings.h"
#include "apps/deskphone/Notes.h"
#include "apps/deskphone/Services.h"
#include "apps/deskphone/Settings.h"
#include "apps/deskphone/ShortDials.h"
#include "apps/deskphone/Telephone.h"
#include "apps/deskphone/TransferQuestions.h"

#include <string>
#include <vector>

namespace deskphone {

class Memory;

/// All screens of the telephone and how they hang together. Make and delete it on the GUI thread.
class Desk {
public:
    /// Begins in the language with this code. The calls are `telephony`'s, past ones and contacts the memory's; both
    /// outlive it.
    Desk(DisplayAPI::Display& display, exchange::Telephony& telephony, const std::string& language, Memory& memory);

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
    CallHistory& mHistory;
    Calls mCalls;
    CallRecorder mRecorder;
    CallBacks mCallBacks;
    CallStatus mStatus; ///< before the screen: lines that go have to go before it does
    TransferQuestions mTransfers;
    CallPopups mPopups;
    CallScreen mCall;
    Handset mHandset;
    CallDetails mDetails;
    Home mHome;
    LineStatus mLineStatus;
    CallLogs mCallLogs;
    ContactForm mContactForm;
    NewContact mNewContact;
    ContactDeeds mContactDeeds;
    Contacts mContacts;
    ContactSearch mContactSearch;
    LineOverview mLines;
    ShortDials mShortDials;
    Settings mSettings;
    DisturbScreen mDisturb;
    ForwardingScreen mForwarding;
    NetworkSettings mNetwork;
    Notes mNotes;
    Services mServices;
    About mAbout;
};

} // namespace deskphone
