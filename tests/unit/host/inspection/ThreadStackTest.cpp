#include "host/inspection/ThreadStack.h"

#include "support/Gate.h"
#include "support/Worker.h"

#include <atomic>
#include <csignal>
#include <gmock/gmock.h>

using test::Worker;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

namespace test {

/// A function with a name, in which somebody waits: in a call of which ThreadSanitizer knows that it sleeps. To a
/// thread that sleeps in any other it hands no signal on.
void waitHere(Gate& until)
{
    until.wait();
}

namespace {

class ThreadStackTest : public testing::Test {
protected:
    ThreadStackTest() : worker([this] { waitHere(end); }) {}

    ~ThreadStackTest() override { end.open(); }

    std::vector<std::string> stack() const { return host::stackOf(static_cast<int>(worker.threadId())); }

    Gate end;
    Worker worker;
};

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
    Gate go;
    Worker blocking([&] {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, nullptr);
        waitHere(go);
    });
    ASSERT_TRUE(blocking.isBlocked());
    EXPECT_THAT(host::stackOf(static_cast<int>(blocking.threadId())), ElementsAre("it has ended, or takes no signal"));
    go.open();
}

TEST_F(ThreadStackTest, ThreadThatIsGoneIsTold)
{
    Worker other([] {});
    other.join();
    EXPECT_THAT(host::stackOf(static_cast<int>(other.threadId())), ElementsAre("it has ended, or takes no signal"));
}

} // namespace
} // namespace test
