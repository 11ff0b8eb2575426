#pragma once

#include <cstdint>
#include <map>
#include <utility>

class PegThing;

namespace host {

/// The timers of all things, in the order in which they are due; equal ones in the order in which they were set.
/// GUI thread only. Times are the host's clock's.
class Timers {
public:
    static Timers& instance();

    /// Starts a timer, or starts a running one anew. Less than a millisecond counts as one.
    void set(PegThing* thing, std::int32_t id, int ms, bool repeat);
    void kill(const PegThing* thing, std::int32_t id);
    void killAll(const PegThing* thing);

    /// Sends PM_TIMER for each timer that is due. Receivers may set and kill timers, and delete things.
    void fireDue();

private:
    struct Timer {
        PegThing* thing;
        std::int32_t id;
        int period; ///< 0 where it does not repeat
    };

    using ByDue = std::multimap<std::int64_t, Timer>;
    using ByThing = std::map<std::pair<const PegThing*, std::int32_t>, ByDue::iterator>;

    void insert(std::int64_t due, const Timer& timer);
    ByThing::iterator remove(ByThing::iterator timer);
    void publishNextDue() const;

    ByDue mByDue;
    ByThing mByThing;
};

} // namespace host
