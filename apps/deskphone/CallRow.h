#pragma once

#include "DisplayAPI/CallConnectedItem.h"
#include "apps/deskphone/Calls.h"

#include <functional>
#include <memory>
#include <string>

class TranslationInfo;

namespace deskphone {

/// What stands for the call's state; the call may be one of a conference.
DisplayAPI::CallConnectedItem::CallStateIcon iconOf(const PhoneCall& call);

/// A call as a row of a list or of a conference: state, party, the state's words, who has forwarded it, and how long it
/// has lasted. It owns the item, which leaves its list before. On the threads that answer the user.
class CallRow {
public:
    /// The words for the state of a call, which live as long as the row.
    using Words = std::function<TranslationInfo*(const PhoneCall& call)>;

    CallRow(const PhoneCall& call, Words words);

    exchange::CallId call() const { return mCall; }
    DisplayAPI::CallConnectedItem* item() const { return mItem.get(); }

    /// Changes what has changed.
    void update(const PhoneCall& call);

private:
    void setState(const PhoneCall& call);

    exchange::CallId mCall;
    Words mWords;
    std::unique_ptr<DisplayAPI::CallConnectedItem> mItem;
    std::string mParty;
    exchange::CallState mState = exchange::CallState::ENDED; ///< none that a row shows
    bool mIsTimed = false;
    exchange::Party mForwardedBy = {};
};

} // namespace deskphone
