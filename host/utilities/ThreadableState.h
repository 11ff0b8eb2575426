#pragma once

#include "utilities/Threadable.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <pthread.h>

/// A started thread as those see it who wait for it. Shared by the object and the thread, so it outlives both.
struct Threadable::State {
    State() = default;
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    /// Gives back a thread that nobody has waited for.
    ~State();

    /// Makes the thread. Returns false when the system has none to give.
    bool start(void* (*body)(void*), void* argument);

    /// Called by the thread itself, first and last.
    void begin();
    void end();

    void waitForEnd();

    std::atomic<unsigned int> threadId{0};

private:
    enum Phase { NOT_RUNNING, RUNNING, ENDED };

    std::mutex mMutex;
    std::condition_variable mEnded;
    Phase mPhase = NOT_RUNNING;
    pthread_t mThread{};
    bool mJoinable = false;
};
