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
    const bool isToday = WallClock::local(moment).tm_yday == WallClock::local(WallClock::now()).tm_yday;
    return isToday ? shownTime(moment) : shownDate(moment);
}

} // namespace deskphone
