#include "host/inspection/ThreadStack.h"

#include "support/Worker.h"

#include <csignal>
#include <future>
#include <gmock/gmock.h>

using test::Worker;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

// A signal comes to a thread that sleeps in the kernel when ThreadSanitizer lets it.
#if !defined(__SANITIZE_THREAD__)
#if defined(__has_feature)
#if !__has_feature(thread_sanitizer)
#define STACKS_ARE_TOLD
#endif
#else
#define STACKS_ARE_TOLD
#endif
#endif

namespace test {

/// A function with a name, in which somebody waits.
void waitHere(std::future<void> until)
{
    until.wait();
}

namespace {

class ThreadStackTest : public testing::Test {
protected:
    ThreadStackTest() : worker([this] { waitHere(end.get_future()); }) {}

    ~ThreadStackTest() override { end.set_value(); }

    std::vector<std::string> stack() const { return host::stackOf(static_cast<int>(worker.threadId())); }

    std::promise<void> end;
    Worker worker;
};

#ifdef STACKS_ARE_TOLD

std::atomic<int> gHeard{0};

void hear(int)
{
    ++gHeard;
}

TEST_F(ThreadStackTest, FunctionsOfAnotherThreadAreNamed)
{
    ASSERT_TRUE(worker.isBlocked());
    EXPECT_THAT(stack(), Contains(HasSubstr("test::waitHere(")));
    EXPECT_FALSE(worker.hasReturned());
}

TEST_F(ThreadStackTest, SignalThatTheProgramTakesIsLeftToIt)
{
    ASSERT_TRUE(worker.isBlocked());
    stack();
    std::vector<std::pair<int, struct sigaction>> former;
    for (int number = SIGRTMIN + 3; number < SIGRTMAX; ++number) {
        struct sigaction action = {};
        action.sa_handler = hear;
        former.emplace_back(number, action);
        sigaction(number, &action, &former.back().second);
    }
    EXPECT_THAT(stack(), Contains(HasSubstr("test::waitHere(")));
    EXPECT_EQ(gHeard, 0);
    for (const auto& [number, action] : former)
        sigaction(number, &action, nullptr);
}

TEST_F(ThreadStackTest, WhoBlocksSignalsIsLeftAlone)
{
    std::promise<void> go;
    Worker blocking([&] {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, nullptr);
        waitHere(go.get_future());
    });
    ASSERT_TRUE(blocking.isBlocked());
    EXPECT_THAT(host::stackOf(static_cast<int>(blocking.threadId())), ElementsAre("it has ended, or takes no signal"));
    go.set_value();
}

#endif

TEST_F(ThreadStackTest, ThreadThatIsGoneIsTold)
{
    Worker other([] {});
    other.join();
    EXPECT_THAT(host::stackOf(static_cast<int>(other.threadId())), ElementsAre("it has ended, or takes no signal"));
}

} // namespace
} // namespace test
