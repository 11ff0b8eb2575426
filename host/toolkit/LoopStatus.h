#pragma once

#include <atomic>
#include <pthread.h>

namespace host {

/// What the GUI loop lets other threads know. The main queue's mutex guards what is not atomic.
struct LoopStatus {
    static LoopStatus& instance();

    /// Whether there is nothing left to do, and nobody has brought anything since. REQUIRES: the queue's mutex is held.
    bool isIdle() const;

    pthread_cond_t becameIdle;
    std::atomic<unsigned int> threadId{0}; ///< 0 while no loop runs
    std::atomic<int> watchers{0};          ///< threads that wait for becameIdle
    bool restsWithoutWork = false;

private:
    LoopStatus();
};

} // namespace host
