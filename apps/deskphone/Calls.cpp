#include "apps/deskphone/Calls.h"

#include "apps/deskphone/PhoneBook.h"
#include "host/clock/WallClock.h"
#include "kit/Fence.h"

#include <algorithm>
#include <utility>

namespace deskphone {

using exchange::CallEvent;
using exchange::CallId;
using exchange::CallState;

namespace {

/// How much the user has to do with a call in that state; 0 where he has not begun to.
int nearness(CallState state)
{
    switch (state) {
    case CallState::CONNECTED:
    case CallState::CONFERENCE:
    case CallState::HELD_BY_OTHER:
    case CallState::RESUMING: return 3;
    case CallState::DIALLING:
    case CallState::PROCEEDING:
    case CallState::RINGING_BACK: return 2;
    case CallState::INCOMING: return 0;
    default: return 1;
    }
}

} // namespace

std::string PhoneCall::party() const
{
    const bool isDialled = digitsOf(dialled.number) == last.other.number;
    if (isDialled && !dialled.name.empty())
        return dialled.name;
    if (!last.other.name.empty())
        return last.other.name;
    return isDialled ? dialled.number : last.other.number;
}

Calls::Calls(exchange::Telephony& telephony)
    : mTelephony(telephony), mLines(telephony), mWake([this](DisplayAPI::Command*) { catchUp(); })
{
}

Calls::~Calls()
{
    mTelephony.setListener(nullptr);
}

void Calls::startListening()
{
    mTelephony.setListener(this);
}

void Calls::endAll(std::int64_t now)
{
    mTelephony.waitUntilHeard();
    mTelephony.setListener(nullptr);
    Ear last([=, this](DisplayAPI::Command*) {
        catchUp();
        acceptEnds(now);
    });
    last.postCommandAction(nullptr, nullptr);
    DisplayAPI::kit::Fence().wait();
    stopListening();
}

void Calls::stopListening()
{
    mTelephony.setListener(nullptr);
    mWake.stop();
}

std::vector<const PhoneCall*> Calls::all() const
{
    std::vector<const PhoneCall*> calls;
    for (const auto& [id, call] : mCalls)
        calls.push_back(&call);
    return calls;
}

const PhoneCall* Calls::find(CallId call) const
{
    const auto found = mCalls.find(call);
    return found != mCalls.end() ? &found->second : nullptr;
}

const PhoneCall* Calls::current() const
{
    const PhoneCall* nearest = nullptr;
    for (const auto& [id, call] : mCalls)
        if (nearness(call.state()) > (nearest != nullptr ? nearness(nearest->state()) : 0))
            nearest = &call;
    return nearest;
}

void Calls::chooseLine(exchange::LineNumber line)
{
    mLines.choose(line);
    tellOf(mLines.find(line));
}

void Calls::tellOf(const exchange::Line& line)
{
    for (const auto& listener : mLineListeners)
        listener(line);
}

CallId Calls::place(exchange::LineNumber line, const exchange::Party& party)
{
    const CallId call = mTelephony.place(line, digitsOf(party.number));
    if (call != exchange::NO_CALL)
        mDialled[call] = party;
    return call;
}

void Calls::callListeners()
{
    {
        const std::lock_guard lock(mMutex);
        if (std::exchange(mIsWoken, true))
            return;
    }
    mWake.postCommandAction(nullptr, nullptr);
}

void Calls::callChanged(const CallEvent& event)
{
    mSigns.callChanged(event);
    {
        const std::lock_guard lock(mMutex);
        mNews.calls.push_back(event);
    }
    callListeners();
}

void Calls::lineChanged(const exchange::Line& line)
{
    {
        const std::lock_guard lock(mMutex);
        mNews.lines.push_back(line);
    }
    callListeners();
}

void Calls::catchUp()
{
    News news;
    {
        const std::lock_guard lock(mMutex);
        news = std::exchange(mNews, {});
        mIsWoken = false;
    }
    for (const CallEvent& event : news.calls)
        accept(event);
    for (const exchange::Line& line : news.lines)
        tellOf(line);
    for (const Listener& listener : mListeners)
        listener();
}

/// Where the user knows the number.
void Calls::giveName(exchange::Party& party) const
{
    if (mNames == nullptr || party.number.empty())
        return;
    if (std::string name = mNames(party.number); !name.empty())
        party.name = std::move(name);
}

void Calls::accept(CallEvent event)
{
    giveName(event.other);
    giveName(event.forwardedBy);
    giveName(event.to);
    PhoneCall& call = mCalls[event.call];
    if (call.last.call == exchange::NO_CALL) {
        call.moment = host::WallClock::now();
        if (const auto dialled = mDialled.extract(event.call))
            call.dialled = dialled.mapped();
        if (call.dialled.name.empty() && event.direction == exchange::Direction::OUTGOING)
            call.dialled.name = event.other.name;
    }
    call.last = event;
    if (!call.talkSince && isTalk(event.state))
        call.talkSince = event.at;
    const PhoneCall told = isFinal(event.state) ? std::move(mCalls.extract(event.call).mapped()) : call;
    for (const CallListener& listener : mCallListeners)
        listener(told);
}

void Calls::acceptEnds(std::int64_t now)
{
    for (const PhoneCall* const call : all()) {
        CallEvent end = call->last;
        end.state = CallState::ENDED;
        end.reason = exchange::Reason::NONE; // whatever has come to nothing before
        end.text.clear();
        end.at = now;
        accept(end);
    }
}

} // namespace deskphone
