#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

/// A counting semaphore. From any thread.
class Semaphore {
public:
    enum State { NOT_AVAILABLE, AVAILABLE };

    /// Starts with `maximum` permits when available, with none otherwise. With `holderMayTakeAgain` a thread that holds
    /// a permit takes it again at once; it has to give it back as many times.
    Semaphore(State state, int maximum, bool holderMayTakeAgain);
    Semaphore(const Semaphore&) = delete;
    Semaphore& operator=(const Semaphore&) = delete;
    virtual ~Semaphore();

    /// Waits up to `milliseconds` for a permit; -1 waits without limit, 0 does not wait. Returns whether it got one.
    bool take(int milliseconds);

    /// Gives a permit back and lets one waiter go on. Never passes the maximum: what is too much is dropped.
    void give();

private:
    struct Holders;

    bool takeLock(int milliseconds);
    bool takeAnnounced(int milliseconds);

    std::atomic<std::uint64_t> mState; ///< permits, and who sleeps
    const std::uint32_t mMaximum;
    std::atomic<std::int16_t> mCpu{-1}; ///< the holder's, or for taker and giver to tell each other where they run
    const bool mIsLock;
    const std::unique_ptr<Holders> mHolders; ///< null where it may not be taken again
};
