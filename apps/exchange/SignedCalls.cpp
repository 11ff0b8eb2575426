#include "apps/exchange/SignedCalls.h"

#include "host/input/CallSigns.h"

#include <algorithm>

namespace exchange {

namespace {

bool isHeld(CallState state)
{
    return state == CallState::HELD_BY_ME || state == CallState::HELD_BY_BOTH;
}

} // namespace

SignedCalls::~SignedCalls()
{
    host::CallSigns::show({});
}

void SignedCalls::callChanged(const CallEvent& event)
{
    const std::lock_guard lock(mMutex);
    if (isFinal(event.state))
        mCalls.erase(event.call);
    else
        mCalls[event.call] = event.state;
    show();
}

void SignedCalls::setLifted(bool on)
{
    const std::lock_guard lock(mMutex);
    mIsLifted = on;
    show();
}

void SignedCalls::show() const
{
    const auto any = [this](auto is) {
        return std::ranges::any_of(mCalls, [&](const auto& call) { return is(call.second); });
    };
    host::CallSigns signs;
    if (any([](CallState state) { return state == CallState::INCOMING; }))
        signs.lamp = host::CallSigns::Lamp::BLINKS;
    else if (any(isHeld))
        signs.lamp = host::CallSigns::Lamp::LIT;
    signs.isLifted = mIsLifted || any([](CallState state) { return state != CallState::INCOMING && !isHeld(state); });
    host::CallSigns::show(signs);
}

} // namespace exchange
