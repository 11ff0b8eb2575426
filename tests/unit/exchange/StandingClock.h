#pragma once

#include "apps/exchange/Clock.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>

namespace test {

/// Stands still until the test moves it.
class StandingClock final : public exchange::Clock {
public:
    std::int64_t now() const override
    {
        const std::lock_guard lock(mMutex);
        return mNow;
    }

    void sleepUntil(std::int64_t until) override
    {
        std::unique_lock lock(mMutex);
        mMoved.wait(lock, [&] { return mIsWoken || mNow >= until; });
        mIsWoken = false;
    }

    void wake() override
    {
        const std::lock_guard lock(mMutex);
        mIsWoken = true;
        mMoved.notify_all();
    }

    void pass(std::int64_t milliseconds)
    {
        const std::lock_guard lock(mMutex);
        mNow += milliseconds;
        mMoved.notify_all();
    }

private:
    mutable std::mutex mMutex;
    std::condition_variable mMoved;
    std::int64_t mNow = 0;
    bool mIsWoken = false;
};

} // namespace test
