#include "Counter.h"
#include "Phone.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"

#include <atomic>
#include <deque>

namespace bench {

namespace {

enum class Payload { NONE, TEXT_AND_NUMBER };
enum class Facades { ONE, ONE_EACH };

double posts(int producers, Payload payload, Facades facades = Facades::ONE_EACH)
{
    Phone phone;
    std::vector<Counter> counters(facades == Facades::ONE ? 1 : static_cast<std::size_t>(producers));
    const auto start = Clock::now();
    runProducers(producers, [&](int i) {
        Counter& counter = counters[static_cast<std::size_t>(i) % counters.size()];
        for (int n = 0; n < POSTS / producers; ++n)
            payload == Payload::NONE ? counter.count() : counter.count(TEXT, n);
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
    explicit Receiver(Payload payload) : mPayload(payload) {}

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable*) override
    {
        if (mPayload != Payload::NONE)
            mLetters += command->getBasicText().size() + static_cast<std::size_t>(command->getType());
        mReceived.store(mReceived.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    }

    void waitForAll()
    {
        while (mReceived != POSTS)
            std::this_thread::yield();
    }

private:
    const Payload mPayload;
    std::size_t mLetters = 0;
    std::atomic<int> mReceived{0};
};

double notifications(Payload payload)
{
    const std::size_t count = payload == Payload::NONE ? 1 : 64;
    Receiver receiver(payload);
    std::deque<DisplayAPI::Command> commands;
    while (commands.size() < count)
        commands.emplace_back(payload == Payload::NONE ? "" : TEXT, DisplayAPI::Command::Type(commands.size() % 2));
    const auto start = Clock::now();
    for (std::size_t i = 0; i < POSTS; ++i)
        receiver.postCommandAction(&commands[i % count], nullptr);
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
    constexpr auto NONE = Payload::NONE;
    constexpr auto TEXT_AND_NUMBER = Payload::TEXT_AND_NUMBER;
    std::vector<Case> cases{
        {PINNED, "DisplayAPI", "ns", [] { return libraryCall(ONE_CPU, ROUND_TRIPS); }},
        {UNPINNED, "DisplayAPI", "ns", [] { return libraryCall(FREE, ROUND_TRIPS); }},
        {PINNED_APART, "DisplayAPI", "ns", [] { return libraryCall(TWO_CPUS, ROUND_TRIPS); }},
        {ONE_PRODUCER, "DisplayAPI", "M/s", [] { return posts(1, NONE); }},
        {TWO_PRODUCERS, "DisplayAPI", "M/s", [] { return posts(2, NONE); }},
        {NOTIFICATIONS, "DisplayAPI", "M/s", [] { return notifications(NONE); }},
        {ONE_WITH_PAYLOAD, "DisplayAPI", "M/s", [] { return posts(1, TEXT_AND_NUMBER); }},
        {TWO_WITH_PAYLOAD, "DisplayAPI, one facade", "M/s", [] { return posts(2, TEXT_AND_NUMBER, Facades::ONE); }},
        {TWO_WITH_PAYLOAD, "DisplayAPI, a facade each", "M/s", [] { return posts(2, TEXT_AND_NUMBER); }},
        {LABELLED_NOTIFICATIONS, "DisplayAPI", "M/s", [] { return notifications(TEXT_AND_NUMBER); }}};
    for (int producers = 1; producers <= 32; producers *= 2)
        cases.push_back({SCALE, std::to_string(producers), "M/s", [=] { return posts(producers, TEXT_AND_NUMBER); }});
    return cases;
}

} // namespace bench
