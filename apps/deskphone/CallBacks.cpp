#include "apps/deskphone/CallBacks.h"

#include "apps/deskphone/PastCall.h"
#include "apps/deskphone/PhoneBook.h"
#include "host/clock/WallClock.h"

#include <algorithm>
#include <utility>

namespace deskphone {

using DisplayAPI::CallBackMainItem;
using exchange::CallState;
using exchange::Reason;

namespace {

CallBackMainItem::CallBackType typeOf(Reason reason)
{
    switch (reason) {
    case Reason::BUSY: return CallBackMainItem::BUSY;
    case Reason::NO_ANSWER: return CallBackMainItem::NO_ANSWER;
    default: return CallBackMainItem::OTHER_REASON;
    }
}

} // namespace

CallBacks::CallBacks(Calls& calls)
{
    calls.addCallListener([this](const PhoneCall& call) { note(call); });
}

bool CallBacks::canRequest(const PastCall& past) const
{
    const bool wasInVain = past.kind == PastCall::Kind::DIALLED && past.seconds == 0 && !past.number.empty();
    return wasInVain &&
           std::ranges::none_of(mAll, [&](const CallBack& one) { return one.party.number == past.number; });
}

void CallBacks::request(const PastCall& past)
{
    mAll.push_front({.party = {past.number, past.party == past.number ? std::string() : past.party},
                     .moment = host::WallClock::now(),
                     .type = typeOf(past.reason)});
    tellListeners();
}

void CallBacks::cancel(const CallBack& callBack)
{
    mAll.remove_if([&](const CallBack& one) { return &one == &callBack; });
    tellListeners();
}

void CallBacks::note(const PhoneCall& call)
{
    const auto isIts = [&](const CallBack& one) { return digitsOf(one.party.number) == call.last.other.number; };
    const auto found = std::ranges::find_if(mAll, isIts);
    if (found == mAll.end())
        return;
    const bool rings = call.state() == CallState::INCOMING;
    const auto state = rings ? CallBackMainItem::READY : CallBackMainItem::WAITING;
    if (call.talkSince)
        mAll.erase(found);
    else if (std::exchange(found->state, state) == state)
        return;
    tellListeners();
}

void CallBacks::tellListeners() const
{
    for (const auto& listener : mListeners)
        listener();
}

} // namespace deskphone
