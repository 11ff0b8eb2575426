#include "host/widgets/desktop/DesktopClock.h"

#include "host/widgets/status/DateText.h"
#include "host/widgets/status/TimeText.h"

#include <algorithm>

namespace host {

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::last;
using std::chrono::month;
using std::chrono::year;

constexpr std::int64_t DAY = 24 * HOUR;
constexpr int MOST_ZONE = 24 * 60;
constexpr int FIRST_YEAR = 1970;
constexpr int LAST_YEAR = 9999;

/// Also of moments before 1970.
std::int64_t timeOfDay(std::int64_t moment)
{
    return (moment % DAY + DAY) % DAY;
}

} // namespace

void DesktopClock::setTime(int hours, int minutes, int seconds)
{
    const std::int64_t now = mTime.milliseconds();
    const std::int64_t time =
        std::clamp(hours, 0, 23) * HOUR + std::clamp(minutes, 0, 59) * MINUTE + std::clamp(seconds, 0, 59) * SECOND;
    mTime = RunningTime(now - timeOfDay(now) + time);
    mHasTime = true;
}

void DesktopClock::setDate(int dayOfMonth, int monthOfYear, int yearOfDate)
{
    const auto inMonth = year(std::clamp(yearOfDate, FIRST_YEAR, LAST_YEAR)) /
                         month(static_cast<unsigned>(std::clamp(monthOfYear, 1, 12)));
    const auto lastDay = static_cast<int>(unsigned((inMonth / last).day()));
    const Days date = inMonth / day(static_cast<unsigned>(std::clamp(dayOfMonth, 1, lastDay)));
    mTime = RunningTime(date.time_since_epoch().count() * DAY + timeOfDay(mTime.milliseconds()));
    mHasDate = true;
}

void DesktopClock::setZone(int minutes)
{
    mZone = std::clamp(minutes, -MOST_ZONE, MOST_ZONE);
}

void DesktopClock::setTwelveHours(bool on)
{
    mTwelveHours = on;
}

std::int64_t DesktopClock::local() const
{
    return mTime.milliseconds() + mZone * MINUTE;
}

DesktopClock::Days DesktopClock::localDay() const
{
    return Days(days((local() - timeOfDay(local())) / DAY));
}

std::string DesktopClock::time() const
{
    return mHasTime ? clockText(timeOfDay(local()), mTwelveHours.value_or(hasTwelveHours())) : std::string();
}

std::string DesktopClock::date() const
{
    return mHasDate ? dateText(localDay()) : std::string();
}

std::optional<std::chrono::weekday> DesktopClock::weekday() const
{
    if (!mHasDate)
        return {};
    return std::chrono::weekday(localDay());
}

int DesktopClock::untilNextText() const
{
    return static_cast<int>(MINUTE - timeOfDay(local()) % MINUTE);
}

} // namespace host
