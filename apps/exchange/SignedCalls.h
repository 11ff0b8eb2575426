#pragma once

#include "apps/exchange/Call.h"

#include <map>
#include <mutex>

namespace exchange {

/// Shows beside the panel how the calls stand: the lamp blinks while it rings here and is lit while a call is held by
/// me; the handset is lifted from the answer or the first digit to the end. Hand on each event to it. Safe from any
/// thread.
class SignedCalls {
public:
    SignedCalls() = default;
    SignedCalls(const SignedCalls&) = delete;
    SignedCalls& operator=(const SignedCalls&) = delete;

    /// Leaves the lamp dark and the handset down.
    ~SignedCalls();

    void callChanged(const CallEvent& event);

    /// The handset is lifted without a call.
    void setLifted(bool on);

private:
    void show() const;

    std::mutex mMutex; ///< guards what follows; held while it is shown, so that what is known last is shown last
    std::map<CallId, CallState> mCalls;
    bool mIsLifted = false;
};

} // namespace exchange
