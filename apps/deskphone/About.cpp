#include "apps/deskphone/About.h"

#include "DisplayAPI/List.h"
#include "host/Phone.h"
#include "host/clock/Clock.h"

namespace deskphone {

using host::Clock;

namespace {

constexpr std::int64_t SECOND = 1000;

} // namespace

About::About(Telephone& telephone, Place* parent)
    : Screen(telephone, parent, "About.title"), mStart(Clock::instance().now())
{
}

void About::build()
{
    Text& uptime = text("About.uptime", {[this] { return seconds(); }});
    mUptimeRow = append(uptime);
    append(text("About.panel", {[] { return std::string(host::nameOf(host::variant())); }}));
    list().append("DisplayAPI 1.0");
    while (Clock::instance().sleepFor(untilNextSecond(), &mStop))
        renewRow(mUptimeRow, uptime);
}

void About::stopWorking()
{
    Clock::instance().wakeSleepers([this] { mStop = true; });
    Screen::stopWorking();
}

std::string About::seconds() const
{
    return std::to_string((Clock::instance().now() - mStart) / SECOND);
}

std::int64_t About::untilNextSecond() const
{
    return SECOND - (Clock::instance().now() - mStart) % SECOND;
}

} // namespace deskphone
