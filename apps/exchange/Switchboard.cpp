#include "apps/exchange/Switchboard.h"

#include <algorithm>
#include <utility>

namespace exchange {

Switchboard::Switchboard(Numbers numbers, Schedule& schedule, std::deque<Happening>& happenings)
    : mSchedule(schedule), mHappenings(happenings), mLines(std::move(numbers.lines)),
      mDirectory(std::move(numbers.others), std::move(numbers.everybodyElse), mLines)
{
}

LiveCall* Switchboard::find(CallId call)
{
    const auto found = mCalls.find(call);
    return found != mCalls.end() ? &found->second : nullptr;
}

LiveCall* Switchboard::findTalking(CallId call)
{
    LiveCall* const found = find(call);
    return found != nullptr && found->stage == LiveCall::Stage::TALK && !found->isResuming ? found : nullptr;
}

Line* Switchboard::findLine(LineNumber line)
{
    const auto found = std::find_if(mLines.begin(), mLines.end(), [=](const Line& one) { return one.number == line; });
    return found != mLines.end() ? &*found : nullptr;
}

Line* Switchboard::findLine(const std::string& number)
{
    const auto found =
        std::find_if(mLines.begin(), mLines.end(), [&](const Line& one) { return one.party.number == number; });
    return found != mLines.end() ? &*found : nullptr;
}

LiveCall& Switchboard::make(LineNumber line, Direction direction, Party other)
{
    LiveCall& call = mCalls[++mLastCall];
    call.event = {.call = mLastCall, .line = line, .direction = direction, .other = std::move(other)};
    return call;
}

/// The call is there when the step comes: finish() cancels it.
void Switchboard::later(Schedule::Ticket LiveCall::*ticket, LiveCall& call, std::int64_t milliseconds, Step step)
{
    mSchedule.cancel(call.*ticket);
    const CallId id = call.event.call;
    call.*ticket = mSchedule.in(milliseconds, [this, id, step] { (this->*step)(mCalls.at(id)); });
}

void Switchboard::goOn(LiveCall& call, std::int64_t milliseconds, Step step)
{
    later(&LiveCall::theirs, call, std::exchange(call.remaining, {}).value_or(milliseconds), step);
}

void Switchboard::tell(LiveCall& call, CallState state, Circumstances circumstances)
{
    CallEvent& event = call.event;
    event.state = state;
    event.reason = circumstances.reason;
    event.text = std::move(circumstances.text);
    event.to = std::move(circumstances.to);
    event.with = circumstances.with;
    event.at = mSchedule.now();
    mHappenings.push_back(event);
}

void Switchboard::tellAll() const
{
    for (const auto& [id, call] : mCalls)
        mHappenings.push_back(call.event);
}

void Switchboard::finish(LiveCall& call, CallState state, Circumstances circumstances)
{
    mSchedule.cancel(call.mine);
    mSchedule.cancel(call.theirs);
    if (LiveCall* const consulted = find(call.event.with);
        consulted != nullptr && call.stage == LiveCall::Stage::TRANSFERRING)
        consulted->left = {.reason = circumstances.reason, .text = circumstances.text};
    if (circumstances.reason == Reason::TRANSFERRED)
        call.dialled.clear();
    tell(call, state, std::move(circumstances));
    leaveConference(call);
    planCallBack(call);
    mCalls.erase(call.event.call);
}

void Switchboard::finishUnanswered(LiveCall& call, const Directory::Destination& destination)
{
    const CallState state = destination.reason == Reason::BUSY ? CallState::ENDED : CallState::FAILED;
    finish(call, state, {.reason = destination.reason, .text = destination.text});
}

int Switchboard::callsOn(LineNumber line) const
{
    return static_cast<int>(std::count_if(mCalls.begin(), mCalls.end(),
                                          [=](const auto& entry) { return entry.second.event.line == line; }));
}

bool Switchboard::changeLine(LineNumber number, const std::function<void(Line&)>& change)
{
    Line* const line = findLine(number);
    if (line == nullptr)
        return false;
    const Line before = *line;
    change(*line);
    if (*line != before)
        mHappenings.push_back(*line);
    return true;
}

bool Switchboard::end(CallId id)
{
    LiveCall* const call = find(id);
    if (call == nullptr)
        return false;
    const Reason reason = call->stage == LiveCall::Stage::INCOMING ? Reason::REJECTED : Reason::ENDED_BY_ME;
    finish(*call, CallState::ENDED, {.reason = reason});
    return true;
}

} // namespace exchange
