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
    explicit Loop(Seats seats = FREE)
        : mThread([this, seats] {
              pinTo(seats.loop);
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

double posts(int producers)
{
    Loop loop;
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

double textbookCall(Seats seats, int calls)
{
    const SeatedCaller caller(seats);
    Loop loop(seats);
    return nanosecondsEach(calls, [&] { loop.call(); });
}

std::vector<Case> mutexLoopCases()
{
    const char* const name = TEXTBOOK;
    std::vector<Case> cases{{PINNED, name, "ns", [] { return textbookCall(ONE_CPU, ROUND_TRIPS); }},
                            {PINNED_APART, name, "ns", [] { return textbookCall(TWO_CPUS, ROUND_TRIPS); }},
                            {UNPINNED, name, "ns", [] { return textbookCall(FREE, ROUND_TRIPS); }},
                            {ONE_PRODUCER, name, "M/s", [] { return posts(1); }},
                            {TWO_PRODUCERS, name, "M/s", [] { return posts(2); }}};
    return cases + payloadCasesOf<Loop>(name);
}

} // namespace bench
