#include "Cases.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <uv.h>

namespace bench {

namespace {

/// A loop that is woken by uv_async_send() and empties a queue under a mutex, as the library's documentation advises.
class Loop {
public:
    Loop()
    {
        uv_loop_init(&mLoop);
        uv_async_init(&mLoop, &mAsync, [](uv_async_t* async) { static_cast<Loop*>(async->data)->drain(); });
        mAsync.data = this;
        mThread = std::thread([this] { uv_run(&mLoop, UV_RUN_DEFAULT); });
    }

    ~Loop()
    {
        post([this] { uv_close(reinterpret_cast<uv_handle_t*>(&mAsync), nullptr); });
        mThread.join();
        uv_loop_close(&mLoop);
    }

    void post(std::function<void()> function)
    {
        {
            std::lock_guard lock(mMutex);
            mQueue.push_back(std::move(function));
        }
        uv_async_send(&mAsync);
    }

    void call()
    {
        bool done = false;
        std::mutex mutex;
        std::condition_variable condition;
        post([&] {
            std::lock_guard lock(mutex);
            done = true;
            condition.notify_one();
        });
        std::unique_lock lock(mutex);
        condition.wait(lock, [&] { return done; });
    }

private:
    void drain()
    {
        std::vector<std::function<void()>> functions;
        {
            std::lock_guard lock(mMutex);
            functions.swap(mQueue);
        }
        for (auto& function : functions)
            function();
    }

    uv_loop_t mLoop;
    uv_async_t mAsync;
    std::mutex mMutex;
    std::vector<std::function<void()>> mQueue;
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

std::vector<Case> libuvCases()
{
    std::vector<Case> cases{{UNPINNED, "libuv", "ns",
                             [] {
                                 Loop loop;
                                 return nanosecondsEach(ROUND_TRIPS, [&] { loop.call(); });
                             }},
                            {ONE_PRODUCER, "libuv", "M/s", [] { return posts(1); }},
                            {TWO_PRODUCERS, "libuv", "M/s", [] { return posts(2); }}};
    return cases + payloadCasesOf<Loop>("libuv");
}

} // namespace bench
