#include "host/toolkit/Timers.h"

#include "host/clock/Clock.h"
#include "host/toolkit/LoopStatus.h"
#include "toolkit/PegThing.h"

#include <algorithm>
#include <limits>

namespace host {

Timers& Timers::instance()
{
    static Timers* const timers = new Timers;
    return *timers;
}

void Timers::insert(std::int64_t due, const Timer& timer)
{
    mByThing[{timer.thing, timer.id}] = mByDue.emplace(due, timer);
}

Timers::ByThing::iterator Timers::remove(ByThing::iterator timer)
{
    mByDue.erase(timer->second);
    return mByThing.erase(timer);
}

void Timers::set(PegThing* thing, std::int32_t id, int ms, bool repeat)
{
    kill(thing, id);
    const int period = std::max(ms, 1);
    insert(Clock::instance().now() + period, {thing, id, repeat ? period : 0});
    publishNextDue();
}

void Timers::kill(const PegThing* thing, std::int32_t id)
{
    const auto timer = mByThing.find({thing, id});
    if (timer == mByThing.end())
        return;
    remove(timer);
    publishNextDue();
}

void Timers::killAll(const PegThing* thing)
{
    auto timer = mByThing.lower_bound({thing, std::numeric_limits<std::int32_t>::min()});
    while (timer != mByThing.end() && timer->first.first == thing)
        timer = remove(timer);
    publishNextDue();
}

void Timers::fireDue()
{
    if (mByDue.empty())
        return;
    const std::int64_t now = Clock::instance().now();
    while (!mByDue.empty() && mByDue.begin()->first <= now) {
        const auto [due, timer] = *mByDue.begin();
        remove(mByThing.find({timer.thing, timer.id}));
        if (timer.period > 0) { // a loop that was late does not catch up
            const std::int64_t next = due + timer.period;
            insert(next > now ? next : now + timer.period, timer);
        }
        publishNextDue();
        ++LoopStatus::instance().begun;
        timer.thing->Message({PM_TIMER, timer.id, timer.thing});
    }
}

void Timers::publishNextDue() const
{
    Clock::instance().setTimerDue(mByDue.empty() ? Clock::NEVER : mByDue.begin()->first);
}

} // namespace host
