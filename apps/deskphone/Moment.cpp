#include "apps/deskphone/Moment.h"

#include "host/clock/WallClock.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

namespace deskphone {

using host::WallClock;

std::string shownDate(std::time_t moment)
{
    const PegString format = KestrelApplication::getCurrentApplication()->getDateFormat();
    return WallClock::date(moment, ICC::fromUNICODEtoUTF8(format));
}

std::string shownTime(std::time_t moment)
{
    const PegString format = KestrelApplication::getCurrentApplication()->getTimeFormat();
    return WallClock::time(moment, ICC::fromUNICODEtoUTF8(format));
}

std::string shown(std::time_t moment)
{
    const std::tm then = WallClock::local(moment), now = WallClock::local(WallClock::now());
    const bool isToday = then.tm_yday == now.tm_yday && then.tm_year == now.tm_year;
    return isToday ? shownTime(moment) : shownDate(moment);
}

} // namespace deskphone
