#pragma once

#include <atomic>
#include <functional>
#include <thread>

namespace test {

/// A thread that does one piece of work, in place of an application's. Joined at the end.
class Worker {
public:
    /// Returns when the work has begun.
    explicit Worker(std::function<void()> work);
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;
    ~Worker();

    /// Whether the work has been done. Never true too early.
    bool hasReturned() const { return mReturned; }

    /// Whether the thread sleeps in the kernel in the middle of its work. Waits until it either does or has returned,
    /// so no test has to guess how long a thread needs to get stuck.
    bool isBlocked() const;

    /// Waits until the work has been done.
    void join();

    unsigned int threadId() const { return mThreadId; }

private:
    std::atomic<unsigned int> mThreadId{0};
    std::atomic<bool> mReturned{false};
    std::thread mThread;
};

/// Runs `work` on a thread of its own to its end.
void onOtherThread(std::function<void()> work);

/// Waits for a condition that no event announces. Without limit: the watchdog has one.
template <typename Condition>
void waitUntil(Condition condition)
{
    while (!condition())
        std::this_thread::sleep_for(std::chrono::microseconds(200));
}

} // namespace test
