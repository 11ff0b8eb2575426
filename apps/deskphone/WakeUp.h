#pragma once

#include "DisplayAPI/Timer.h"
#include "apps/deskphone/Ear.h"
#include "kit/Text.h"

#include <string>

namespace deskphone {

class CallHistory;
class Telephone;

/// A service that calls a minute after it was asked to. Nobody can answer it: this telephone does not ring yet.
class WakeUp {
public:
    WakeUp(Telephone& telephone, CallHistory& history);

    /// A call that is still to come comes a minute from now. On the threads that answer the user.
    void order(const std::string& party, const std::string& number);

    /// It does not call after this. Not on the GUI thread.
    void stopListening();

private:
    void call();

    Telephone& mTelephone;
    CallHistory& mHistory;
    std::string mParty; ///< this and the next are of the threads that answer the user
    std::string mNumber;
    DisplayAPI::kit::Text mOrdered;
    DisplayAPI::kit::Text mMissed;
    Ear mDue;
    DisplayAPI::Timer mTimer;
};

} // namespace deskphone
