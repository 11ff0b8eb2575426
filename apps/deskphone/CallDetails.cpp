#include "apps/deskphone/CallDetails.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/Call.h"
#include "apps/deskphone/Moment.h"
#include "kit/WayBack.h"

namespace deskphone {

namespace kit = DisplayAPI::kit;

CallDetails::CallDetails(Telephone& telephone, Call& call)
    : Screen(telephone, nullptr, "Details.title",
             std::make_unique<DisplayAPI::List>(kit::listType(kit::WayBack::EVERYWHERE))),
      mCall(call), mMissed(text("Details.missed")), mReceived(text("Details.received")),
      mDialled(text("Details.dialled")),
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
    case PastCall::Kind::RECEIVED:
    case PastCall::Kind::FORWARDED: return mReceived;
    case PastCall::Kind::DIALLED: break;
    }
    return mDialled;
}

} // namespace deskphone
