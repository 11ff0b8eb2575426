#include "simulator/launcher/ApplicationRun.h"

#include "support/TemporaryFolder.h"

#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using simulator::ApplicationRun;
using simulator::Ending;
using namespace std::chrono_literals;

constexpr auto PATIENCE = 60s;

/// The launcher's signals, as they were, when the test has ended.
class ApplicationRunTest : public testing::Test {
protected:
    ApplicationRunTest()
    {
        sigprocmask(SIG_SETMASK, nullptr, &mFormerMask);
        signal(SIGHUP, SIG_DFL);
    }
    ~ApplicationRunTest() override { sigprocmask(SIG_SETMASK, &mFormerMask, nullptr); }

    static std::vector<std::string> shell(const std::string& script) { return {"sh", "-c", script}; }

    static Ending waitForEnd(ApplicationRun& run)
    {
        const auto deadline = std::chrono::steady_clock::now() + PATIENCE;
        while (std::chrono::steady_clock::now() < deadline)
            if (const auto ending = run.wait(100ms))
                return *ending;
        ADD_FAILURE() << "it does not end";
        return {};
    }

    void waitForFile(ApplicationRun& run, const std::string& file) const
    {
        while (!std::filesystem::exists(file))
            ASSERT_EQ(run.wait(10ms), std::nullopt);
    }

    pid_t numberIn(const std::string& file) const
    {
        pid_t number = 0;
        std::ifstream(file) >> number;
        EXPECT_GT(number, 0);
        return number;
    }

    static bool runs(pid_t process) { return kill(process, 0) == 0; }

    const test::TemporaryFolder folder;

private:
    sigset_t mFormerMask;
};

TEST_F(ApplicationRunTest, TellsHowItEnds)
{
    ApplicationRun run(shell("exit 3"), {});
    EXPECT_EQ(run.error(), "");
    EXPECT_EQ(waitForEnd(run).exitCode, 3);
    EXPECT_FALSE(run.wasKilled());
}

TEST_F(ApplicationRunTest, WhatOutlivesTheApplicationEndsWithIt)
{
    ApplicationRun run(shell("sleep 1000 & echo $! > '" + folder.path().string() + "/follower'; exit 3"), {});
    EXPECT_EQ(waitForEnd(run).exitCode, 3);
    EXPECT_FALSE(runs(numberIn(folder / "follower")));
    EXPECT_FALSE(run.wasKilled());
}

TEST_F(ApplicationRunTest, WhatDoesNotWantToEndIsKilled)
{
    ApplicationRun run(shell("trap '' TERM; sleep 1000 & echo $! > '" + folder.path().string() + "/follower'"), {});
    EXPECT_EQ(waitForEnd(run).exitCode, 0);
    EXPECT_FALSE(runs(numberIn(folder / "follower")));
}

TEST_F(ApplicationRunTest, SignalReachesWhatAWrapperHasStarted)
{
    const std::string told = folder / "told";
    ApplicationRun run(shell("sh -c \"trap 'echo told > " + told + "; exit' HUP; : > " + told +
                             ".ready; while :; do sleep 0.01; done\"; true"),
                       {});
    waitForFile(run, told + ".ready");
    raise(SIGHUP);
    EXPECT_EQ(waitForEnd(run).signal, SIGHUP);
    EXPECT_TRUE(std::filesystem::exists(told));
}

TEST_F(ApplicationRunTest, SignalThatTheLauncherIgnoresIsNotTaken)
{
    signal(SIGHUP, SIG_IGN);
    simulator::Signals signals;
    raise(SIGHUP);
    EXPECT_FALSE(signals.take());
}

TEST_F(ApplicationRunTest, GoneLauncherLeavesNothing)
{
    {
        ApplicationRun run(shell("sleep 1000 & echo $! > '" + folder.path().string() + "/follower'; : > '" +
                                 folder.path().string() + "/ready'; wait"),
                           {});
        waitForFile(run, folder / "ready");
    }
    const pid_t follower = numberIn(folder / "follower");
    waitpid(follower, nullptr, 0);
    EXPECT_FALSE(runs(follower));
}

TEST_F(ApplicationRunTest, ApplicationMayReadFromTheTerminal)
{
    int terminal = -1;
    const pid_t launcher = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (launcher == 0) {
        ApplicationRun run(shell("read line; test \"$line\" = hello && exit 7"), {});
        _exit(waitForEnd(run).exitCode);
    }
    ASSERT_EQ(write(terminal, "hello\n", 6), 6);
    int status = 0;
    ASSERT_EQ(waitpid(launcher, &status, 0), launcher);
    EXPECT_EQ(WEXITSTATUS(status), 7);
    close(terminal);
}

} // namespace
