#include "host/widgets/idle/IdleClock.h"

#include "host/clock/WallClock.h"
#include "host/widgets/status/TimeText.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <utility>

namespace host {

namespace {

constexpr std::int32_t TICK = 1;
constexpr const char* USUAL_DATE = "dd.mm.yyyy";

std::string dateFormat()
{
    const auto* const application = KestrelApplication::getCurrentApplication();
    const std::string format =
        application != nullptr ? ICC::fromUNICODEtoUTF8(application->getDateFormat()) : std::string();
    return format.empty() ? USUAL_DATE : format;
}

/// "dd.mm." of "dd.mm.yyyy", "mm/dd" of "mm/dd/yyyy", "mm-dd" of "yyyy-mm-dd". A full stop belongs to its number.
std::string withoutYear(std::string format)
{
    constexpr std::size_t YEAR_LENGTH = 4;
    const std::size_t year = format.find("yyyy");
    if (year == std::string::npos)
        return format;
    format.erase(year, YEAR_LENGTH);
    if (year == 0)
        format.erase(0, 1);
    else if (format[year - 1] != '.')
        format.erase(year - 1, 1);
    return format;
}

} // namespace

IdleClock::IdleClock(std::function<void()> ticked) : mTicked(std::move(ticked)) {}

IdleClock::~IdleClock()
{
    StatusTime::watch(*this, false);
}

void IdleClock::run(bool on)
{
    StatusTime::watch(*this, on);
    if (on)
        schedule();
    else
        KillTimer(TICK);
}

PegString IdleClock::time() const
{
    const StatusTime* const shown = statusTime();
    return ICC::fromUTF8toUNICODE(shown != nullptr ? shown->text() : clockText(WallClock::timeOfDay()));
}

PegString IdleClock::date(bool isShort) const
{
    const std::string format = isShort ? withoutYear(dateFormat()) : dateFormat();
    return ICC::fromUTF8toUNICODE(WallClock::date(WallClock::now(), format));
}

int IdleClock::Message(const PegMessage& message)
{
    if (message.wType != PM_TIMER)
        return PegThing::Message(message);
    schedule();
    mTicked();
    return 0;
}

void IdleClock::schedule()
{
    SetTimer(TICK, static_cast<int>(MINUTE - WallClock::timeOfDay() % MINUTE), false);
}

} // namespace host
