#pragma once

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
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};
