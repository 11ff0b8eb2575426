#include "apps/deskphone/Moment.h"

#include "host/clock/WallClock.h"
#include "kit/OnGuiThread.h"
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

MomentFormats momentFormats()
{
    MomentFormats formats;
    DisplayAPI::kit::onGuiThread([&] {
        const KestrelApplication& application = *KestrelApplication::getCurrentApplication();
        formats.date = ICC::fromUNICODEtoUTF8(application.getDateFormat());
        formats.time = ICC::fromUNICODEtoUTF8(application.getTimeFormat());
    });
    formats.today = WallClock::date(WallClock::now(), formats.date);
    return formats;
}

std::string shown(std::time_t moment, const MomentFormats& formats)
{
    const std::string date = WallClock::date(moment, formats.date);
    return date == formats.today ? WallClock::time(moment, formats.time) : date;
}

} // namespace deskphone
