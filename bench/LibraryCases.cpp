#include "Counter.h"
#include "Phone.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"

#include <atomic>

namespace bench {

namespace {

double posts(int producers)
{
    Phone phone;
    std::vector<Counter> counters(static_cast<std::size_t>(producers));
    const auto start = Clock::now();
    runProducers(producers, [&](int i) {
        for (int n = 0; n < POSTS / producers; ++n)
            counters[static_cast<std::size_t>(i)].count();
    });
    int sum = 0;
    for (Counter& counter : counters)
        sum += counter.value();
    const double figure = millionsPerSecond(sum, start);
    require(sum == POSTS, "lost posts");
    return figure;
}

class Receiver : public DisplayAPI::CommandListener {
public:
    void commandAction(DisplayAPI::Command*, DisplayAPI::Displayable*) override
    {
        mReceived.fetch_add(1, std::memory_order_relaxed);
    }

    void waitForAll()
    {
        while (mReceived != POSTS)
            std::this_thread::yield();
    }

private:
    std::atomic<int> mReceived{0};
};

double notifications()
{
    Receiver receiver;
    DisplayAPI::Command command("", DisplayAPI::Command::OK);
    const auto start = Clock::now();
    for (int i = 0; i < POSTS; ++i)
        receiver.postCommandAction(&command, nullptr);
    receiver.waitForAll();
    return millionsPerSecond(POSTS, start);
}

} // namespace

double libraryCall(Seats seats, int calls)
{
    const SeatedCaller caller(seats);
    Phone phone(seats);
    Counter counter;
    return nanosecondsEach(calls, [&] { require(counter.value() == 0, "wrong result"); });
}

std::vector<Case> libraryCases()
{
    return {{PINNED, "DisplayAPI", "ns", [] { return libraryCall(ONE_CPU, ROUND_TRIPS); }},
            {UNPINNED, "DisplayAPI", "ns", [] { return libraryCall(FREE, ROUND_TRIPS); }},
            {PINNED_APART, "DisplayAPI", "ns", [] { return libraryCall(TWO_CPUS, ROUND_TRIPS); }},
            {ONE_PRODUCER, "DisplayAPI", "M/s", [] { return posts(1); }},
            {TWO_PRODUCERS, "DisplayAPI", "M/s", [] { return posts(2); }},
            {NOTIFICATIONS, "DisplayAPI", "M/s", [] { return notifications(); }}};
}

} // namespace bench
