#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace host {

/// The time that every timer and time-out of the host uses, in milliseconds: the machine's, or a virtual one that
/// stands still until it is advanced. Safe from any thread.
///
/// Lock: a leaf, but that advancing broadcasts the main queue's condition (the queue's mutex is taken alone).
class Clock {
public:
    static Clock& instance();

    /// Milliseconds since some moment in the past; never goes back.
    std::int64_t now() const;

    /// Stops real time: from here on only advance() moves it. Before the toolkit starts. The environment variable
    /// DISPLAYAPI_CLOCK=virtual does the same at process start.
    void makeVirtual();
    void makeReal();
    bool isVirtual() const;

    /// Moves the virtual clock, from one due time to the next so that sleepers and timers run in order, and wakes the
    /// GUI loop. Negative values are ignored, and so is the call while the clock is real.
    void advance(std::int64_t ms);

    /// Sleeps on this clock. Returns early with false when `stop` (may be null) becomes true; look at wakeSleepers().
    bool sleepFor(std::int64_t ms, const bool* stop = nullptr);

    /// Lets all sleepers look at their `stop` flags, which the caller changes inside `change`, under the clock's lock.
    template <typename Change>
    void wakeSleepers(Change change)
    {
        std::lock_guard lock(mMutex);
        change();
        mMoved.notify_all();
    }

private:
    mutable std::mutex mMutex;
    std::condition_variable mMoved;
    bool mVirtual = false;
    std::int64_t mVirtualNow = 0;
};

} // namespace host
