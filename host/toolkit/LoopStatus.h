#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <pthread.h>

class PegThing;

namespace host {

/// What the GUI loop lets other threads know. The main queue's mutex guards what is not atomic.
struct LoopStatus {
    static LoopStatus& instance();

    /// Whether there is nothing left to do, and nobody has brought anything since. REQUIRES: the queue's mutex is held.
    bool isIdle() const;

    pthread_cond_t becameIdle;
    std::atomic<unsigned int> threadId{0};  ///< 0 while no loop runs
    std::atomic<unsigned int> guiThread{0}; ///< who has started the toolkit; 0 while that does not run
    std::atomic<int> watchers{0};           ///< who wants to hear of becameIdle, or looks when it comes
    bool restsWithoutWork = false;
    std::uint64_t begun = 0; ///< messages and timers: the GUI thread counts without the mutex, while it does not rest

    /// The GUI thread begins with something new, or waits for it. GUI thread only.
    void beginWork();
    void beginRest();

    /// How long ago it has begun; zero while it rests.
    std::chrono::milliseconds busyFor() const;
    bool isBusy() const;

    /// Who ends the loop; null while the toolkit does not run.
    void setRoot(PegThing* root);

    /// Sends PM_EXIT to the root, if there is one.
    void askForExit();

private:
    LoopStatus();

    std::atomic<std::int64_t> mBusySince; ///< milliseconds of real time
    std::mutex mRootMutex;                ///< held while the message is pushed, so that the root cannot die meanwhile
    PegThing* mRoot = nullptr;
};

} // namespace host
