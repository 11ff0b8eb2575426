#include "Counter.h"
#include "Phone.h"
#include "kit/OnGuiThread.h"

#include <algorithm>
#include <atomic>
#include <sys/prctl.h>

namespace bench {

namespace {

using namespace std::chrono_literals;

/// Threads that post at a steady pace: each sleeps, and then posts what is due.
class PacedPosters {
public:
    explicit PacedPosters(std::vector<Counter>& counters)
    {
        for (Counter& counter : counters)
            mThreads.emplace_back([&] { run(counter); });
    }
    PacedPosters(const PacedPosters&) = delete;
    PacedPosters& operator=(const PacedPosters&) = delete;

    ~PacedPosters()
    {
        mEnd = true;
        for (std::thread& thread : mThreads)
            thread.join();
        DisplayAPI::kit::onGuiThread([] {}); // a facade outlives the requests that are being carried out for it
    }

private:
    static constexpr auto PACE = 20us;
    static constexpr auto REST = 200us;

    void run(Counter& counter)
    {
        prctl(PR_SET_TIMERSLACK, 1);
        for (auto due = Clock::now(); !mEnd; std::this_thread::sleep_for(REST))
            for (const auto now = Clock::now(); due < now; due += PACE)
                counter.count(TEXT, 1);
    }

    std::atomic<bool> mEnd{false};
    std::vector<std::thread> mThreads;
};

/// The part of the calls that `quantile` says takes at most this long, in microseconds.
double amongPosters(double quantile)
{
    constexpr int POSTERS = 8;
    constexpr std::size_t CALLS = 20'000;
    Phone phone;
    std::vector<Counter> counters(POSTERS);
    Counter asked;
    const PacedPosters posters(counters);
    std::vector<double> microseconds(CALLS);
    for (double& figure : microseconds)
        figure = nanosecondsEach(1, [&] { require(asked.value() == 0, "wrong result"); }) / 1e3;
    std::sort(microseconds.begin(), microseconds.end());
    return microseconds[static_cast<std::size_t>(quantile * CALLS)];
}

} // namespace

std::vector<Case> amongPostersCases()
{
    return {{AMONG_POSTERS, "median", "us", [] { return amongPosters(0.5); }},
            {AMONG_POSTERS, "99 %", "us", [] { return amongPosters(0.99); }}};
}

} // namespace bench
