#include "apps/deskphone/CallHistory.h"

#include <utility>

namespace deskphone {

void CallHistory::add(PastCall call)
{
    mCalls.push_front(std::move(call));
    for (const Listener& listener : mListeners)
        listener.added(mCalls.front());
}

void CallHistory::forget(PastCall& call)
{
    if (std::exchange(call.isForgotten, true))
        return;
    for (const Listener& listener : mListeners)
        listener.forgotten(call);
}

void CallHistory::addListener(std::function<void(PastCall&)> added, std::function<void(PastCall&)> forgotten)
{
    mListeners.push_back({std::move(added), std::move(forgotten)});
}

} // namespace deskphone
