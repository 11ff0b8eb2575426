#include "host/widgets/status/StatusTime.h"

#include "host/clock/Clock.h"
#include "host/widgets/status/TimeText.h"

#include <algorithm>
#include <vector>

namespace host {

namespace {

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

bool isWatching(const StatusTimeView& view)
{
    return std::find(views().begin(), views().end(), &view) != views().end();
}

/// Those to which it applies when their turn comes.
template <typename Applies>
void tell(Applies applies)
{
    for (StatusTimeView* view : std::vector<StatusTimeView*>(views())) {
        if (isWatching(*view) && applies(*view))
            view->statusTimeChanged();
    }
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
}

StatusTime::~StatusTime()
{
    std::erase(times(), this);
    if (!text().empty())
        currentChanged();
}

void StatusTime::currentChanged()
{
    tell([](const StatusTimeView&) { return true; });
    scheduleAll();
}

void StatusTime::scheduleAll()
{
    for (StatusTime* time : times())
        time->schedule();
}

const StatusTime* StatusTime::current()
{
    const auto shown =
        std::find_if(times().rbegin(), times().rend(), [](const StatusTime* time) { return !time->text().empty(); });
    return shown == times().rend() ? nullptr : *shown;
}

void StatusTime::watch(StatusTimeView& view, bool on)
{
    if (on == isWatching(view))
        return;
    if (on)
        views().push_back(&view);
    else
        std::erase(views(), &view);
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
    if (text().empty() != before.empty())
        return currentChanged();
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
    tell([this](const StatusTimeView& view) { return view.statusTime() == this; });
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
