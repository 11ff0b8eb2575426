#include "apps/deskphone/CallRow.h"

#include "apps/deskphone/CallWords.h"

#include <utility>

namespace deskphone {

using DisplayAPI::CallConnectedItem;
using exchange::CallState;

namespace {

constexpr bool TIMED = true;
constexpr bool HAS_MENU = false; ///< of its own: that of the screen is for the rows of all calls

/// With whom one speaks, and who else has been taken in.
std::string partiesOf(const PhoneCall& call)
{
    const bool isJoined = isTalk(call.state()) && !call.last.to.number.empty();
    return isJoined ? call.party() + ", " + nameOf(call.last.to) : call.party();
}

} // namespace

CallConnectedItem::CallStateIcon iconOf(const PhoneCall& call)
{
    switch (call.state()) {
    case CallState::DIALLING: return CallConnectedItem::DIALLING;
    case CallState::PROCEEDING: return CallConnectedItem::PROCEEDING;
    case CallState::RINGING_BACK: return CallConnectedItem::RINGING_BACK;
    case CallState::INCOMING: return CallConnectedItem::INCOMING;
    case CallState::CONNECTED: return CallConnectedItem::CONNECTED;
    case CallState::HELD_BY_ME: return CallConnectedItem::HELD;
    case CallState::HELD_BY_OTHER: return CallConnectedItem::HELD_BY_OTHER;
    case CallState::HELD_BY_BOTH: return CallConnectedItem::HELD_BY_BOTH;
    case CallState::RESUMING: return CallConnectedItem::RESUMING;
    case CallState::TRANSFERRING:
        return call.last.with == exchange::NO_CALL ? CallConnectedItem::TRANSFERRING
                                                   : CallConnectedItem::TRANSFERRING_CONSULTED;
    case CallState::CONFERENCE: return CallConnectedItem::CONFERENCE;
    case CallState::FORWARDED: return CallConnectedItem::FORWARDED;
    case CallState::ENDED: return CallConnectedItem::ENDED;
    case CallState::FAILED: return CallConnectedItem::FAILED;
    }
    return CallConnectedItem::IDLE;
}

CallRow::CallRow(const PhoneCall& call, Words words)
    : mCall(call.id()), mWords(std::move(words)),
      mItem(std::make_unique<CallConnectedItem>(iconOf(call), partiesOf(call), nullptr, TIMED, HAS_MENU)),
      mParty(partiesOf(call))
{
    update(call);
}

void CallRow::update(const PhoneCall& call)
{
    const std::string parties = partiesOf(call);
    if (std::exchange(mParty, parties) != parties)
        mItem->setText(parties);
    if (std::exchange(mForwardedBy, call.last.forwardedBy) != call.last.forwardedBy)
        mItem->setThirdLineIconText(DisplayAPI::FORWARDED_BY_SERVER, nameOf(call.last.forwardedBy));
    if (std::exchange(mState, call.state()) != call.state())
        setState(call);
}

/// A row counts from when it is connected, which one that is held at once is not yet.
void CallRow::setState(const PhoneCall& call)
{
    if (call.talkSince && !std::exchange(mIsTimed, true))
        mItem->setState(CallConnectedItem::CONNECTED);
    mItem->setState(iconOf(call));
    mItem->setSecondLineText(mWords(call));
}

} // namespace deskphone
