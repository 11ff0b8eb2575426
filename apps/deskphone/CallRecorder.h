#pragma once

#include "DisplayAPI/Command.h"
#include "apps/deskphone/Calls.h"

namespace deskphone {

class CallHistory;
class Telephone;

/// Puts each call that is over into the history, and tells the user how it has ended. On the threads that answer the
/// user.
class CallRecorder {
public:
    CallRecorder(Telephone& telephone, Calls& calls, CallHistory& history);

private:
    void note(const PhoneCall& call);
    void keep(const PhoneCall& call);
    std::string failure(const PhoneCall& call);
    std::string epilogue(const PhoneCall& call);
    std::string said(const std::string& key, const std::string& argument = {});

    Telephone& mTelephone;
    CallHistory& mHistory;
};

} // namespace deskphone
