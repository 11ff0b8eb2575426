#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace test {

/// Long enough for the slowest machine under a sanitizer; only a failing test waits that long.
constexpr std::chrono::seconds PATIENCE{60};

/// Opened once; whoever waits goes on then.
class Gate {
public:
    void open()
    {
        std::lock_guard lock(mMutex);
        mOpen = true;
        mOpened.notify_all();
    }

    bool isOpen()
    {
        std::lock_guard lock(mMutex);
        return mOpen;
    }

    bool wait()
    {
        std::unique_lock lock(mMutex);
        return mOpened.wait_for(lock, PATIENCE, [this] { return mOpen; });
    }

private:
    std::mutex mMutex;
    std::condition_variable mOpened;
    bool mOpen = false;
};

/// Looks until `condition()` holds, for things that nobody announces.
template <typename Condition>
bool becomesTrue(Condition condition)
{
    const auto end = std::chrono::steady_clock::now() + PATIENCE;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::yield();
    }
    return true;
}

} // namespace test
