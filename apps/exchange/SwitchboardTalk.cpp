// While one speaks.

#include "apps/exchange/Switchboard.h"

#include <algorithm>

namespace exchange {

namespace {

constexpr std::int64_t UNTIL_RESUMED = 200;
constexpr std::int64_t UNTIL_TRANSFERRED = 500;

} // namespace

/// One that resumes is as good as active: it is going to be.
bool Switchboard::isActive(const LiveCall& call)
{
    return call.stage == LiveCall::Stage::TALK && (!call.isHeldByMe || call.isResuming);
}

CallState Switchboard::talkState(const LiveCall& call)
{
    if (call.isHeldByMe)
        return call.isHeldByOther ? CallState::HELD_BY_BOTH : CallState::HELD_BY_ME;
    if (call.isHeldByOther)
        return CallState::HELD_BY_OTHER;
    return isInConference(call) ? CallState::CONFERENCE : CallState::CONNECTED;
}

/// In mine, or in one that the other one has made.
bool Switchboard::isInConference(const LiveCall& call)
{
    return call.partner != NO_CALL || !call.joined.number.empty();
}

/// One who answers while the telephone speaks with another one is held.
void Switchboard::beginTalk(LiveCall& call, Circumstances circumstances)
{
    const auto isOtherActive = [&](const auto& entry) {
        return &entry.second != &call && entry.first != call.partner && isActive(entry.second);
    };
    call.isHeldByMe = call.isHeldByMe || std::any_of(mCalls.begin(), mCalls.end(), isOtherActive);
    call.stage = LiveCall::Stage::TALK;
    circumstances.to = call.joined;
    circumstances.with = call.partner;
    tell(call, talkState(call), std::move(circumstances));
    planTalkStep(call);
}

/// What changes while a call resumes is told when it has.
void Switchboard::tellTalk(LiveCall& call)
{
    if (call.stage == LiveCall::Stage::TALK && !call.isResuming)
        tell(call, talkState(call), {.to = call.joined, .with = call.partner});
}

void Switchboard::planTalkStep(LiveCall& call)
{
    mSchedule.cancel(call.theirs);
    if (call.talkStep < call.behaviour->talk.size())
        goOn(call, call.behaviour->talk[call.talkStep].after, &Switchboard::takeTalkStep);
}

void Switchboard::takeTalkStep(LiveCall& call)
{
    const CallId id = call.event.call;
    const TalkStep step = call.behaviour->talk[call.talkStep++];
    act(call, step.kind, step.number);
    if (LiveCall* const left = find(id); left != nullptr && left->stage == LiveCall::Stage::TALK)
        planTalkStep(*left);
}

/// The call may be over afterwards.
void Switchboard::act(LiveCall& call, TalkStep::Kind kind, const std::string& number)
{
    using Kind = TalkStep::Kind;
    switch (kind) {
    case Kind::HOLDS: return setHeldByOther(call, true);
    case Kind::RESUMES: return setHeldByOther(call, false);
    case Kind::ENDS: return finish(call, CallState::ENDED, {.reason = Reason::ENDED_BY_OTHER});
    case Kind::PLAYS_IN_CONFERENCE: call.joined = mDirectory.party(number); return tellTalk(call);
    case Kind::TRANSFERS:
        call.target = number;
        beginTransfer(call, {.to = mDirectory.party(number)});
        return later(&LiveCall::theirs, call, UNTIL_TRANSFERRED, &Switchboard::isTransferredByOther);
    }
}

void Switchboard::setHeldByOther(LiveCall& call, bool on)
{
    if (call.isHeldByOther == on)
        return;
    call.isHeldByOther = on;
    tellTalk(call);
}

void Switchboard::setHeldByMe(LiveCall& call)
{
    mSchedule.cancel(call.mine);
    call.isResuming = false;
    call.isHeldByMe = true;
    tellTalk(call);
}

void Switchboard::holdActive(CallId but, CallId butAlso)
{
    for (auto& [id, call] : mCalls)
        if (id != but && id != butAlso && isActive(call))
            setHeldByMe(call);
}

std::vector<LiveCall*> Switchboard::membersOf(LiveCall& call)
{
    if (call.partner == NO_CALL)
        return {&call};
    return {&call, &mCalls.at(call.partner)};
}

bool Switchboard::hold(CallId id)
{
    LiveCall* const call = findTalking(id);
    if (call == nullptr || call->isHeldByMe)
        return false;
    for (LiveCall* const member : membersOf(*call))
        setHeldByMe(*member);
    return true;
}

bool Switchboard::resume(CallId id)
{
    LiveCall* const call = findTalking(id);
    if (call == nullptr || !call->isHeldByMe)
        return false;
    holdActive(id);
    for (LiveCall* const member : membersOf(*call)) {
        member->isResuming = true;
        tell(*member, CallState::RESUMING, {.to = member->joined, .with = member->partner});
        later(&LiveCall::mine, *member, UNTIL_RESUMED, &Switchboard::isResumed);
    }
    return true;
}

void Switchboard::isResumed(LiveCall& call)
{
    call.isResuming = false;
    call.isHeldByMe = false;
    tellTalk(call);
}

bool Switchboard::join(CallId id, CallId otherId)
{
    LiveCall* const call = findTalking(id);
    LiveCall* const other = findTalking(otherId);
    if (call == nullptr || other == nullptr || call == other || isInConference(*call) || isInConference(*other))
        return false;
    holdActive(id, otherId);
    call->partner = otherId;
    other->partner = id;
    for (LiveCall* const member : {call, other}) {
        member->isHeldByMe = false;
        tellTalk(*member);
    }
    return true;
}

/// Of two, the other one stays.
void Switchboard::leaveConference(LiveCall& call)
{
    LiveCall* const left = find(call.partner);
    call.partner = NO_CALL;
    call.joined = {};
    if (left == nullptr)
        return;
    left->partner = NO_CALL;
    tellTalk(*left);
}

void Switchboard::beginTransfer(LiveCall& call, Circumstances circumstances)
{
    call.remaining = mSchedule.left(call.theirs);
    call.partnerBefore = call.partner;
    call.joinedBefore = call.joined;
    mSchedule.cancel(call.mine);
    mSchedule.cancel(call.theirs);
    call.isResuming = false;
    call.rang = call.stage == LiveCall::Stage::RINGING;
    call.stage = LiveCall::Stage::TRANSFERRING;
    tell(call, CallState::TRANSFERRING, std::move(circumstances));
    leaveConference(call);
}

bool Switchboard::transferTo(CallId id, const std::string& number)
{
    LiveCall* const call = findTalking(id);
    if (call == nullptr || isInConference(*call) || number.empty())
        return false;
    call->target = number;
    beginTransfer(*call, {.to = mDirectory.party(number)});
    later(&LiveCall::mine, *call, UNTIL_TRANSFERRED, &Switchboard::isTransferred);
    return true;
}

void Switchboard::isTransferred(LiveCall& call)
{
    const Caller onward{.who = call.event.other, .forwardedBy = findLine(call.event.line)->party};
    if (Line* const line = findLine(call.target); line != nullptr) {
        if (const Reason refusal = refusalOf(*line, callsOn(line->number) - (call.event.line == line->number ? 1 : 0));
            refusal == Reason::NOT_REGISTERED || (refusal != Reason::NONE && !canPassOnTo(line->forwarding.always) &&
                                                  !canPassOnTo(line->forwarding.whenBusy)))
            return comeBack(call, {.reason = refusal});
        finish(call, CallState::ENDED, {.reason = Reason::TRANSFERRED, .to = line->party});
        return arrive(*line, onward);
    }
    int hops = 0;
    const Directory::Destination destination = mDirectory.find(call.target, hops);
    if (destination.behaviour == nullptr)
        return comeBack(call, {.reason = destination.reason, .text = destination.text});
    finish(call, CallState::ENDED, {.reason = Reason::TRANSFERRED, .to = destination.party});
}

bool Switchboard::transfer(CallId id, CallId consultedId)
{
    LiveCall* const call = findTalking(id);
    LiveCall* const consulted = find(consultedId);
    if (call == nullptr || consulted == nullptr || call == consulted)
        return false;
    if (findTalking(consultedId) == nullptr && consulted->stage != LiveCall::Stage::RINGING)
        return false;
    if (call->partner != consultedId && (isInConference(*call) || isInConference(*consulted)))
        return false;
    call->partner = consulted->partner = NO_CALL;
    const Party one = call->event.other, two = consulted->event.other;
    beginTransfer(*call, {.to = two, .with = consultedId});
    beginTransfer(*consulted, {.to = one, .with = id});
    mSchedule.in(UNTIL_TRANSFERRED, [=, this] { haveBroughtTogether(id, consultedId); });
    return true;
}

/// One of them may have ended meanwhile.
void Switchboard::haveBroughtTogether(CallId id, CallId consultedId)
{
    LiveCall* const call = find(id);
    LiveCall* const consulted = find(consultedId);
    if (call != nullptr && consulted != nullptr) {
        const Party one = call->event.other, two = consulted->event.other;
        finish(*call, CallState::ENDED, {.reason = Reason::TRANSFERRED, .to = two});
        finish(*consulted, CallState::ENDED, {.reason = Reason::TRANSFERRED, .to = one});
    } else if (LiveCall* const left = call != nullptr ? call : consulted; left != nullptr) {
        comeBack(*left, left->left);
    }
}

/// The conference in which it was, where the partner is free for it. Returns him, or null.
LiveCall* Switchboard::rejoin(LiveCall& call)
{
    call.joined = call.joinedBefore;
    LiveCall* const partner = findTalking(call.partnerBefore);
    if (partner == nullptr || isInConference(*partner))
        return nullptr;
    call.partner = partner->event.call;
    partner->partner = call.event.call;
    call.isHeldByMe = partner->isHeldByMe;
    return partner;
}

void Switchboard::comeBack(LiveCall& call, Circumstances circumstances)
{
    if (call.rang)
        return waitForOther(call, std::move(circumstances));
    LiveCall* const partner = rejoin(call);
    beginTalk(call, std::move(circumstances));
    if (partner != nullptr)
        tellTalk(*partner);
}

void Switchboard::isTransferredByOther(LiveCall& call)
{
    call.hops = 0;
    Directory::Destination destination = mDirectory.find(call.target, call.hops);
    if (destination.behaviour == nullptr)
        return comeBack(call, {.reason = destination.reason, .text = destination.text});
    call.remaining = {};
    call.event.forwardedBy = call.event.other;
    call.dialled.clear();
    ring(call, destination);
}

} // namespace exchange
