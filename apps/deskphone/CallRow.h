#pragma once

#include "DisplayAPI/CallConnectedItem.h"
#include "apps/deskphone/Calls.h"

#include <functional>
#include <string>

class TranslationInfo;

namespace deskphone {

/// A call as a row of a list, which owns the row: state, party, the state's words, who has forwarded it, and how long
/// it has lasted. On the threads that answer the user.
class CallRow {
public:
    /// The words for a state, which live as long as the row.
    using Words = std::function<TranslationInfo*(exchange::CallState state)>;

    CallRow(const PhoneCall& call, Words words);

    exchange::CallId call() const { return mCall; }
    DisplayAPI::CallConnectedItem* item() const { return mItem; }

    /// Changes what has changed.
    void update(const PhoneCall& call);

private:
    void setState(const PhoneCall& call);

    exchange::CallId mCall;
    Words mWords;
    DisplayAPI::CallConnectedItem* mItem;
    std::string mParty;
    exchange::CallState mState = exchange::CallState::ENDED; ///< none that a row shows
    bool mIsTimed = false;
    exchange::Party mForwardedBy = {};
};

} // namespace deskphone
