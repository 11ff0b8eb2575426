#pragma once

#include "apps/exchange/Call.h"

#include <map>

namespace exchange {

/// Shows beside the panel how the calls stand: the lamp blinks while it rings here and is lit while a call is held by
/// me; the handset is lifted from the answer or the first digit to the end. Hand on each event to it, on one thread.
class SignedCalls {
public:
    SignedCalls() = default;
    SignedCalls(const SignedCalls&) = delete;
    SignedCalls& operator=(const SignedCalls&) = delete;

    /// Leaves the lamp dark and the handset down.
    ~SignedCalls();

    void callChanged(const CallEvent& event);

private:
    std::map<CallId, CallState> mCalls;
};

} // namespace exchange
