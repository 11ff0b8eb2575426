#include "apps/deskphone/CallHistory.h"

#include "apps/deskphone/CallStore.h"

#include <algorithm>
#include <utility>

namespace deskphone {

CallHistory::CallHistory(std::deque<PastCall> calls) : mCalls(std::move(calls)) {}

CallHistory::CallHistory(std::unique_ptr<CallStore> store) : mStore(std::move(store)), mCalls(mStore->calls()) {}

CallHistory::~CallHistory() = default;

void CallHistory::add(PastCall call)
{
    if (mStore != nullptr)
        mStore->add(call);
    mCalls.push_front(std::move(call));
    for (const Listener& listener : mListeners)
        listener.added(mCalls.front());
    tellMissed();
}

void CallHistory::forget(PastCall& call)
{
    if (std::exchange(call.isForgotten, true))
        return;
    if (mStore != nullptr)
        mStore->forget(call);
    for (const Listener& listener : mListeners)
        listener.forgotten(call);
    tellMissed();
}

void CallHistory::see()
{
    for (PastCall& call : mCalls)
        call.isSeen = true;
    if (mStore != nullptr)
        mStore->seeAll();
    tellMissed();
}

void CallHistory::addListener(std::function<void(PastCall&)> added, std::function<void(PastCall&)> forgotten)
{
    mListeners.push_back({std::move(added), std::move(forgotten)});
}

void CallHistory::addMissedListener(std::function<void(int)> listener)
{
    listener(missed());
    mMissedListeners.push_back(std::move(listener));
}

int CallHistory::missed() const
{
    return static_cast<int>(std::ranges::count_if(mCalls, &PastCall::isNewMissedCall));
}

void CallHistory::tellMissed() const
{
    for (const auto& listener : mMissedListeners)
        listener(missed());
}

} // namespace deskphone
