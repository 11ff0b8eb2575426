#include "host/toolkit/Timers.h"

#include "host/clock/Clock.h"
#include "toolkit/PegThing.h"

#include <algorithm>

namespace host {

Timers& Timers::instance()
{
    static Timers* const timers = new Timers;
    return *timers;
}

template <typename Unwanted>
void Timers::remove(Unwanted unwanted)
{
    std::erase_if(mByDue, [&](const auto& entry) { return unwanted(entry.second); });
    publishNextDue();
}

void Timers::set(PegThing* thing, std::int32_t id, int ms, bool repeat)
{
    kill(thing, id);
    const int period = std::max(ms, 1);
    mByDue.emplace(Clock::instance().now() + period, Timer{thing, id, repeat ? period : 0});
    publishNextDue();
}

void Timers::kill(const PegThing* thing, std::int32_t id)
{
    remove([=](const Timer& timer) { return timer.thing == thing && timer.id == id; });
}

void Timers::killAll(const PegThing* thing)
{
    remove([=](const Timer& timer) { return timer.thing == thing; });
}

void Timers::fireDue()
{
    if (mByDue.empty())
        return;
    const std::int64_t now = Clock::instance().now();
    while (!mByDue.empty() && mByDue.begin()->first <= now) {
        const auto [due, timer] = *mByDue.begin();
        mByDue.erase(mByDue.begin());
        if (timer.period > 0) { // a loop that was late does not catch up
            const std::int64_t next = due + timer.period;
            mByDue.emplace(next > now ? next : now + timer.period, timer);
        }
        publishNextDue();
        timer.thing->Message({PM_TIMER, timer.id, timer.thing});
    }
}

void Timers::publishNextDue() const
{
    Clock::instance().setTimerDue(mByDue.empty() ? Clock::NEVER : mByDue.begin()->first);
}

} // namespace host
