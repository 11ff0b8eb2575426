#include "apps/deskphone/CallActions.h"

namespace deskphone {

using exchange::CallId;
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
    add(actions, "Call.hang.up", &Telephony::end, call);
    return actions;
}

void CallActions::add(Actions& actions, const std::string& text, Operation operation, const PhoneCall& call)
{
    actions.push_back({text, [this, operation, id = call.id()] { (mCalls.telephony().*operation)(id); }});
}

void CallActions::addTransfer(Actions& actions, const PhoneCall& call)
{
    actions.push_back({"Call.transfer", [this, id = call.id()] { mTransfers.ask(id); }});
}

void CallActions::addTalk(Actions& actions, const PhoneCall& call)
{
    if (!isHeldByMe(call))
        add(actions, "Call.hold", &Telephony::hold, call);
    else if (const PhoneCall* const current = mCalls.current(); current != nullptr && !isHeldByMe(*current))
        add(actions, "Call.swap", &Telephony::resume, call);
    else
        add(actions, "Call.resume", &Telephony::resume, call);
    if (!isInConference(call))
        addTransfer(actions, call);
    addOthers(actions, call);
}

/// Transfers to somebody who has been asked before, and conferences.
void CallActions::addOthers(Actions& actions, const PhoneCall& call)
{
    Telephony& telephony = mCalls.telephony();
    for (const PhoneCall* const other : mCalls.all()) {
        const bool isTogether = call.last.with == other->id();
        if (other == &call || !isTalk(*other) || (!isTogether && (isInConference(call) || isInConference(*other))))
            continue;
        const CallId one = call.id(), two = other->id();
        actions.push_back(
            {"Call.transfer.to", [&telephony, one, two] { telephony.transfer(one, two); }, other->party()});
        if (!isTogether)
            actions.push_back({"Call.join", [&telephony, one, two] { telephony.join(one, two); }, other->party()});
    }
}

} // namespace deskphone
