#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace exchange {

/// What is to be done later, in the order of the clock; at one moment in the order in which it was planned. For whoever
/// holds the exchange's lock.
class Schedule {
public:
    static constexpr std::int64_t NEVER = std::numeric_limits<std::int64_t>::max();

    /// Names what was planned until it is done; the empty one names nothing.
    using Ticket = std::pair<std::int64_t, std::uint64_t>;

    explicit Schedule(std::int64_t now) : mNow(now) {}

    /// The moment up to which all is done.
    std::int64_t now() const { return mNow; }

    Ticket in(std::int64_t milliseconds, std::function<void()> work);

    /// Leaves it out and empties the ticket. What has been done already does not matter.
    void cancel(Ticket& ticket);

    /// Milliseconds until it is done; nothing where it has been, or was never planned.
    std::optional<std::int64_t> left(const Ticket& ticket) const;

    /// Does what is due until then, each at its own moment, what it plans itself included.
    void runUntil(std::int64_t moment);

    /// NEVER when nothing is planned.
    std::int64_t nextDue() const;

private:
    std::int64_t mNow;
    std::uint64_t mPlanned = 0;
    std::map<Ticket, std::function<void()>> mWork;
};

} // namespace exchange
