#include "apps/deskphone/CallStatus.h"

#include "apps/deskphone/Panel.h"
#include "apps/deskphone/Telephone.h"
#include "host/clock/Clock.h"

#include <utility>

namespace deskphone {

CallStatus::CallStatus(Telephone& telephone, Calls& calls, std::function<bool()> isCovered)
    : mTelephone(telephone), mCalls(calls), mIsCovered(std::move(isCovered))
{
    calls.addListener([this] { refresh(); });
}

std::optional<CallStatus::Shown> CallStatus::wanted()
{
    const PhoneCall* const call = mCalls.current();
    if (call == nullptr || (isSmallPanel() && mIsCovered()))
        return {};
    return Shown{call->party(), call->talkSince};
}

void CallStatus::refresh()
{
    const std::optional<Shown> now = wanted();
    if (std::exchange(mShown, now) == now)
        return;
    if (!now)
        mTelephone.status().callEnds();
    else if (now->talkSince)
        mTelephone.status().talkWith(now->party, (host::Clock::instance().now() - *now->talkSince) / 1000);
    else
        mTelephone.status().callTo(now->party);
}

} // namespace deskphone
