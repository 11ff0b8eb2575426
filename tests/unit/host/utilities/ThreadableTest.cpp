#include "utilities/Threadable.h"

#include "support/Gate.h"
#include "utilities/Threader.h"

#include <array>
#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>
#include <set>
#include <string>
#include <thread>
#include <unistd.h>

namespace {

using test::Gate;

class Body : public Threadable {
public:
    explicit Body(std::function<void(Body&)> work) : mWork(std::move(work)) {}

    void run() override { mWork(*this); }

private:
    std::function<void(Body&)> mWork;
};

std::string nameOfThisThread()
{
    std::array<char, 16> name{};
    pthread_getname_np(pthread_self(), name.data(), name.size());
    return name.data();
}

std::string nameOfAThreadStartedAs(const std::string& wanted)
{
    std::string name;
    Body body([&](Body&) { name = nameOfThisThread(); });
    EXPECT_TRUE(Threader().start(&body, wanted, 1, 0));
    body.waitForThreadCompletion();
    return name;
}

TEST(Threadable, BodyRunsOnAThreadOfItsOwn)
{
    unsigned int id = 0;
    Body body([&](Body&) { id = Threadable::currentThreadId(); });
    ASSERT_TRUE(Threader().start(&body, "", 1, 0));
    body.waitForThreadCompletion();
    EXPECT_NE(id, 0u);
    EXPECT_NE(id, Threadable::currentThreadId());
}

TEST(Threadable, IdStaysTheSameWithinAThread)
{
    EXPECT_NE(Threadable::currentThreadId(), 0u);
    EXPECT_EQ(Threadable::currentThreadId(), Threadable::currentThreadId());
}

TEST(Threadable, LivingThreadsHaveDifferentIds)
{
    constexpr int THREADS = 8;
    Gate all;
    std::mutex mutex;
    std::set<unsigned int> ids{Threadable::currentThreadId()};
    std::vector<std::thread> threads;
    for (int i = 0; i < THREADS; ++i)
        threads.emplace_back([&] {
            {
                std::lock_guard lock(mutex);
                ids.insert(Threadable::currentThreadId());
                if (ids.size() == THREADS + 1)
                    all.open();
            }
            EXPECT_TRUE(all.wait());
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(ids.size(), THREADS + 1u);
}

TEST(Threadable, KnowsItsOwnThread)
{
    bool inside = false;
    Body body([&](Body& self) { inside = self.isCurrentThread(); });
    EXPECT_FALSE(body.isCurrentThread());
    ASSERT_TRUE(Threader().start(&body, "", 1, 0));
    body.waitForThreadCompletion();
    EXPECT_TRUE(inside);
    EXPECT_FALSE(body.isCurrentThread());
}

TEST(Threadable, WaitingForOneThatWasNeverStartedReturnsAtOnce)
{
    Body body([](Body&) {});
    body.waitForThreadCompletion();
}

TEST(Threadable, WaitingTwiceReturns)
{
    Body body([](Body&) {});
    ASSERT_TRUE(Threader().start(&body, "", 1, 0));
    body.waitForThreadCompletion();
    body.waitForThreadCompletion();
}

TEST(Threadable, WhoHasWaitedFindsNothingLeftOfTheThread)
{
    struct LastOfTheThread {
        ~LastOfTheThread()
        {
            hasBeenWaitedFor->wait_for(std::chrono::milliseconds(50)); // in vain, or else nobody waits for this
            *isGone = true;
        }
        std::future<void>* hasBeenWaitedFor;
        std::atomic<bool>* isGone;
    };
    std::promise<void> waited;
    std::future<void> hasBeenWaitedFor = waited.get_future();
    std::atomic<bool> isGone = false;
    Body body([&](Body&) { thread_local LastOfTheThread last{&hasBeenWaitedFor, &isGone}; });
    ASSERT_TRUE(Threader().start(&body, "", 1, 0));
    body.waitForThreadCompletion();
    EXPECT_TRUE(isGone);
    waited.set_value();
}

TEST(Threadable, SeveralThreadsMayWait)
{
    Gate end;
    Body body([&](Body&) { EXPECT_TRUE(end.wait()); });
    ASSERT_TRUE(Threader().start(&body, "", 1, 0));
    std::thread other([&] { body.waitForThreadCompletion(); });
    end.open();
    body.waitForThreadCompletion();
    other.join();
}

TEST(Threadable, BodyMayDeleteItsObject)
{
    Gate end;
    auto* const body = new Body([&](Body& self) {
        EXPECT_TRUE(end.wait());
        delete &self;
    });
    const std::shared_ptr<Threadable::State> state = body->state();
    ASSERT_TRUE(Threader().start(body, "", 1, 0));
    end.open();
    Threadable::waitForThreadCompletion(*state);
}

TEST(Threadable, BodyMayDetachItsThreadAndDeleteItsObject)
{
    auto* const body = new Body([](Body& self) {
        pthread_detach(pthread_self());
        delete &self;
    });
    const std::shared_ptr<Threadable::State> state = body->state();
    ASSERT_TRUE(Threader().start(body, "", 1, 0));
    Threadable::waitForThreadCompletion(*state);
}

TEST(Threadable, NobodyHasToWait)
{
    for (int round = 0; round < 100; ++round) {
        Gate ended;
        auto* const body = new Body([gate = &ended](Body& self) {
            Gate* const outlivesTheBody = gate;
            delete &self;
            outlivesTheBody->open();
        });
        ASSERT_TRUE(Threader().start(body, "", 1, 0));
        ASSERT_TRUE(ended.wait());
    }
}

TEST(Threadable, PriorityAndTypeAreNeutral)
{
    Body body([](Body&) {});
    EXPECT_EQ(body.getThreadPriorityForPlatform(), 0);
    EXPECT_EQ(body.type(), 0);
}

TEST(Threader, ThreadCarriesItsName)
{
    EXPECT_EQ(nameOfAThreadStartedAs("ticker"), "ticker");
}

TEST(Threader, LongNameIsCut)
{
    EXPECT_EQ(nameOfAThreadStartedAs("a-name-that-is-far-too-long"), "a-name-that-is-");
}

TEST(Threader, ThreadWithoutANameGetsOne)
{
    const std::string first = nameOfAThreadStartedAs("");
    const std::string second = nameOfAThreadStartedAs("");
    EXPECT_EQ(first.rfind("worker-", 0), 0u);
    EXPECT_NE(first, second);
}

} // namespace
