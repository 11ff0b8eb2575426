#include "Cases.h"

#include <asio.hpp>
#include <atomic>
#include <future>
#include <thread>

namespace bench {

namespace {

class Loop {
public:
    Loop() : mWork(asio::make_work_guard(mContext)), mThread([this] { mContext.run(); }) {}

    ~Loop()
    {
        mWork.reset();
        mThread.join();
    }

    template <typename Function>
    void post(Function function)
    {
        asio::post(mContext, std::move(function));
    }

    void call()
    {
        std::promise<void> done;
        post([&] { done.set_value(); });
        done.get_future().wait();
    }

private:
    asio::io_context mContext;
    asio::executor_work_guard<asio::io_context::executor_type> mWork;
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

std::vector<Case> asioCases()
{
    std::vector<Case> cases{{UNPINNED, "asio", "ns",
                             [] {
                                 Loop loop;
                                 return nanosecondsEach(ROUND_TRIPS, [&] { loop.call(); });
                             }},
                            {ONE_PRODUCER, "asio", "M/s", [] { return posts(1); }},
                            {TWO_PRODUCERS, "asio", "M/s", [] { return posts(2); }}};
    return cases + payloadCasesOf<Loop>("asio");
}

} // namespace bench
