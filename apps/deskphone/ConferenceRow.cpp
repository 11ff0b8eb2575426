#include "apps/deskphone/ConferenceRow.h"

#include <utility>

namespace deskphone {

using DisplayAPI::CallConnectedItem;

namespace {

constexpr bool IS_TITLE = true;
constexpr bool IS_OPEN = false;
const std::string ONE_MORE = "+1"; ///< in every language

/// One who has me wait does not have the other one wait as well.
PhoneCall asWhole(PhoneCall call, const PhoneCall& other)
{
    using enum exchange::CallState;
    if (call.state() == other.state())
        return call;
    if (call.state() == HELD_BY_BOTH)
        call.last.state = HELD_BY_ME;
    else if (call.state() == HELD_BY_OTHER || call.state() == CONNECTED)
        call.last.state = CONFERENCE;
    return call;
}

} // namespace

/// Closed, every panel has room for the state.
ConferenceRow::ConferenceRow(CallRow& title, CallRow& other, CallRow::Words words)
    : mTitle(title), mOther(other), mWords(std::move(words)),
      mItem(std::make_unique<DisplayAPI::ConferenceCallItem>(CallConnectedItem::CONFERENCE, std::string(), IS_OPEN))
{
    mItem->appendCall(title.item(), IS_TITLE);
    mItem->appendCall(other.item(), !IS_TITLE);
    mItem->setTitleSuffix(ONE_MORE);
}

ConferenceRow::~ConferenceRow()
{
    mItem->removeCall(mTitle.item());
    mItem->removeCall(mOther.item());
}

exchange::CallId ConferenceRow::selected() const
{
    const CallConnectedItem* const member = mItem->getSelectedMember();
    for (const CallRow* const row : {&mTitle, &mOther})
        if (row->item() == member)
            return row->call();
    return exchange::NO_CALL;
}

void ConferenceRow::update(const PhoneCall& title, const PhoneCall& other)
{
    const PhoneCall call = asWhole(title, other);
    if (std::exchange(mState, call.state()) == call.state())
        return;
    mItem->setState(iconOf(call));
    mItem->setSecondLineText(mWords(call));
}

} // namespace deskphone
