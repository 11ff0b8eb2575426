#pragma once

#include <memory>

/// Something with a body that a thread of its own runs. Started by a Threader.
class Threadable {
public:
    Threadable();
    Threadable(const Threadable&) = delete;
    Threadable& operator=(const Threadable&) = delete;
    virtual ~Threadable();

    /// The thread's body. It may delete the object before it returns.
    virtual void run() = 0;

    virtual int getThreadPriorityForPlatform();
    virtual int type();

    /// The calling thread's id: never 0, not used again while the thread lives.
    static unsigned int currentThreadId();

    /// Returns when the body has ended, at once when it was never started.
    void waitForThreadCompletion();

    /// The same for a body that deletes its object: take the state while the object certainly lives, and wait on that.
    struct State;
    std::shared_ptr<State> state() const { return mState; }
    static void waitForThreadCompletion(State& state);

    /// Whether the calling thread is the one that runs this body.
    bool isCurrentThread() const;

private:
    friend class Threader;
    std::shared_ptr<State> mState;
};
