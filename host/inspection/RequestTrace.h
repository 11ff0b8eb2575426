#pragma once

#include "host/inspection/TraceClock.h"
#include "utilities/RequestObserver.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// One request of those that have been queued. Times are nanoseconds of the monotonic clock.
struct TracedRequest {
    std::string facade;
    std::string code; ///< its name; where it has none the number
    int number = 0;
    int thread = 0;
    std::string threadName;
    std::int64_t queued = 0;
    std::optional<std::int64_t> run;
    std::optional<std::int64_t> done;
    bool isAwaited = false;
    std::string purgedBy; ///< "worker-1 (4711)"; empty unless it has been purged
};

/// Keeps what becomes of each request, in a ring for each thread: what is not taken in time is overwritten. Off until
/// it is switched on. Safe from any thread.
///
/// Lock: a mutex guards the rings' list and what is read of them, a leaf; who writes takes it for its first line alone,
/// maybe inside the main queue's mutexes.
class RequestTrace final : public RequestObserver {
public:
    static RequestTrace& instance();

    /// What has been kept is gone when it is switched on.
    void enable(bool on);
    bool isEnabled() const { return gpRequestObserver.load(std::memory_order_relaxed) == this; }

    struct Taken {
        std::vector<TracedRequest> records; ///< oldest first
        std::uint64_t lost = 0;             ///< requests that were overwritten
    };

    /// What has been since it was taken last, the newest requests of it; the others count as lost. Those that are under
    /// way are told each time until they have ended.
    Taken take(std::size_t most = MOST_TAKEN);
    static constexpr std::size_t MOST_TAKEN = 4000; ///< as JSON less than the 1 MiB that clients take

    std::int32_t queued(const std::type_info& facade, int code, bool isAwaited) override;
    void begun(std::int32_t number) override;
    void done(std::int32_t number) override;
    void purged(std::int32_t number) override;

private:
    class Ring;
    class Tenancy;
    struct Event;

    RequestTrace() = default;

    Ring* ring();
    Ring* newRing();
    void giveBack(Ring& ring);
    void write(std::uint64_t kind, std::int32_t number);
    void readAll(std::vector<Event>& events, std::int64_t& horizon);
    void open(const Event& event);
    bool change(const Event& event);
    void dropOverwritten(std::int64_t horizon);

    std::mutex mMutex;
    TraceClock mClock;                           ///< its ticks anybody's
    std::vector<std::unique_ptr<Ring>> mRings;   ///< they stay, and serve one thread after the other
    std::map<std::int32_t, TracedRequest> mOpen; ///< by the request's number
    std::vector<Event> mUnmatched;               ///< of requests whose ring was read too early
    std::uint64_t mLost = 0;
};

} // namespace host
