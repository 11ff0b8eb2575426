#pragma once

#include "apps/deskphone/Dialer.h"
#include "apps/deskphone/Ear.h"

namespace deskphone {

class Calls;
class CallScreen;
struct PhoneCall;

/// The handset: putting it down ends the call that the user speaks on or dials, or all of a conference; lifting it
/// answers the call that rings, of several the latest, else resumes the one that waits, and where there is none asks
/// for a number, until it is put down again. Make and delete it on the GUI thread.
class Handset {
public:
    Handset(Telephone& telephone, Calls& calls, CallScreen& call);
    Handset(const Handset&) = delete;
    Handset& operator=(const Handset&) = delete;
    ~Handset();

    /// Nothing is heard after this. Not on the GUI thread.
    void stopListening();

private:
    void moved();
    void answer(const PhoneCall& call);
    void putDown(const PhoneCall& current);
    void offerDialer();

    Telephone& mTelephone;
    Calls& mCalls;
    Dialer mDialer;
    Ear mMoved;
};

} // namespace deskphone
