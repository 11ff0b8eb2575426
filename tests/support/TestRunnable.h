#pragma once

#include "DisplayAPI/Runnable.h"

#include <functional>
#include <latch>
#include <utility>

namespace test {

/// A function as a pool's work; `deleted` runs when the pool has deleted it.
class TestRunnable : public DisplayAPI::Runnable {
public:
    explicit TestRunnable(
        std::function<void()> work, std::function<void()> deleted = [] {})
        : mWork(std::move(work)), mDeleted(std::move(deleted))
    {
    }
    ~TestRunnable() override { mDeleted(); }

    void run() override { mWork(); }

private:
    std::function<void()> mWork;
    std::function<void()> mDeleted;
};

/// Work that begins and then waits until the test lets it end. One runnable each.
class HeldWork {
public:
    DisplayAPI::Runnable* newRunnable()
    {
        return new TestRunnable(
            [this] {
                mEntered.count_down();
                mOpened.wait();
            },
            [this] { mGone.count_down(); });
    }

    void waitUntilEntered() const { mEntered.wait(); }
    void open() { mOpened.count_down(); }

    /// Waits until the runnable has been deleted.
    void waitUntilGone() const { mGone.wait(); }

private:
    std::latch mEntered{1};
    std::latch mOpened{1};
    std::latch mGone{1};
};

} // namespace test
