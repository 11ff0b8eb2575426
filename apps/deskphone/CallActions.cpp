#include "apps/deskphone/CallActions.h"

#include "apps/deskphone/Telephone.h"

namespace deskphone {

using exchange::CallState;
using exchange::Telephony;

namespace {

/// Of mine, or one that the other one has made.
bool isInConference(const PhoneCall& call)
{
    return call.last.with != exchange::NO_CALL || !call.last.to.number.empty();
}

bool isUnanswered(const PhoneCall& call)
{
    using enum CallState;
    return call.state() == DIALLING || call.state() == PROCEEDING || call.state() == RINGING_BACK;
}

/// Whether something can be done with what is said in it.
bool isTalk(const PhoneCall& call)
{
    return exchange::isTalk(call.state()) && call.state() != CallState::RESUMING;
}

} // namespace

bool isHeldByMe(const PhoneCall& call)
{
    return call.state() == CallState::HELD_BY_ME || call.state() == CallState::HELD_BY_BOTH;
}

void CallActions::doObvious(const PhoneCall& call)
{
    Telephony& telephony = mCalls.telephony();
    if (isHeldByMe(call))
        telephony.resume(call.id());
    else if (isTalk(call))
        telephony.hold(call.id());
    else if (isUnanswered(call))
        telephony.end(call.id());
}

std::vector<RowMenu::Action> CallActions::all(const PhoneCall& call)
{
    Actions actions;
    if (isTalk(call))
        addTalk(actions, call);
    else if (call.state() == CallState::RINGING_BACK)
        addHandOver(actions, call);
    const bool isMember = exchange::isTalk(call.state()) && call.last.with != exchange::NO_CALL;
    add(actions, isMember ? "Call.take.out" : "Call.hang.up", &Telephony::end, call);
    if (isMember)
        actions.back().argument = call.party();
    return actions;
}

std::vector<RowMenu::Action> CallActions::ofConference(const PhoneCall& call, const PhoneCall& partner)
{
    Actions actions;
    if (isTalk(call)) {
        addHold(actions, call);
        add(actions, "Call.connect.both", &Telephony::transfer, call, partner);
        actions.back().argument.clear();
    }
    actions.push_back({"Call.hang.up.both", [this, one = call.id(), two = partner.id()] {
                           mCalls.telephony().end(one);
                           mCalls.telephony().end(two);
                       }});
    return actions;
}

void CallActions::add(Actions& actions, const std::string& text, Operation operation, const PhoneCall& call)
{
    actions.push_back(
        {text, [this, operation, id = call.id()] { tellIfRefused((mCalls.telephony().*operation)(id)); }});
}

/// With the other one's name.
void CallActions::add(Actions& actions, const std::string& text, BothOperation operation, const PhoneCall& call,
                      const PhoneCall& other)
{
    actions.push_back({text,
                       [this, operation, one = call.id(), two = other.id()] {
                           tellIfRefused((mCalls.telephony().*operation)(one, two));
                       },
                       other.party()});
}

/// It may just have ended, or somebody has been quicker.
void CallActions::tellIfRefused(bool isDone)
{
    if (!isDone)
        mTelephone.tell(mTelephone.languages().translate("Call.refused"));
}

void CallActions::addTransfer(Actions& actions, const PhoneCall& call)
{
    actions.push_back({"Call.transfer", [this, id = call.id()] { mTransfers.ask(id); }});
}

void CallActions::addHold(Actions& actions, const PhoneCall& call)
{
    if (!isHeldByMe(call))
        add(actions, "Call.hold", &Telephony::hold, call);
    else if (const PhoneCall* const current = mCalls.current(); current != nullptr && !isHeldByMe(*current))
        add(actions, "Call.swap", &Telephony::resume, call);
    else
        add(actions, "Call.resume", &Telephony::resume, call);
}

void CallActions::addTalk(Actions& actions, const PhoneCall& call)
{
    addHold(actions, call);
    if (!isInConference(call))
        addTransfer(actions, call);
    addOthers(actions, call);
}

/// Whoever waits goes on to somebody who is still rung.
void CallActions::addHandOver(Actions& actions, const PhoneCall& rung)
{
    for (const PhoneCall* const call : mCalls.all())
        if (isTalk(*call) && !isInConference(*call))
            actions.push_back(
                {"Call.transfer.here",
                 [this, one = call->id(), two = rung.id()] { tellIfRefused(mCalls.telephony().transfer(one, two)); },
                 call->party()});
}

/// Transfers to somebody who has been asked before or is still rung, and conferences.
void CallActions::addOthers(Actions& actions, const PhoneCall& call)
{
    for (const PhoneCall* const other : mCalls.all()) {
        const bool isTogether = call.last.with == other->id();
        if (other == &call || (!isTogether && (isInConference(call) || isInConference(*other))))
            continue;
        if (isTalk(*other) || other->state() == CallState::RINGING_BACK)
            add(actions, "Call.transfer.to", &Telephony::transfer, call, *other);
        if (isTalk(*other) && !isTogether)
            add(actions, "Call.join", &Telephony::join, call, *other);
    }
}

} // namespace deskphone
