#pragma once

#include "apps/deskphone/Ear.h"

namespace deskphone {

class Calls;
struct PhoneCall;

/// The handset: putting it down ends the call that the user speaks on or dials, or all of a conference; lifting it
/// answers the call that rings, of several the latest, else resumes the one that waits. Make and delete it on the GUI
/// thread.
class Handset {
public:
    explicit Handset(Calls& calls);
    Handset(const Handset&) = delete;
    Handset& operator=(const Handset&) = delete;
    ~Handset();

    /// Nothing is heard after this. Not on the GUI thread.
    void stopListening();

private:
    void moved();
    void putDown(const PhoneCall& current);

    Calls& mCalls;
    Ear mMoved;
};

} // namespace deskphone
