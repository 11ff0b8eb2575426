#include "apps/deskphone/Call.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/Telephone.h"
#include "host/clock/Clock.h"
#include "host/clock/WallClock.h"
#include "kit/OnGuiThread.h"
#include "kit/WayBack.h"

#include <cstdio>

namespace deskphone {

using host::Clock;
namespace kit = DisplayAPI::kit;

namespace {

/// As the call's timer shows it, without hours that are none.
std::string durationText(std::int64_t ms)
{
    const auto seconds = static_cast<int>(ms / 1000);
    char text[40];
    if (seconds < 3600)
        std::snprintf(text, sizeof text, "%02d:%02d", seconds / 60, seconds % 60);
    else
        std::snprintf(text, sizeof text, "%d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
    return text;
}

} // namespace

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
    mDuration = durationText(Clock::instance().now() - mStart);
    telephone().tell(mEnded.get());
}

} // namespace deskphone
