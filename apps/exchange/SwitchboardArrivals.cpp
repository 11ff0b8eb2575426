// On the way to somebody, and to here.

#include "apps/exchange/Switchboard.h"

namespace exchange {

namespace {

constexpr std::int64_t UNTIL_PROCEEDING = 200;
constexpr std::int64_t UNTIL_REACHED = 300;
constexpr std::int64_t LONGEST_RINGING = 60 * 1000;

} // namespace

CallId Switchboard::place(LineNumber number, const std::string& dialled)
{
    const Line* const line = findLine(number);
    if (line == nullptr || dialled.empty())
        return NO_CALL;
    const bool isFull = callsOn(number) >= MOST_CALLS;
    if (line->isRegistered && !isFull)
        holdActive(NO_CALL);
    LiveCall& call = make(number, Direction::OUTGOING, mDirectory.party(dialled));
    const CallId id = call.event.call;
    tell(call, CallState::DIALLING);
    if (!line->isRegistered)
        finish(call, CallState::FAILED, {.reason = Reason::NOT_REGISTERED});
    else if (isFull)
        finish(call, CallState::FAILED, {.reason = Reason::FAILURE, .text = "The line has too many calls"});
    else
        dial(call, dialled);
    return id;
}

/// Nobody knows of a call before.
void Switchboard::dial(LiveCall& call, const std::string& number)
{
    call.dialled = number;
    later(&LiveCall::theirs, call, UNTIL_PROCEEDING, &Switchboard::proceed);
}

void Switchboard::proceed(LiveCall& call)
{
    tell(call, CallState::PROCEEDING);
    later(&LiveCall::theirs, call, UNTIL_REACHED, &Switchboard::reach);
}

void Switchboard::reach(LiveCall& call)
{
    ring(call, mDirectory.find(call.dialled, call.hops));
}

void Switchboard::ring(LiveCall& call, const Directory::Destination& destination)
{
    call.event.other = destination.party;
    if (call.event.forwardedBy.number.empty())
        call.event.forwardedBy = destination.forwardedBy;
    if (destination.behaviour == nullptr)
        return finishUnanswered(call, destination);
    call.behaviour = destination.behaviour;
    waitForOther(call);
}

void Switchboard::waitForOther(LiveCall& call, Circumstances circumstances)
{
    using Arrival = Behaviour::Arrival;
    const Behaviour& behaviour = *call.behaviour;
    call.stage = LiveCall::Stage::RINGING;
    tell(call, CallState::RINGING_BACK, std::move(circumstances));
    switch (behaviour.arrival) {
    case Arrival::ANSWERS: return goOn(call, behaviour.after, &Switchboard::otherAnswers);
    case Arrival::REJECTS: return goOn(call, behaviour.after, &Switchboard::otherRejects);
    case Arrival::FORWARDS: return goOn(call, behaviour.after, &Switchboard::otherForwards);
    default: return goOn(call, LONGEST_RINGING, &Switchboard::ringsTooLong);
    }
}

void Switchboard::otherAnswers(LiveCall& call)
{
    call.isHeldByOther = false;
    call.talkStep = 0;
    beginTalk(call);
}

void Switchboard::otherRejects(LiveCall& call)
{
    finish(call, CallState::ENDED, {.reason = Reason::REJECTED});
}

void Switchboard::otherForwards(LiveCall& call)
{
    if (call.event.forwardedBy.number.empty())
        call.event.forwardedBy = call.event.other;
    Directory::Destination destination = mDirectory.find(call.behaviour->text, ++call.hops);
    ring(call, destination);
}

void Switchboard::ringsTooLong(LiveCall& call)
{
    finish(call, CallState::ENDED, {.reason = Reason::NO_ANSWER});
}

void Switchboard::planCallBack(const LiveCall& gone)
{
    const Number* const number = mDirectory.number(gone.dialled);
    if (number == nullptr || !number->behaviour->callsBack)
        return;
    Schedule::Ticket& ticket = mCallBacks[gone.dialled];
    mSchedule.cancel(ticket);
    ticket = mSchedule.in(*number->behaviour->callsBack, [this, line = gone.event.line, who = gone.dialled] {
        mCallBacks.erase(who);
        if (Line* const called = findLine(line); called->isRegistered)
            arrive(*called, {.who = mDirectory.party(who)});
    });
}

Reason Switchboard::refusalOf(const Line& line, int calls)
{
    if (!line.isRegistered)
        return Reason::NOT_REGISTERED;
    if (line.doNotDisturb)
        return Reason::DO_NOT_DISTURB;
    return calls >= (line.takesSeveral ? MOST_CALLS : 1) ? Reason::BUSY : Reason::NONE;
}

/// Not to a line of the telephone that is not registered: who calls would be lost.
bool Switchboard::canPassOnTo(const std::string& number)
{
    const Line* const line = findLine(number);
    return !number.empty() && (line == nullptr || line->isRegistered);
}

/// REQUIRES: the line is registered.
void Switchboard::arrive(Line& line, const Caller& caller)
{
    const Forwarding& forwarding = line.forwarding;
    const Reason refusal = refusalOf(line, callsOn(line.number));
    LiveCall& call = make(line.number, Direction::INCOMING, caller.who);
    const Number* const known = mDirectory.number(caller.who.number);
    call.behaviour = known != nullptr ? known->behaviour : std::make_shared<const Behaviour>();
    call.event.forwardedBy = caller.forwardedBy;
    call.hops = caller.hops;
    const std::int64_t patience = caller.patience.value_or(LONGEST_RINGING);
    call.givesUpAt = mSchedule.now() + patience;
    call.stage = LiveCall::Stage::INCOMING;
    if (canPassOnTo(forwarding.always))
        return passOn(call, forwarding.always, call.hops + 1);
    if (refusal != Reason::NONE && canPassOnTo(forwarding.whenBusy))
        return passOn(call, forwarding.whenBusy, call.hops + 1);
    if (refusal != Reason::NONE)
        return finish(call, CallState::ENDED, {.reason = refusal});
    tell(call, CallState::INCOMING);
    call.target = forwarding.whenNotAnswered;
    if (!call.target.empty())
        later(&LiveCall::mine, call, forwarding.answerTime, &Switchboard::isNotAnswered);
    later(&LiveCall::theirs, call, patience, &Switchboard::ringsTooLong);
}

/// REQUIRES: it can be passed on. A line that forwards to another one of the telephone lets it ring there, as long as
/// who calls has patience. Lines that forward in a circle let it ring nowhere.
void Switchboard::passOn(LiveCall& call, const std::string& number, int hops)
{
    const Party& first = call.event.forwardedBy;
    const Caller onward{.who = call.event.other,
                        .forwardedBy = first.number.empty() ? findLine(call.event.line)->party : first,
                        .patience = call.givesUpAt - mSchedule.now(),
                        .hops = hops};
    Line* const line = findLine(number);
    finish(call, CallState::FORWARDED, {.to = mDirectory.party(number)});
    if (line != nullptr && onward.hops < static_cast<int>(mLines.size()))
        arrive(*line, onward);
}

void Switchboard::isNotAnswered(LiveCall& call)
{
    if (canPassOnTo(call.target))
        passOn(call, std::string(call.target), call.hops + 1);
}

bool Switchboard::answer(CallId id)
{
    LiveCall* const call = find(id);
    if (call == nullptr || call->stage != LiveCall::Stage::INCOMING)
        return false;
    holdActive(id);
    mSchedule.cancel(call->mine);
    beginTalk(*call);
    return true;
}

bool Switchboard::deflect(CallId id, const std::string& number)
{
    LiveCall* const call = find(id);
    if (call == nullptr || call->stage != LiveCall::Stage::INCOMING || !canPassOnTo(number))
        return false;
    passOn(*call, number, 0);
    return true;
}

} // namespace exchange
