#include "host/widgets/StatusTime.h"

#include "host/clock/Clock.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace host {

namespace {

constexpr std::int64_t SECOND = 1000;
constexpr std::int64_t MINUTE = 60 * SECOND;
constexpr std::int64_t HOUR = 60 * MINUTE;
constexpr std::int32_t TICK = 1;

// Never destroyed: a static widget leaves them as late as at process exit.

std::vector<StatusTime*>& times()
{
    static auto* const living = new std::vector<StatusTime*>;
    return *living;
}

std::vector<StatusTimeView*>& views()
{
    static auto* const watching = new std::vector<StatusTimeView*>;
    return *watching;
}

std::string formatted(const char* format, std::int64_t first, std::int64_t second, std::int64_t third = 0)
{
    char text[64];
    std::snprintf(text, sizeof text, format, static_cast<long>(first), static_cast<long>(second),
                  static_cast<long>(third));
    return text;
}

bool hasTwelveHours()
{
    const auto* application = KestrelApplication::getCurrentApplication();
    return application != nullptr && ICC::fromUNICODEtoASCII(application->getTimeFormat()).starts_with("12");
}

std::string clockText(std::int64_t time)
{
    const std::int64_t hour = time / HOUR % 24;
    const std::int64_t minute = time / MINUTE % 60;
    if (!hasTwelveHours())
        return formatted("%02ld:%02ld", hour, minute);
    return formatted(hour < 12 ? "%ld:%02ld AM" : "%ld:%02ld PM", hour % 12 == 0 ? 12 : hour % 12, minute);
}

std::string timerText(std::int64_t time, bool hours)
{
    if (!hours && time < HOUR)
        return formatted("%02ld:%02ld", time / MINUTE, time / SECOND % 60);
    return formatted("%02ld:%02ld:%02ld", time / HOUR, time / MINUTE % 60, time / SECOND % 60);
}

/// A number of the text: digits up to a colon or the end.
std::optional<std::int64_t> takeNumber(std::string& text, std::size_t leastDigits, std::size_t mostDigits)
{
    const std::size_t end = std::min(text.find(':'), text.size());
    const std::string digits = text.substr(0, end);
    if (digits.size() < leastDigits || digits.size() > mostDigits ||
        digits.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    text.erase(0, end);
    return std::stoll(digits);
}

/// The milliseconds that "HH:MM:SS" or "MM:SS" stand for; the first number may have one digit.
std::optional<std::int64_t> parseTimer(std::string text)
{
    constexpr std::size_t HOUR_DIGITS = 6;
    const bool hours = std::count(text.begin(), text.end(), ':') == 2;
    std::int64_t seconds = 0;
    const int first = hours ? 0 : 1;
    for (int part = first; part < 3; ++part) {
        const auto number = takeNumber(text, part == first ? 1 : 2, part == 0 ? HOUR_DIGITS : 2);
        const bool last = part == 2;
        if (!number || (part > 0 && *number > 59) || text.empty() != last)
            return std::nullopt;
        seconds = seconds * 60 + *number;
        text.erase(0, 1);
    }
    return seconds * SECOND;
}

} // namespace

RunningTime::RunningTime(std::int64_t milliseconds) : mStart(Clock::instance().now() - milliseconds) {}

std::int64_t RunningTime::milliseconds() const
{
    return std::max<std::int64_t>(0, Clock::instance().now() - mStart);
}

StatusTime::StatusTime()
{
    times().push_back(this);
    currentChanged();
}

StatusTime::~StatusTime()
{
    std::erase(times(), this);
    currentChanged();
}

void StatusTime::currentChanged()
{
    for (StatusTimeView* view : views())
        view->statusTimeChanged();
    scheduleAll();
}

void StatusTime::scheduleAll()
{
    for (StatusTime* time : times())
        time->schedule();
}

const StatusTime* StatusTime::current()
{
    return times().empty() ? nullptr : times().back();
}

void StatusTime::watch(StatusTimeView& view, bool on)
{
    const auto found = std::find(views().begin(), views().end(), &view);
    if (on == (found != views().end()))
        return;
    if (on)
        views().push_back(&view);
    else
        views().erase(found);
    scheduleAll();
}

int StatusTime::Message(const PegMessage& message)
{
    if (message.wType != PM_TIMER)
        return PegThing::Message(message);
    tellViews();
    schedule();
    return 0;
}

template <typename Change>
void StatusTime::change(Change apply)
{
    const std::string before = text();
    apply();
    if (text() != before)
        tellViews();
    schedule();
}

void StatusTime::showClock(bool on)
{
    change([&] { mClockShown = on; });
}

void StatusTime::setClock(int hours, int minutes, int seconds)
{
    const std::int64_t time =
        std::clamp(hours, 0, 23) * HOUR + std::clamp(minutes, 0, 59) * MINUTE + std::clamp(seconds, 0, 59) * SECOND;
    change([&] { mClock = RunningTime(time); });
}

void StatusTime::setTimer(const std::string& text)
{
    change([&] {
        const auto start = parseTimer(text);
        mTimer = start ? std::optional(RunningTime(*start)) : std::nullopt;
        mTimerHasHours = std::count(text.begin(), text.end(), ':') == 2;
        mStandingText = start ? std::string() : text;
    });
}

void StatusTime::stopTimer()
{
    setTimer({});
}

std::string StatusTime::text() const
{
    if (mTimer)
        return timerText(mTimer->milliseconds(), mTimerHasHours);
    if (!mStandingText.empty())
        return mStandingText;
    return mClockShown ? clockText(mClock.milliseconds()) : std::string();
}

bool StatusTime::runs() const
{
    return mTimer || (mClockShown && mStandingText.empty());
}

void StatusTime::tellViews() const
{
    for (StatusTimeView* view : views()) {
        if (view->statusTime() == this)
            view->statusTimeChanged();
    }
}

bool StatusTime::isWatched() const
{
    return std::any_of(views().begin(), views().end(),
                       [this](const StatusTimeView* view) { return view->statusTime() == this; });
}

void StatusTime::schedule()
{
    if (runs() && isWatched())
        SetTimer(TICK, untilNextText(), false);
    else
        KillTimer(TICK);
}

int StatusTime::untilNextText() const
{
    const std::int64_t time = (mTimer ? *mTimer : mClock).milliseconds();
    const std::int64_t unit = mTimer ? SECOND : MINUTE;
    return static_cast<int>(unit - time % unit);
}

} // namespace host
