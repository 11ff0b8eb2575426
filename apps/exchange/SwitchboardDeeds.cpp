// What the exchange's language tells to do.

#include "apps/exchange/Switchboard.h"

#include <algorithm>

namespace exchange {

namespace {

std::string lineName(LineNumber line)
{
    return "line " + std::to_string(line);
}

std::string_view whatFor(Deed::Kind kind)
{
    switch (kind) {
    case Deed::Kind::ANSWERS: return "answer";
    case Deed::Kind::REJECTS: return "reject";
    case Deed::Kind::HOLDS: return "hold";
    case Deed::Kind::RESUMES: return "resume";
    case Deed::Kind::TRANSFERS: return "transfer";
    case Deed::Kind::PLAYS_IN_CONFERENCE: return "play in a conference with";
    default: return "end";
    }
}

TalkStep::Kind talkStepFor(Deed::Kind kind)
{
    switch (kind) {
    case Deed::Kind::HOLDS: return TalkStep::Kind::HOLDS;
    case Deed::Kind::RESUMES: return TalkStep::Kind::RESUMES;
    case Deed::Kind::TRANSFERS: return TalkStep::Kind::TRANSFERS;
    default: return TalkStep::Kind::PLAYS_IN_CONFERENCE;
    }
}

} // namespace

void Switchboard::follow(const Sentence& sentence)
{
    std::visit([this](const auto& parsed) { follow(parsed); }, sentence);
}

void Switchboard::follow(const LineSentence& sentence)
{
    if (findLine(sentence.line) == nullptr)
        throw Mistake("there is no " + lineName(sentence.line));
    if (std::holds_alternative<Party>(sentence.what))
        throw Mistake("who " + lineName(sentence.line) + " is can be said in the file of numbers only");
    changeLine(sentence.line, [&](Line& line) {
        if (const bool* const isRegistered = std::get_if<bool>(&sentence.what))
            line.isRegistered = *isRegistered;
        if (const int* const messages = std::get_if<int>(&sentence.what))
            line.messages = *messages;
    });
    if (findLine(sentence.line)->isRegistered)
        return;
    failCallsOn(sentence.line);
}

/// Nobody who is to fail as well is told that he is alone in a conference.
void Switchboard::failCallsOn(LineNumber line)
{
    const auto isOnLine = [line](const LiveCall* call) { return call != nullptr && call->event.line == line; };
    for (auto& [id, call] : mCalls)
        if (LiveCall* const partner = find(call.partner); isOnLine(&call) && isOnLine(partner))
            call.partner = partner->partner = NO_CALL;
    for (auto next = mCalls.begin(); next != mCalls.end();)
        if (LiveCall& call = next++->second; isOnLine(&call))
            finish(call, CallState::FAILED, {.reason = Reason::NOT_REGISTERED});
}

void Switchboard::follow(const Number& number)
{
    if (findLine(number.party.number) != nullptr)
        throw Mistake(number.party.number + " is a line of this telephone");
    mDirectory.define(number);
}

void Switchboard::follow(const Deed& deed)
{
    if (deed.kind == Deed::Kind::CALLS)
        return callNow(deed);
    LiveCall& call = findFor(deed);
    switch (deed.kind) {
    case Deed::Kind::ANSWERS: return otherAnswers(call);
    case Deed::Kind::REJECTS: return otherRejects(call);
    case Deed::Kind::ENDS: return endNow(deed);
    default: return act(call, talkStepFor(deed.kind), deed.number);
    }
}

void Switchboard::callNow(const Deed& deed)
{
    Line* const line = deed.line == 0 ? &mLines.front() : findLine(deed.line);
    if (line == nullptr)
        throw Mistake("there is no " + lineName(deed.line));
    if (!line->isRegistered)
        throw Mistake(lineName(line->number) + " is not registered");
    if (findLine(deed.who.number) != nullptr)
        throw Mistake(deed.who.number + " is a line of this telephone");
    Party who = mDirectory.party(deed.who.number);
    if (!deed.who.name.empty())
        who.name = deed.who.name;
    arrive(*line, {who, deed.forwardedBy.empty() ? Party() : mDirectory.party(deed.forwardedBy), deed.patience});
}

/// Who ends what rings here gives up.
void Switchboard::endNow(const Deed& deed)
{
    LiveCall& call = findFor(deed);
    if (!deed.text.empty())
        return finish(call, CallState::FAILED, {.reason = Reason::FAILURE, .text = deed.text});
    if (deed.isBusy)
        return finish(call, CallState::ENDED, {.reason = Reason::BUSY});
    const bool givesUp = call.stage == LiveCall::Stage::INCOMING;
    finish(call, CallState::ENDED, {.reason = givesUp ? Reason::NO_ANSWER : Reason::ENDED_BY_OTHER});
}

/// The latest of his calls for which it can be done.
LiveCall& Switchboard::findFor(const Deed& deed)
{
    const auto fits = [&deed](const LiveCall& call) {
        switch (deed.kind) {
        case Deed::Kind::ENDS: return true;
        case Deed::Kind::ANSWERS:
        case Deed::Kind::REJECTS: return call.stage == LiveCall::Stage::RINGING;
        case Deed::Kind::HOLDS: return call.stage == LiveCall::Stage::TALK && !call.isHeldByOther;
        case Deed::Kind::RESUMES: return call.stage == LiveCall::Stage::TALK && call.isHeldByOther;
        default: return call.stage == LiveCall::Stage::TALK;
        }
    };
    const auto found = std::find_if(mCalls.rbegin(), mCalls.rend(), [&](const auto& entry) {
        return entry.second.event.other.number == deed.who.number && fits(entry.second);
    });
    if (found == mCalls.rend())
        throw Mistake(deed.who.number + " has no call that it could " + std::string(whatFor(deed.kind)));
    return found->second;
}

} // namespace exchange
