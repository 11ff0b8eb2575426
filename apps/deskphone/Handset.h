#pragma once

#include "apps/deskphone/Ear.h"

namespace deskphone {

class Calls;

/// The handset: lifting it answers the call that rings, else resumes the one that waits; putting it down ends the one
/// that the user speaks on, or all of a conference. Make and delete it on the GUI thread.
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

    Calls& mCalls;
    Ear mMoved;
};

} // namespace deskphone
