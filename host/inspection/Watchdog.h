#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <set>
#include <thread>
#include <utility>
#include <vector>

namespace host {

class WaitGraph;

/// Looks from a thread of its own whether the GUI thread stands still, or somebody waits for it for too long, and says
/// so in the log, once each; on stderr where nobody listens to the log. Lives while the toolkit is up.
///
/// Lock: a mutex guards that it ends, a leaf.
class Watchdog {
public:
    /// What the environment's DISPLAYAPI_WATCHDOG says, in milliseconds; two seconds without it. 0 is never.
    static std::chrono::milliseconds limit();

    /// REQUIRES: `limit` is more than 0.
    explicit Watchdog(std::chrono::milliseconds limit);
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog();

    /// For the toolkit, which is up from then on, or goes down.
    static void start();
    static void stop();

private:
    void run();
    bool isNew(const WaitGraph& graph);
    static void tell(const WaitGraph& graph);

    const std::chrono::milliseconds mLimit;
    std::mutex mMutex;
    std::condition_variable mChanged;
    bool mEnding = false;
    bool mToldOfGui = false;                             ///< of what it is at
    std::set<std::pair<int, std::int64_t>> mToldOfCalls; ///< by thread and since when
    std::vector<int> mToldCycle;                         ///< a certain one, within what the GUI thread is at
    std::thread mThread;
};

} // namespace host
