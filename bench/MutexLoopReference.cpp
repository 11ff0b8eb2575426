#include "Cases.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>

namespace bench {

namespace {

/// The textbook loop: a mutex, a condition variable, a deque of functions.
class Loop {
public:
    explicit Loop(bool pinned)
        : mThread([this, pinned] {
              if (pinned)
                  pinTo(0);
              run();
          })
    {
    }

    ~Loop()
    {
        post([this] { mEnd = true; });
        mThread.join();
    }

    void post(std::function<void()> function)
    {
        {
            std::lock_guard lock(mMutex);
            mQueue.push_back(std::move(function));
        }
        mCondition.notify_one();
    }

    int call()
    {
        std::promise<int> result;
        post([&] { result.set_value(1); });
        return result.get_future().get();
    }

private:
    void run()
    {
        while (!mEnd) {
            std::unique_lock lock(mMutex);
            mCondition.wait(lock, [this] { return !mQueue.empty(); });
            auto function = std::move(mQueue.front());
            mQueue.pop_front();
            lock.unlock();
            function();
        }
    }

    std::mutex mMutex;
    std::condition_variable mCondition;
    std::deque<std::function<void()>> mQueue;
    bool mEnd = false;
    std::thread mThread;
};

double roundTrip(bool pinned)
{
    if (pinned)
        pinTo(0);
    double each = 0;
    {
        Loop loop(pinned);
        each = nanosecondsEach(ROUND_TRIPS, [&] { loop.call(); });
    }
    unpin();
    return each;
}

double posts(int producers)
{
    Loop loop(false);
    std::atomic<int> done{0};
    const auto start = Clock::now();
    runProducers(producers, [&](int) {
        for (int i = 0; i < POSTS / producers; ++i)
            loop.post([&] { done.fetch_add(1, std::memory_order_relaxed); });
    });
    loop.call();
    return millionsPerSecond(done, start);
}

} // namespace

std::vector<Case> mutexLoopCases()
{
    const char* name = "reference: mutex, condition variable, deque of functions";
    return {{PINNED, name, "ns", [] { return roundTrip(true); }},
            {UNPINNED, name, "ns", [] { return roundTrip(false); }},
            {ONE_PRODUCER, name, "M/s", [] { return posts(1); }},
            {TWO_PRODUCERS, name, "M/s", [] { return posts(2); }}};
}

} // namespace bench
