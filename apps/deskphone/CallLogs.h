#pragma once

#include "DisplayAPI/TabScreen.h"
#include "apps/deskphone/CallBackPage.h"
#include "apps/deskphone/CallLog.h"
#include "apps/deskphone/Place.h"
#include "kit/Subscription.h"

#include <deque>
#include <optional>

namespace deskphone {

class CallScreen;
class CallDetails;
class CallHistory;
class Telephone;

/// The call logs, one behind the other: all calls, those missed, received, dialled and
/// forwarded, and the call-backs.
class CallLogs : public Place {
public:
    CallLogs(Telephone& telephone, Place& parent, CallHistory& history, CallBacks& callBacks, CallScreen& call,
             CallDetails& details);

    /// With the latest of all calls, whichever were shown last.
    void open() override;
    void stopListening() override;
    void stopWorking() override;

private:
    void goBack();

    Telephone& mTelephone;
    Place& mParent;
    CallHistory& mHistory;
    std::deque<CallLog> mPages; ///< before the tabs, which show their titles
    std::optional<CallBackPage> mCallBacks;
    DisplayAPI::TabScreen mTabs;
    DisplayAPI::kit::Subscription mCommands;
};

} // namespace deskphone
