#pragma once

#include "DisplayAPI/ConferenceCallItem.h"
#include "apps/deskphone/CallRow.h"

namespace deskphone {

/// A conference of two calls as one row of a list: its title is the first one. It owns the item, which leaves its list
/// before. On the threads that answer the user, and gone before the rows of its members.
class ConferenceRow {
public:
    /// The rows stand in no list.
    ConferenceRow(CallRow& title, CallRow& other, CallRow::Words words);
    ConferenceRow(const ConferenceRow&) = delete;
    ConferenceRow& operator=(const ConferenceRow&) = delete;
    ~ConferenceRow();

    DisplayAPI::ConferenceCallItem* item() const { return mItem.get(); }
    CallRow& title() const { return mTitle; }
    CallRow& other() const { return mOther; }
    bool has(exchange::CallId call) const { return mTitle.call() == call || mOther.call() == call; }

    /// The member that the user has selected, or NO_CALL. Waits.
    exchange::CallId selected() const;

    /// Changes what has changed.
    void update(const PhoneCall& title, const PhoneCall& other);

private:
    CallRow& mTitle;
    CallRow& mOther;
    CallRow::Words mWords;
    std::unique_ptr<DisplayAPI::ConferenceCallItem> mItem;
    exchange::CallState mState = exchange::CallState::ENDED; ///< none that a row shows
};

} // namespace deskphone
