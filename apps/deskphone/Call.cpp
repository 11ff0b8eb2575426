#include "apps/deskphone/Call.h"

#include "DisplayAPI/DurationText.h"
#include "DisplayAPI/List.h"
#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/Telephone.h"
#include "host/clock/Clock.h"
#include "host/clock/WallClock.h"
#include "kit/OnGuiThread.h"
#include "kit/WayBack.h"

namespace deskphone {

using host::Clock;
namespace kit = DisplayAPI::kit;

Call::Call(Telephone& telephone, CallHistory& history)
    : Screen(telephone, nullptr, "Call.title",
             std::make_unique<DisplayAPI::List>(kit::listType(kit::WayBack::EVERYWHERE))),
      mHistory(history), mEnded(text("Call.ended", {[this] { return mDuration; }}))
{
}

void Call::begin(Place& from, const std::string& party, const std::string& number)
{
    setParent(&from);
    mStart = Clock::instance().now();
    kit::onGuiThread([&] {
        open();
        telephone().status().callBegins(party);
    });
    mHistory.add({PastCall::Kind::DIALLED, host::WallClock::now(), party, number});
}

void Call::build()
{
    append(text("Call.hang.up"));
}

void Call::chosen(int)
{
    left();
    parent()->open();
}

void Call::left()
{
    telephone().status().callEnds();
    mDuration = DisplayAPI::durationText((Clock::instance().now() - mStart) / 1000);
    telephone().tell(mEnded.get());
}

} // namespace deskphone
