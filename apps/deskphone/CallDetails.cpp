#include "apps/deskphone/CallDetails.h"

#include "DisplayAPI/DurationText.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/PartyText.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/Moment.h"
#include "apps/deskphone/Panel.h"
#include "apps/deskphone/Telephone.h"
#include "kit/DetailsRow.h"
#include "kit/OnGuiThread.h"
#include "kit/WayBack.h"
#include "utilities/CallPartyIdentifier.h"

namespace deskphone {

namespace kit = DisplayAPI::kit;

namespace {

/// The title has the name.
CallPartyIdentifier numberOf(const PastCall& past)
{
    return {std::string(), past.number};
}

template <typename Details, typename... Args>
DisplayAPI::ListItem* rowOf(Args&&... args)
{
    return new kit::DetailsRow<Details>(std::forward<Args>(args)...);
}

/// Who has got the call stands in the row of all of it, who has sent it here does not.
bool hasOtherInRow(const PastCall& past)
{
    const bool isElsewhere = past.kind == PastCall::Kind::FORWARDED || past.kind == PastCall::Kind::DIALLED;
    return isElsewhere && !isSmallPanel();
}

/// With an icon for its kind, the number, the moment, and how long it was.
DisplayAPI::ListItem* rowFor(const PastCall& past, std::string when)
{
    using namespace DisplayAPI;
    CallPartyIdentifier party = numberOf(past), reached(past.other, std::string());
    const std::string duration = past.seconds > 0 ? durationText(past.seconds) : std::string();
    switch (past.kind) {
    case PastCall::Kind::MISSED: return rowOf<MissedItem>(&party, when);
    case PastCall::Kind::RECEIVED: return rowOf<ReceivedItem>(&party, when, duration);
    case PastCall::Kind::FORWARDED: return rowOf<ForwardedItem>(&party, &reached, when);
    case PastCall::Kind::DIALLED: break;
    }
    return rowOf<DialledItem>(&party, past.other.empty() ? nullptr : &reached, when, duration, past.seconds > 0);
}

} // namespace

CallDetails::CallDetails(Telephone& telephone, CallScreen& call)
    : Screen(telephone, nullptr, "Details.title",
             std::make_unique<DisplayAPI::List>(kit::listType(kit::WayBack::EVERYWHERE))),
      mCall(call), mMissed(text("Details.missed")), mReceived(text("Details.received")),
      mDialled(text("Details.dialled")), mForwardedCall(text("Details.forwarded.call")),
      mForwarded(text("Details.forwarded", {[this] { return mShown.load()->other; }})),
      mForwardedBy(text("Details.forwarded.by", {[this] { return mShown.load()->other; }})),
      mLine(text("Details.line", {[this] { return std::to_string(mShown.load()->line); }})),
      mDuration(text("Details.duration", {[this] { return DisplayAPI::durationText(mShown.load()->seconds); }})),
      mMoment(text("Details.moment", {[this] { return shownDate(mShown.load()->moment); },
                                      [this] { return shownTime(mShown.load()->moment); }}))
{
}

void CallDetails::show(Place& from, const PastCall& past)
{
    setParent(&from);
    list().clear();
    mShown = &past;
    list().setTitle(past.party.empty() ? telephone().languages().translate(DisplayAPI::UNKNOWN_PARTY) : past.party);
    if (isSmallPanel())
        showInLines(past);
    else
        list().append(rowFor(past, shownMoment()));
    append(kindOf(past));
    if (!past.other.empty() && !hasOtherInRow(past))
        append(otherOf(past));
    if (past.line != 0)
        append(mLine);
    open();
}

std::string CallDetails::shownMoment()
{
    std::string shown;
    kit::onGuiThread([&] { shown = mMoment.get(); });
    return shown;
}

/// The small panel has no row for all of it.
void CallDetails::showInLines(const PastCall& past)
{
    list().append(past.number);
    append(mMoment);
    if (past.seconds > 0)
        append(mDuration);
}

void CallDetails::chosen(int)
{
    const PastCall& past = *mShown;
    mCall.begin(*this, past.party, past.number);
}

Text& CallDetails::kindOf(const PastCall& past)
{
    switch (past.kind) {
    case PastCall::Kind::MISSED: return mMissed;
    case PastCall::Kind::RECEIVED: return mReceived;
    case PastCall::Kind::FORWARDED: return mForwardedCall;
    case PastCall::Kind::DIALLED: break;
    }
    return mDialled;
}

Text& CallDetails::otherOf(const PastCall& past)
{
    const bool isElsewhere = past.kind == PastCall::Kind::FORWARDED || past.kind == PastCall::Kind::DIALLED;
    return isElsewhere ? mForwarded : mForwardedBy;
}

} // namespace deskphone
