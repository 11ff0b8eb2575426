#include "apps/deskphone/WakeUp.h"

#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/Telephone.h"
#include "host/clock/WallClock.h"

namespace deskphone {

namespace {

constexpr int MINUTE_MS = 60'000;

} // namespace

WakeUp::WakeUp(Telephone& telephone, CallHistory& history)
    : mTelephone(telephone), mHistory(history), mOrdered(&telephone.languages(), "Service.wake.up.ordered"),
      mMissed(&telephone.languages(), "Details.missed"), mDue([this](DisplayAPI::Command*) { call(); }),
      mTimer(MINUTE_MS)
{
    mTimer.enableSingleShot(true);
    mTimer.addCommandListener(&mDue);
}

void WakeUp::order(const std::string& party, const std::string& number)
{
    mParty = party;
    mNumber = number;
    mTimer.start(MINUTE_MS);
    mTelephone.tell(mOrdered.get());
}

void WakeUp::stopListening()
{
    mTimer.stop();
    mDue.stop();
}

void WakeUp::call()
{
    mHistory.add({PastCall::Kind::MISSED, host::WallClock::now(), mParty, mNumber});
    mTelephone.tell(mMissed.get());
}

} // namespace deskphone
