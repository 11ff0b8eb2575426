#include "apps/deskphone/About.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "host/Phone.h"
#include "host/clock/Clock.h"

namespace deskphone {

using DisplayAPI::ListItem;
using host::Clock;

namespace {

constexpr std::int64_t SECOND = 1000;

} // namespace

About::About(DisplayAPI::Display& display, Screen* parent)
    : Screen(display, parent, "About"), mStart(Clock::instance().now())
{
}

void About::build()
{
    mUptimeRow = new ListItem(uptime(), false);
    list().append(mUptimeRow);
    list().append("Panel: " + std::string(host::nameOf(host::variant())));
    list().append("DisplayAPI 1.0");
    while (Clock::instance().sleepFor(untilNextSecond(), &mStop))
        renewRow(mUptimeRow, uptime());
}

void About::stopWorking()
{
    Clock::instance().wakeSleepers([this] { mStop = true; });
    Screen::stopWorking();
}

std::string About::uptime() const
{
    return "Up " + std::to_string((Clock::instance().now() - mStart) / SECOND) + " s";
}

std::int64_t About::untilNextSecond() const
{
    return SECOND - (Clock::instance().now() - mStart) % SECOND;
}

} // namespace deskphone
