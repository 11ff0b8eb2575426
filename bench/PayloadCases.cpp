#include "Counter.h"
#include "Phone.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"

#include <atomic>
#include <deque>
#include <mutex>

namespace bench {

namespace {

enum class Facades { ONE, ONE_EACH };

double posts(int producers, Facades facades)
{
    Phone phone;
    std::vector<Counter> counters(facades == Facades::ONE ? 1 : static_cast<std::size_t>(producers));
    const auto start = Clock::now();
    runProducers(producers, [&](int i) {
        Counter& counter = counters[static_cast<std::size_t>(i) % counters.size()];
        for (int n = 0; n < POSTS / producers; ++n)
            counter.count(TEXT, n);
    });
    int sum = 0;
    for (Counter& counter : counters)
        sum += counter.value();
    const double figure = millionsPerSecond(sum, start);
    require(sum == POSTS, "lost posts");
    return figure;
}

/// A list under a mutex, which another thread takes away whole: the least that a queue does.
class BareList {
public:
    BareList()
        : mThread([this] {
              while (!mEnd)
                  runAll();
          })
    {
    }

    ~BareList()
    {
        mEnd = true;
        mThread.join();
    }

    template <typename Function>
    void post(Function function)
    {
        std::lock_guard lock(mMutex);
        mQueue.emplace_back(std::move(function));
        ++mPosted;
    }

    void call()
    {
        while (mRun != mPosted)
            std::this_thread::yield();
    }

private:
    void runAll()
    {
        std::deque<std::function<void()>> functions;
        {
            std::lock_guard lock(mMutex);
            functions.swap(mQueue);
        }
        for (auto& function : functions)
            function();
        mRun += static_cast<int>(functions.size());
        if (functions.empty())
            std::this_thread::yield();
    }

    std::mutex mMutex;
    std::deque<std::function<void()>> mQueue;
    std::atomic<int> mPosted{0};
    std::atomic<int> mRun{0};
    std::atomic<bool> mEnd{false};
    std::thread mThread;
};

class Receiver : public DisplayAPI::CommandListener {
public:
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable*) override
    {
        mLetters += command->getBasicText().size() + static_cast<std::size_t>(command->getType());
        mReceived.store(mReceived.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    }

    void waitForAll()
    {
        while (mReceived != POSTS)
            std::this_thread::yield();
    }

private:
    std::size_t mLetters = 0;
    std::atomic<int> mReceived{0};
};

double notifications()
{
    constexpr std::size_t COMMANDS = 64;
    Receiver receiver;
    std::deque<DisplayAPI::Command> commands;
    while (commands.size() < COMMANDS)
        commands.emplace_back(TEXT, DisplayAPI::Command::Type(commands.size() % 2));
    const auto start = Clock::now();
    for (std::size_t i = 0; i < POSTS; ++i)
        receiver.postCommandAction(&commands[i % COMMANDS], nullptr);
    receiver.waitForAll();
    return millionsPerSecond(POSTS, start);
}

} // namespace

std::vector<Case> payloadCases()
{
    std::vector<Case> cases{
        {ONE_WITH_PAYLOAD, "DisplayAPI", "M/s", [] { return posts(1, Facades::ONE); }},
        {TWO_WITH_PAYLOAD, "DisplayAPI, one facade", "M/s", [] { return posts(2, Facades::ONE); }},
        {TWO_WITH_PAYLOAD, "DisplayAPI, a facade each", "M/s", [] { return posts(2, Facades::ONE_EACH); }},
        {LABELLED_NOTIFICATIONS, "DisplayAPI", "M/s", notifications},
        {ONE_WITH_PAYLOAD, "reference: a list under a mutex", "M/s", [] { return postsWithPayload<BareList>(1); }},
        {TWO_WITH_PAYLOAD, "reference: a list under a mutex", "M/s", [] { return postsWithPayload<BareList>(2); }}};
    for (int producers = 1; producers <= 32; producers *= 2)
        cases.push_back({SCALE, std::to_string(producers), "M/s", [=] { return posts(producers, Facades::ONE_EACH); }});
    return cases;
}

} // namespace bench
