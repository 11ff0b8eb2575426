#include "DisplayAPI/DisplayThread.h"

#include "support/TestRunnable.h"
#include "support/Worker.h"
#include "utilities/Threader.h"

#include <gtest/gtest.h>

#include <pthread.h>

using DisplayAPI::DisplayThread;
using test::HeldWork;
using test::TestRunnable;
using test::Worker;

namespace {

constexpr bool POOLED = true;
constexpr bool ONE_SHOT = false;

/// Tells when it is gone.
class WatchedThread : public DisplayThread {
public:
    WatchedThread(bool pooled, std::latch& gone) : DisplayThread(pooled), mGone(gone) {}
    ~WatchedThread() override { mGone.count_down(); }

private:
    std::latch& mGone;
};

class DisplayThreadTest : public testing::Test {
protected:
    DisplayThread* start(bool pooled)
    {
        auto* const thread = new WatchedThread(pooled, gone);
        thread->setBusy();
        Threader().start(thread, "", 1, 0);
        return thread;
    }

    std::latch gone{1};
};

} // namespace

TEST_F(DisplayThreadTest, IsIdleAtFirst)
{
    DisplayThread thread(POOLED);
    EXPECT_FALSE(thread.busy());
    thread.setBusy();
    EXPECT_TRUE(thread.busy());
}

TEST_F(DisplayThreadTest, RunsTheRequestOnItsOwnThreadAndDeletesItThere)
{
    unsigned int ranOn = 0;
    unsigned int deletedOn = 0;
    std::latch deleted(1);
    DisplayThread* const thread = start(POOLED);

    thread->executeRequest(new TestRunnable([&] { ranOn = Threadable::currentThreadId(); },
                                            [&] {
                                                deletedOn = Threadable::currentThreadId();
                                                deleted.count_down();
                                            }));
    deleted.wait();

    EXPECT_NE(ranOn, Threadable::currentThreadId());
    EXPECT_EQ(deletedOn, ranOn);
    thread->destroyThread();
}

TEST_F(DisplayThreadTest, IsBusyUntilTheRequestHasRunAndIsDeleted)
{
    bool busyAtRun = false;
    bool busyAtDelete = false;
    DisplayThread* const thread = start(POOLED);
    thread->executeRequest(
        new TestRunnable([&] { busyAtRun = thread->busy(); }, [&] { busyAtDelete = thread->busy(); }));

    test::waitUntil([&] { return !thread->busy(); });
    EXPECT_TRUE(busyAtRun);
    EXPECT_TRUE(busyAtDelete);
    thread->destroyThread();
}

TEST_F(DisplayThreadTest, ARequestThatComesBeforeTheThreadSleepsIsNotLost)
{
    for (int round = 0; round < 200; ++round) {
        std::latch ran(1);
        std::latch roundsThreadGone(1);
        auto* const thread = new WatchedThread(ONE_SHOT, roundsThreadGone);
        thread->setBusy();
        thread->executeRequest(new TestRunnable([&] { ran.count_down(); }));
        Threader().start(thread, "", 1, 0);
        ran.wait();
        roundsThreadGone.wait();
    }
}

TEST_F(DisplayThreadTest, ANullRequestIsIgnored)
{
    DisplayThread* const thread = start(POOLED);
    thread->executeRequest(nullptr);
    EXPECT_TRUE(thread->busy()) << "it waits for the request that it was handed out for";

    std::latch ran(1);
    thread->executeRequest(new TestRunnable([&] { ran.count_down(); }));
    ran.wait();
    thread->destroyThread();
}

TEST_F(DisplayThreadTest, APooledThreadRunsOneRequestAfterAnother)
{
    DisplayThread* const thread = start(POOLED);
    std::vector<unsigned int> threads;
    for (int i = 0; i < 3; ++i) {
        thread->setBusy();
        thread->executeRequest(new TestRunnable([&] { threads.push_back(Threadable::currentThreadId()); }));
        test::waitUntil([&] { return !thread->busy(); });
    }

    ASSERT_EQ(threads.size(), 3u);
    EXPECT_EQ(threads[0], threads[1]);
    EXPECT_EQ(threads[1], threads[2]);
    thread->destroyThread();
}

TEST_F(DisplayThreadTest, AOneShotThreadIsGoneAfterItsFirstRequest)
{
    start(ONE_SHOT)->executeRequest(new TestRunnable([] {}));
    gone.wait();
}

TEST_F(DisplayThreadTest, DestroyingAnIdleThreadEndsAndDeletesIt)
{
    start(POOLED)->destroyThread();
    EXPECT_TRUE(gone.try_wait());
}

TEST_F(DisplayThreadTest, DestroyingAOneShotThreadThatHasNotRunEndsAndDeletesIt)
{
    start(ONE_SHOT)->destroyThread();
    EXPECT_TRUE(gone.try_wait());
}

TEST_F(DisplayThreadTest, DestroyingABusyThreadWaitsUntilItsRequestHasRun)
{
    HeldWork held;
    DisplayThread* const thread = start(POOLED);
    thread->executeRequest(held.newRunnable());
    held.waitUntilEntered();
    Worker destroyer([&] { thread->destroyThread(); });
    EXPECT_TRUE(destroyer.isBlocked());
    EXPECT_FALSE(gone.try_wait());

    held.open();
    destroyer.join();
    EXPECT_TRUE(gone.try_wait());
}

TEST_F(DisplayThreadTest, DestroyingTwiceDoesNothingTheSecondTime)
{
    HeldWork held;
    DisplayThread* const thread = start(POOLED);
    thread->executeRequest(held.newRunnable());
    held.waitUntilEntered();
    Worker destroyer([&] { thread->destroyThread(); });
    EXPECT_TRUE(destroyer.isBlocked());

    thread->destroyThread(); // returns although the thread is still running

    held.open();
}

TEST_F(DisplayThreadTest, AThreadMayDestroyItself)
{
    bool detached = false;
    DisplayThread* const thread = start(POOLED);
    thread->executeRequest(new TestRunnable([&] {
        thread->destroyThread();
        pthread_attr_t attributes;
        int state = PTHREAD_CREATE_JOINABLE;
        pthread_getattr_np(pthread_self(), &attributes);
        pthread_attr_getdetachstate(&attributes, &state);
        pthread_attr_destroy(&attributes);
        detached = state == PTHREAD_CREATE_DETACHED;
    }));
    gone.wait();
    EXPECT_TRUE(detached);
}

TEST_F(DisplayThreadTest, ARequestThatComesAfterTheEndIsDeletedWithoutRunning)
{
    bool ran = false;
    bool deleted = false;
    auto* const thread = new WatchedThread(POOLED, gone);
    thread->destroyThread(); // it has not been started: nothing to wait for
    thread->executeRequest(new TestRunnable([&] { ran = true; }, [&] { deleted = true; }));

    thread->run();

    EXPECT_TRUE(gone.try_wait());
    EXPECT_FALSE(ran);
    EXPECT_TRUE(deleted);
}

TEST_F(DisplayThreadTest, ExecuteRunsTheRequestAndDeletesIt)
{
    bool ran = false;
    bool deleted = false;
    DisplayThread thread(POOLED);
    thread.executeRequest(new TestRunnable([&] { ran = true; }, [&] { deleted = true; }));

    thread.execute();

    EXPECT_TRUE(ran);
    EXPECT_TRUE(deleted);
}

TEST_F(DisplayThreadTest, KeepsThePlatformsPriorityAndType)
{
    DisplayThread thread(POOLED);
    EXPECT_EQ(thread.getThreadPriorityForPlatform(), 0);
    EXPECT_EQ(thread.type(), 0);
}
