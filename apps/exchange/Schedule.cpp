#include "apps/exchange/Schedule.h"

#include <algorithm>

namespace exchange {

Schedule::Ticket Schedule::in(std::int64_t milliseconds, std::function<void()> work)
{
    const Ticket ticket{mNow + milliseconds, ++mPlanned};
    mWork.emplace(ticket, std::move(work));
    return ticket;
}

void Schedule::cancel(Ticket& ticket)
{
    mWork.erase(std::exchange(ticket, Ticket()));
}

std::optional<std::int64_t> Schedule::left(const Ticket& ticket) const
{
    return mWork.contains(ticket) ? std::optional(ticket.first - mNow) : std::nullopt;
}

void Schedule::runUntil(std::int64_t moment)
{
    while (nextDue() <= moment) {
        const auto next = mWork.extract(mWork.begin());
        mNow = std::max(mNow, next.key().first);
        next.mapped()();
    }
    mNow = std::max(mNow, moment);
}

std::int64_t Schedule::nextDue() const
{
    return mWork.empty() ? NEVER : mWork.begin()->first.first;
}

} // namespace exchange
