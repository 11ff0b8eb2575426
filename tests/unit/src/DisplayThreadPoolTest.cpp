#include "DisplayAPI/DisplayThreadPool.h"

#include "DisplayAPI/DisplayThread.h"
#include "support/TestRunnable.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

#include <array>
#include <barrier>
#include <deque>

using DisplayAPI::DisplayThread;
using DisplayAPI::DisplayThreadPool;
using test::HeldWork;
using test::TestRunnable;
using test::Worker;
using testing::Each;

namespace {

/// Starts each test without a pool, and leaves none.
class DisplayThreadPoolTest : public testing::Test {
protected:
    DisplayThreadPoolTest() { destroyPool(); }
    ~DisplayThreadPoolTest() override { destroyPool(); }

    static void destroyPool() { delete DisplayThreadPool::instance(1); }

    /// Keeps `count` threads of the pool busy until letGo().
    void occupy(DisplayThreadPool& pool, int count)
    {
        for (int i = 0; i < count; ++i) {
            heldWork.emplace_back();
            pool.getThread()->executeRequest(heldWork.back().newRunnable());
            heldWork.back().waitUntilEntered();
        }
    }

    void letGo()
    {
        for (HeldWork& held : heldWork)
            held.open();
        for (const HeldWork& held : heldWork)
            held.waitUntilGone();
    }

    static void waitUntilAvailable(DisplayThreadPool& pool, int count)
    {
        test::waitUntil([&] { return pool.availableThreads() == count; });
    }

    /// Lets a pooled thread do something, and waits until it is idle again.
    static DisplayThread* useOnce(DisplayThreadPool& pool)
    {
        DisplayThread* const thread = pool.getThread();
        thread->executeRequest(new TestRunnable([] {}));
        test::waitUntil([&] { return !thread->busy(); });
        return thread;
    }

    std::deque<HeldWork> heldWork;
};

} // namespace

TEST_F(DisplayThreadPoolTest, TheFirstCallDecidesTheMaximum)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(10);
    EXPECT_EQ(pool->maxPoolSize(), 10);
    EXPECT_EQ(DisplayThreadPool::instance(5), pool);
    EXPECT_EQ(pool->maxPoolSize(), 10);
}

TEST_F(DisplayThreadPoolTest, ThreadsThatAskAtTheSameTimeGetTheSamePool)
{
    constexpr int ASKERS = 4;
    for (int round = 0; round < 200; ++round) {
        destroyPool();
        std::array<DisplayThreadPool*, ASKERS> pools{};
        std::barrier together(ASKERS);
        {
            std::deque<Worker> askers;
            for (DisplayThreadPool*& pool : pools)
                askers.emplace_back([&] {
                    together.arrive_and_wait();
                    pool = DisplayThreadPool::instance(1);
                });
        }
        EXPECT_THAT(pools, Each(pools[0]));
    }
}

TEST_F(DisplayThreadPoolTest, HasNoThreadsAtFirst)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(10);
    EXPECT_EQ(pool->poolSize(), 0);
    EXPECT_EQ(pool->availableThreads(), 0);
}

TEST_F(DisplayThreadPoolTest, AThreadIsHandedOutBusyAndRunning)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(2);
    DisplayThread* const thread = pool->getThread();
    EXPECT_TRUE(thread->busy());
    EXPECT_EQ(pool->poolSize(), 1);
    EXPECT_EQ(pool->availableThreads(), 0);

    std::latch ran(1);
    thread->executeRequest(new TestRunnable([&] { ran.count_down(); }));
    ran.wait();
}

TEST_F(DisplayThreadPoolTest, AThreadIsAvailableAgainAfterItsRequest)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(2);
    useOnce(*pool);
    EXPECT_EQ(pool->availableThreads(), 1);
    EXPECT_EQ(pool->poolSize(), 1);
}

TEST_F(DisplayThreadPoolTest, AnIdleThreadIsUsedAgain)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(2);
    DisplayThread* const first = useOnce(*pool);
    EXPECT_EQ(useOnce(*pool), first);
    EXPECT_EQ(pool->poolSize(), 1);
}

TEST_F(DisplayThreadPoolTest, ABusyPoolGrowsUpToItsMaximum)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(3);
    occupy(*pool, 2);
    EXPECT_EQ(pool->poolSize(), 2);
    occupy(*pool, 1);
    EXPECT_EQ(pool->poolSize(), 3);
    EXPECT_EQ(pool->availableThreads(), 0);

    letGo();
    waitUntilAvailable(*pool, 3);
}

TEST_F(DisplayThreadPoolTest, WithAllPooledThreadsBusyAOneShotThreadIsHandedOut)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(10);
    occupy(*pool, 10);
    EXPECT_EQ(pool->poolSize(), 10);

    std::latch deleted(1);
    DisplayThread* const extra = pool->getThread();
    EXPECT_TRUE(extra->busy());
    EXPECT_EQ(pool->poolSize(), 10);
    extra->executeRequest(new TestRunnable([] {}, [&] { deleted.count_down(); }));
    deleted.wait();
    EXPECT_EQ(pool->availableThreads(), 0) << "it is not kept";

    letGo();
    waitUntilAvailable(*pool, 10);
    EXPECT_EQ(pool->poolSize(), 10);
}

TEST_F(DisplayThreadPoolTest, SeveralOneShotThreadsRunAtTheSameTime)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(1);
    occupy(*pool, 4);
    EXPECT_EQ(pool->poolSize(), 1);
    letGo();
    waitUntilAvailable(*pool, 1);
}

TEST_F(DisplayThreadPoolTest, APoolOfNoneHandsOutOneShotThreadsOnly)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(0);
    std::latch ran(1);
    pool->getThread()->executeRequest(new TestRunnable([&] { ran.count_down(); }));
    ran.wait();
    EXPECT_EQ(pool->poolSize(), 0);
}

TEST_F(DisplayThreadPoolTest, TheThreadThatWasHandedOutLongestAgoComesNext)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(3);
    std::vector<DisplayThread*> made;
    for (int i = 0; i < 3; ++i) {
        made.push_back(pool->getThread());
        heldWork.emplace_back();
        made.back()->executeRequest(heldWork.back().newRunnable());
    }
    letGo();
    waitUntilAvailable(*pool, 3);

    EXPECT_EQ(useOnce(*pool), made[0]);
    EXPECT_EQ(useOnce(*pool), made[1]);
    EXPECT_EQ(useOnce(*pool), made[2]);
    EXPECT_EQ(useOnce(*pool), made[0]);
}

TEST_F(DisplayThreadPoolTest, ABusyThreadIsPassedOver)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(2);
    occupy(*pool, 1);
    DisplayThread* const second = useOnce(*pool);
    EXPECT_EQ(useOnce(*pool), second);
    EXPECT_EQ(pool->poolSize(), 2);
    letGo();
}

TEST_F(DisplayThreadPoolTest, DestroyingThePoolWaitsForWhatIsRunning)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(2);
    occupy(*pool, 1);
    useOnce(*pool);
    Worker destroyer([&] { delete pool; });
    EXPECT_TRUE(destroyer.isBlocked());

    letGo();
    destroyer.join();
}

TEST_F(DisplayThreadPoolTest, ADestroyedPoolIsFollowedByANewOne)
{
    useOnce(*DisplayThreadPool::instance(10));
    delete DisplayThreadPool::instance(10);

    DisplayThreadPool* const next = DisplayThreadPool::instance(5);
    EXPECT_EQ(next->maxPoolSize(), 5);
    EXPECT_EQ(next->poolSize(), 0);
}

TEST_F(DisplayThreadPoolTest, AOneShotThreadOutlivesThePool)
{
    DisplayThreadPool* const pool = DisplayThreadPool::instance(0);
    occupy(*pool, 1);
    delete pool;

    letGo();
}

TEST_F(DisplayThreadPoolTest, ManyThreadsMayAskAtTheSameTime)
{
    constexpr int ASKERS = 4;
    constexpr int REQUESTS = 200;
    DisplayThreadPool* const pool = DisplayThreadPool::instance(3);
    std::latch ran(ASKERS * REQUESTS);
    {
        std::deque<Worker> askers;
        for (int i = 0; i < ASKERS; ++i)
            askers.emplace_back([&] {
                for (int request = 0; request < REQUESTS; ++request)
                    pool->getThread()->executeRequest(new TestRunnable([&] { ran.count_down(); }));
            });
        askers.emplace_back([&] {
            for (int question = 0; question < REQUESTS; ++question)
                EXPECT_LE(pool->availableThreads(), 3);
        });
    }
    ran.wait();
    EXPECT_LE(pool->poolSize(), 3);
}

TEST_F(DisplayThreadPoolTest, TwoWhoAskAtTheSameTimeGetThreadsOfTheirOwn)
{
    constexpr int THREADS = 8;
    DisplayThreadPool* const pool = DisplayThreadPool::instance(THREADS);
    occupy(*pool, THREADS);
    letGo();
    for (int round = 0; round < 2'000; ++round) {
        waitUntilAvailable(*pool, THREADS);
        std::array<DisplayThread*, 2> taken{};
        std::atomic<int> here{0};
        const auto take = [&](DisplayThread*& place) {
            ++here;
            while (here < 2)
                std::this_thread::yield();
            place = pool->getThread();
        };
        {
            Worker other([&] { take(taken[1]); });
            take(taken[0]);
        }
        ASSERT_NE(taken[0], taken[1]);
        for (DisplayThread* thread : taken)
            thread->executeRequest(new TestRunnable([] {}));
    }
}
