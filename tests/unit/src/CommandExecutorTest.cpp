#include "CommandExecutor.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/DisplayThreadPool.h"
#include "DisplayAPI/ItemStateListener.h"
#include "support/CpuTime.h"
#include "support/LogLines.h"
#include "support/Worker.h"
#include "utilities/Threadable.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <latch>
#include <optional>
#include <string>
#include <type_traits>

using DisplayAPI::Command;
using DisplayAPI::CommandExecutor;
using DisplayAPI::CommandListener;
using DisplayAPI::Displayable;
using DisplayAPI::DisplayThreadPool;
using DisplayAPI::Item;
using DisplayAPI::ItemStateListener;
using host::LogLine;
using test::shown;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(std::is_base_of_v<DisplayAPI::Runnable, CommandExecutor>);

namespace {

constexpr bool START = true;
constexpr bool DO_NOT_START = false;

using Trace = std::vector<std::string>;

class Listener final : public CommandListener, public ItemStateListener {
public:
    Listener(std::string name, Trace& trace) : mName(std::move(name)), mTrace(trace) {}

    void commandAction(Command* command, Displayable*) override
    {
        mTrace.push_back(mName + " " + (command != nullptr ? command->getText() : "null"));
        onCall();
    }

    void itemStateChanged(Item* item) override
    {
        mTrace.push_back(mName + " item " + std::to_string(reinterpret_cast<std::size_t>(item)));
        onCall();
    }

    std::function<void()> onCall = [] {};

private:
    std::string mName;
    Trace& mTrace;
};

class CommandExecutorTest : public testing::Test {
protected:
    CommandExecutorTest() { destroyPool(); }
    ~CommandExecutorTest() override { destroyPool(); }

    static void destroyPool() { delete DisplayThreadPool::instance(1); }

    /// Whether anybody has made a pool since the test began. Makes one.
    static bool hadPool() { return DisplayThreadPool::instance(77)->maxPoolSize() != 77; }

    static void post(CommandListener& listener, Command& command, bool start = DO_NOT_START)
    {
        CommandExecutor::postCommand(&listener, &command, nullptr, start);
    }

    static void post(ItemStateListener& listener, Item* item, bool start = DO_NOT_START)
    {
        CommandExecutor::postCommand(&listener, item, start);
    }

    static void deliver() { CommandExecutor().run(); }

    /// Items by number, never looked at.
    static Item* item(std::size_t number) { return reinterpret_cast<Item*>(number); }

    Trace trace;
    Listener a{"a", trace};
    Listener b{"b", trace};
    Command call{"call", Command::OK};
    Command back{"back", Command::BACK};
};

/// How much of what is queued the executor has taken over and not begun.
enum class Taken { NOTHING, THE_FIRST, ALL };

/// An executor that delivers elsewhere and is stopped: by one notification before anything is posted, and, once it goes
/// on, by another one that it takes over together with all that has been posted by then.
class CommandExecutorPartsTest : public CommandExecutorTest, public testing::WithParamInterface<Taken> {
protected:
    CommandExecutorPartsTest()
    {
        CommandExecutorTest::post(mBefore, item(STOP));
        mExecutor.emplace([] { CommandExecutorTest::deliver(); });
        mBefore.entered.wait();
        CommandExecutorTest::post(mAmong, item(STOP));
    }
    ~CommandExecutorPartsTest() override { deliver(); }

    template <typename What>
    void post(Listener& listener, What&& what)
    {
        CommandExecutorTest::post(listener, what);
        if (GetParam() == Taken::THE_FIRST)
            takeOver();
    }

    template <typename... What>
    void recall(What... what)
    {
        if (GetParam() == Taken::ALL)
            takeOver();
        CommandExecutor::retrieveCommand(what...);
    }

    /// Lets the executor take over what has been posted by now, and stops it again, unless it has done so before.
    void takeOver()
    {
        if (mBefore.isLeft())
            return;
        mBefore.leave();
        mAmong.entered.wait();
    }

    void deliver()
    {
        if (!mExecutor)
            return CommandExecutorTest::deliver();
        takeOver();
        mAmong.leave();
        mExecutor.reset();
    }

private:
    static constexpr std::size_t STOP = 1'000; ///< what no test recalls

    class Stop : public ItemStateListener {
    public:
        void itemStateChanged(Item*) override
        {
            entered.count_down();
            mLeft.wait();
        }

        bool isLeft() const { return mLeft.try_wait(); }
        void leave() { mLeft.count_down(); }

        std::latch entered{1};

    private:
        std::latch mLeft{1};
    };

    Stop mBefore;
    Stop mAmong;
    std::optional<test::Worker> mExecutor;
};

std::string nameOfParts(const testing::TestParamInfo<Taken>& info)
{
    constexpr const char* NAMES[] = {"NothingTaken", "TheFirstTaken", "AllTaken"};
    return NAMES[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(, CommandExecutorPartsTest, testing::Values(Taken::NOTHING, Taken::THE_FIRST, Taken::ALL),
                         nameOfParts);

} // namespace

// Order and merging

TEST_F(CommandExecutorTest, DeliversInTheOrderOfPosting)
{
    post(a, call);
    post(b, call);
    post(a, item(1));
    post(a, back);
    post(b, item(1));

    deliver();

    EXPECT_THAT(trace, ElementsAre("a call", "b call", "a item 1", "a back", "b item 1"));
}

TEST_F(CommandExecutorTest, TheSameCommandTwiceIsDeliveredTwice)
{
    post(a, call);
    post(a, call);
    deliver();
    EXPECT_THAT(trace, ElementsAre("a call", "a call"));
}

TEST_F(CommandExecutorTest, TheSameItemTwiceIsDeliveredOnce)
{
    post(a, item(1));
    post(a, item(2));
    post(a, item(1));
    deliver();
    EXPECT_THAT(trace, ElementsAre("a item 1", "a item 2"));
}

TEST_F(CommandExecutorTest, TheSameItemForTwoListenersIsDeliveredTwice)
{
    post(a, item(1));
    post(b, item(1));
    deliver();
    EXPECT_THAT(trace, ElementsAre("a item 1", "b item 1"));
}

TEST_F(CommandExecutorTest, AnItemThatHasBeenDeliveredIsQueuedAgain)
{
    post(a, item(1));
    deliver();
    post(a, item(1));
    deliver();
    EXPECT_THAT(trace, ElementsAre("a item 1", "a item 1"));
}

TEST_F(CommandExecutorTest, AnItemIsQueuedAgainWhileItIsBeingDelivered)
{
    a.onCall = [&] {
        if (trace.size() == 1)
            post(a, item(1));
    };
    post(a, item(1));
    deliver();
    EXPECT_THAT(trace, ElementsAre("a item 1", "a item 1"));
}

TEST_F(CommandExecutorTest, ANullItemIsDeliveredAndMergedLikeAnyOther)
{
    post(a, item(0));
    post(a, item(0));
    deliver();
    EXPECT_THAT(trace, ElementsAre("a item 0"));
}

TEST_F(CommandExecutorTest, WhatAHandlerPostsIsDeliveredAfterItByTheSameLoop)
{
    a.onCall = [&] {
        if (trace.size() == 1) {
            post(b, back, START);
            EXPECT_THAT(trace, ElementsAre("a call"));
        }
    };
    post(a, call);
    post(a, back);

    deliver();

    EXPECT_THAT(trace, ElementsAre("a call", "a back", "b back"));
    EXPECT_FALSE(hadPool()) << "no other executor was started";
}

TEST_F(CommandExecutorTest, EachOfManyIsDeliveredOnce)
{
    constexpr std::size_t MANY = 10'000;
    for (std::size_t number = 1; number <= MANY; ++number)
        post(a, item(number));
    deliver();
    EXPECT_EQ(trace.size(), MANY);
    EXPECT_EQ(trace.back(), "a item " + std::to_string(MANY));
}

TEST_F(CommandExecutorTest, NullListenersAreIgnored)
{
    CommandExecutor::postCommand(static_cast<CommandListener*>(nullptr), &call, nullptr, START);
    CommandExecutor::postCommand(static_cast<ItemStateListener*>(nullptr), item(1), START);
    EXPECT_FALSE(hadPool());
    deliver();
    EXPECT_THAT(trace, IsEmpty());
}

// Starting

TEST_F(CommandExecutorTest, APostWithStartIsDeliveredOnAThreadOfAPoolOfTen)
{
    std::latch delivered(1);
    unsigned int thread = 0;
    a.onCall = [&] {
        thread = Threadable::currentThreadId();
        delivered.count_down();
    };
    post(a, call, START);
    delivered.wait();

    EXPECT_NE(thread, Threadable::currentThreadId());
    EXPECT_EQ(DisplayThreadPool::instance(1)->maxPoolSize(), 10);
    EXPECT_EQ(DisplayThreadPool::instance(1)->poolSize(), 1);
}

TEST_F(CommandExecutorTest, APostWithoutStartWaitsForTheNextExecutor)
{
    post(a, call, DO_NOT_START);
    post(a, item(1), DO_NOT_START);
    EXPECT_FALSE(hadPool());
    EXPECT_THAT(trace, IsEmpty());
    destroyPool();

    std::latch delivered(1);
    b.onCall = [&] { delivered.count_down(); };
    post(b, back, START);
    delivered.wait();
    EXPECT_THAT(trace, ElementsAre("a call", "a item 1", "b back"));
}

TEST_F(CommandExecutorTest, AnItemPostWithStartIsDeliveredToo)
{
    std::latch delivered(1);
    a.onCall = [&] { delivered.count_down(); };
    post(a, item(1), START);
    delivered.wait();
    EXPECT_THAT(trace, ElementsAre("a item 1"));
}

TEST_F(CommandExecutorTest, WithNothingQueuedAnExecutorEndsAtOnce)
{
    deliver();
    deliver();
    EXPECT_THAT(trace, IsEmpty());
}

TEST_F(CommandExecutorTest, ASecondExecutorEndsAtOnceWhileOneIsDelivering)
{
    a.onCall = [&] {
        deliver();
        EXPECT_EQ(trace.size(), 1u) << "the second notification waits for the first to return";
        a.onCall = [] {};
    };
    post(a, call);
    post(a, back);

    deliver();

    EXPECT_THAT(trace, ElementsAre("a call", "a back"));
}

TEST_F(CommandExecutorTest, WhatIsPostedWhileAHandlerRunsIsDeliveredByTheRunningExecutor)
{
    std::latch entered(1);
    std::latch left(1);
    std::latch delivered(1);
    std::vector<unsigned int> threads;
    a.onCall = [&] {
        threads.push_back(Threadable::currentThreadId());
        entered.count_down();
        left.wait();
    };
    b.onCall = [&] {
        threads.push_back(Threadable::currentThreadId());
        delivered.count_down();
    };
    post(a, call, START);
    entered.wait();
    post(b, call, START);
    EXPECT_EQ(DisplayThreadPool::instance(1)->poolSize(), 1) << "no second executor is started";
    left.count_down();
    delivered.wait();

    EXPECT_THAT(threads, Each(threads[0]));
    EXPECT_THAT(trace, ElementsAre("a call", "b call"));
}

TEST_F(CommandExecutorTest, WhatComesWhileAnExecutorLooksForTheLastTimeIsDelivered)
{
    constexpr int ROUNDS = 400;
    constexpr int LONGEST_PAUSE = 40; // an executor watches the queue for half as many microseconds
    std::atomic<int> delivered{0};
    a.onCall = [&] { ++delivered; };
    for (int round = 1; round <= ROUNDS; ++round) {
        post(a, call, START);
        test::waitUntil([&] { return delivered == round; });
        const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(round % LONGEST_PAUSE);
        while (std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
    }
    EXPECT_EQ(delivered, ROUNDS);
}

TEST_F(CommandExecutorTest, PostingAndRecallingDoNotWaitForARunningHandler)
{
    std::latch entered(1);
    std::latch left(1);
    a.onCall = [&] {
        entered.count_down();
        left.wait();
    };
    post(a, call);
    test::Worker worker([] { deliver(); });
    entered.wait();

    post(a, back);
    CommandExecutor::retrieveCommand(&a, &back, nullptr);

    left.count_down();
    worker.join();
    EXPECT_THAT(trace, ElementsAre("a call"));
}

TEST_F(CommandExecutorTest, ANotificationThatIsBeingDeliveredIsNotRecalled)
{
    a.onCall = [&] { CommandExecutor::retrieveCommand(&a, nullptr, nullptr); };
    post(a, call);
    post(a, back);
    deliver();
    EXPECT_THAT(trace, ElementsAre("a call"));
}

// Recalling

TEST_F(CommandExecutorTest, ManyThreadsMayPostAndRecallAtTheSameTime)
{
    constexpr std::size_t ROUNDS = 20'000;
    const auto rounds = [](auto round) {
        return [round] {
            for (std::size_t number = 1; number <= ROUNDS; ++number)
                round(number);
        };
    };
    Listener c("c", trace);
    {
        test::Worker commands(rounds([&](std::size_t) { post(a, call); }));
        test::Worker items(rounds([&](std::size_t number) { post(b, item(number)); }));
        test::Worker recalledCommands(rounds([&](std::size_t) {
            post(c, back);
            CommandExecutor::retrieveCommand(nullptr, &back, nullptr);
        }));
        test::Worker recalledItems(rounds([&](std::size_t number) {
            post(c, item(number + ROUNDS));
            CommandExecutor::retrieveCommand(&c, item(number + ROUNDS));
        }));
        while (!commands.hasReturned() || !items.hasReturned() || !recalledCommands.hasReturned() ||
               !recalledItems.hasReturned())
            deliver();
    }
    deliver();
    EXPECT_EQ(std::count(trace.begin(), trace.end(), "a call"), ROUNDS);
    EXPECT_EQ(std::count_if(trace.begin(), trace.end(), [](const auto& told) { return told.starts_with("b item"); }),
              ROUNDS);
}

TEST_P(CommandExecutorPartsTest, DeliversInTheOrderOfPosting)
{
    post(a, call);
    post(b, item(1));
    takeOver();
    post(a, item(1));
    post(b, call);
    deliver();
    EXPECT_THAT(trace, ElementsAre("a call", "b item 1", "a item 1", "b call"));
}

TEST_P(CommandExecutorPartsTest, TheSameItemTwiceIsDeliveredOnce)
{
    post(a, item(1));
    post(a, item(2));
    if (GetParam() == Taken::ALL)
        takeOver();
    post(a, item(2));
    post(a, item(1));
    deliver();
    EXPECT_THAT(trace, ElementsAre("a item 1", "a item 2"));
}

TEST_P(CommandExecutorPartsTest, RecallingForAListenerLeavesOtherEntriesInOrder)
{
    post(a, call);
    post(b, call);
    post(a, back);
    post(a, item(1));
    post(b, back);

    recall(&a, nullptr, nullptr);
    deliver();

    EXPECT_THAT(trace, ElementsAre("b call", "a item 1", "b back"));
}

TEST_P(CommandExecutorPartsTest, RecallingACommandTakesItFromEveryListener)
{
    post(a, call);
    post(b, back);
    post(b, call);

    recall(static_cast<CommandListener*>(nullptr), &call, nullptr);
    deliver();

    EXPECT_THAT(trace, ElementsAre("b back"));
}

TEST_P(CommandExecutorPartsTest, RecallingForADisplayableTakesItsEntries)
{
    auto* const screen = reinterpret_cast<Displayable*>(0x10);
    CommandExecutor::postCommand(&a, &call, screen, DO_NOT_START);
    CommandExecutor::postCommand(&b, &back, nullptr, DO_NOT_START);

    recall(static_cast<CommandListener*>(nullptr), nullptr, screen);
    deliver();

    EXPECT_THAT(trace, ElementsAre("b back"));
}

TEST_P(CommandExecutorPartsTest, EveryArgumentThatIsGivenHasToMatch)
{
    post(a, call);
    post(a, back);
    post(b, call);

    recall(&a, &call, nullptr);
    deliver();

    EXPECT_THAT(trace, ElementsAre("a back", "b call"));
}

TEST_P(CommandExecutorPartsTest, RecallingWithoutArgumentsTakesAllOfTheKind)
{
    post(a, call);
    post(b, item(1));
    post(b, back);

    recall(static_cast<CommandListener*>(nullptr), nullptr, nullptr);
    deliver();
    EXPECT_THAT(trace, ElementsAre("b item 1"));

    post(a, call);
    post(b, item(1));
    recall(static_cast<ItemStateListener*>(nullptr), nullptr);
    deliver();
    EXPECT_THAT(trace, ElementsAre("b item 1", "a call"));
}

TEST_P(CommandExecutorPartsTest, RecallingAnItemTakesItFromEveryListener)
{
    post(a, item(1));
    post(b, item(2));
    post(b, item(1));

    recall(static_cast<ItemStateListener*>(nullptr), item(1));
    deliver();

    EXPECT_THAT(trace, ElementsAre("b item 2"));
}

TEST_P(CommandExecutorPartsTest, RecallingWhatIsNotQueuedDoesNothing)
{
    post(a, call);
    recall(&b, nullptr, nullptr);
    recall(&a, &back, nullptr);
    recall(&a, item(1));
    deliver();
    EXPECT_THAT(trace, ElementsAre("a call"));
}

TEST_P(CommandExecutorPartsTest, RecallingAnItemLeavesOtherEntriesInOrder)
{
    post(a, item(1));
    post(a, call);
    post(b, item(1));
    post(a, item(2));

    recall(&b, item(1));
    post(b, item(1));
    deliver();

    EXPECT_THAT(trace, ElementsAre("a item 1", "a call", "a item 2", "b item 1"));
}

TEST_P(CommandExecutorPartsTest, ARecalledItemIsQueuedAgain)
{
    post(a, item(1));
    post(b, item(1));
    recall(static_cast<ItemStateListener*>(nullptr), item(1));
    post(b, item(1));
    post(a, item(1));
    recall(&a, nullptr);
    post(a, item(1));
    deliver();
    EXPECT_THAT(trace, ElementsAre("b item 1", "a item 1"));
}

TEST_F(CommandExecutorTest, WhatAnItemCostsDoesNotGrowWithTheQueue)
{
    const auto costOfSome = [this](std::size_t first) {
        constexpr std::size_t SOME = 500;
        const test::CpuTime time;
        for (std::size_t number = first; number < first + SOME; ++number) {
            post(a, item(number));
            post(a, item(number));
            CommandExecutor::retrieveCommand(nullptr, item(number));
        }
        return time.seconds();
    };
    costOfSome(1);
    const double withAnEmptyQueue = costOfSome(1);
    for (std::size_t number = 1'000; number < 50'000; ++number)
        post(b, item(number));
    const double withALongQueue = costOfSome(1);
    CommandExecutor::retrieveCommand(&b, nullptr);

    EXPECT_LT(withALongQueue, 20 * withAnEmptyQueue) << "walking 50,000 entries would cost thousands of times as much";
}

TEST_P(CommandExecutorPartsTest, EachRecalledCommandIsLogged)
{
    auto* const screen = reinterpret_cast<Displayable*>(0x10);
    CommandExecutor::postCommand(&a, &call, screen, DO_NOT_START);
    CommandExecutor::postCommand(&b, &back, nullptr, DO_NOT_START);
    CommandExecutor::postCommand(&a, &call, nullptr, DO_NOT_START);
    host::LogCapture log;

    recall(&a, nullptr, nullptr);

    const auto line = [&](const void* displayable) {
        const std::string text =
            "CommandExecutor::retrieveCommand(CommandListener=" + shown(static_cast<CommandListener*>(&a)) +
            ", Command=" + shown(&call) + ", Displayable=" + shown(displayable) + ") recall of posted command.";
        return LogLine{"DisplayAPI::AbbreviatedItemPrivate", "./src/CommandExecutor", 5, 120, text};
    };
    EXPECT_THAT(log.lines(), ElementsAre(line(screen), line(nullptr)));
    deliver();
}

TEST_P(CommandExecutorPartsTest, EachRecalledItemIsLogged)
{
    post(a, item(16));
    host::LogCapture log;

    recall(&a, item(16));

    const std::string text =
        "CommandExecutor::retrieveCommand(ItemStateListener=" + shown(static_cast<ItemStateListener*>(&a)) +
        ", Item=0x10) recall of posted command.";
    EXPECT_THAT(log.lines(),
                ElementsAre(LogLine{"DisplayAPI::AbbreviatedItemPrivate", "./src/CommandExecutor", 5, 145, text}));
}
