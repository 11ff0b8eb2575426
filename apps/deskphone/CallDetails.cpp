#include "apps/deskphone/CallDetails.h"

#include "DisplayAPI/DurationText.h"
#include "DisplayAPI/List.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/Moment.h"
#include "kit/WayBack.h"

namespace deskphone {

namespace kit = DisplayAPI::kit;

CallDetails::CallDetails(Telephone& telephone, CallScreen& call)
    : Screen(telephone, nullptr, "Details.title",
             std::make_unique<DisplayAPI::List>(kit::listType(kit::WayBack::EVERYWHERE))),
      mCall(call), mMissed(text("Details.missed")), mReceived(text("Details.received")),
      mDialled(text("Details.dialled")),
      mForwarded(text("Details.forwarded", {[this] { return mShown.load()->other; }})),
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
    list().setTitle(past.party);
    list().append(past.number);
    append(mMoment);
    append(kindOf(past));
    if (past.seconds > 0)
        append(mDuration);
    open();
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
    case PastCall::Kind::FORWARDED: return mForwarded;
    case PastCall::Kind::DIALLED: break;
    }
    return mDialled;
}

} // namespace deskphone
