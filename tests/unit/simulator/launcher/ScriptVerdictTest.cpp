#include "simulator/launcher/ScriptVerdict.h"

#include <csignal>
#include <gtest/gtest.h>

namespace {

using simulator::Ending;
using simulator::judge;
using simulator::readOutcome;
using simulator::ScriptVerdict;

TEST(ScriptVerdict, PassedAndEndedWell)
{
    const ScriptVerdict verdict = judge("s", readOutcome("at 1\npassed\n"), Ending{}, false);
    EXPECT_TRUE(verdict.passed);
    EXPECT_EQ(verdict.text, "s: passed");
}

TEST(ScriptVerdict, FailureNamesItsLine)
{
    const ScriptVerdict verdict = judge("s", readOutcome("at 4\nfailed 4\nexpected 'x'"), Ending{}, false);
    EXPECT_FALSE(verdict.passed);
    EXPECT_EQ(verdict.text, "s:4: expected 'x'");
}

TEST(ScriptVerdict, CrashNamesTheLineAndTheSignal)
{
    const ScriptVerdict verdict = judge("s", readOutcome("at 4\nat 5\n"), Ending{0, SIGSEGV}, false);
    EXPECT_FALSE(verdict.passed);
    EXPECT_EQ(verdict.text,
              "s:5: the application was stopped by SIGSEGV (Segmentation fault) before the script was through");
}

TEST(ScriptVerdict, EndBeforeTheFirstLineHasNone)
{
    EXPECT_EQ(judge("s", readOutcome(""), Ending{}, false).text,
              "s: the application has ended before the script could begin");
}

TEST(ScriptVerdict, BadEndAfterAGoodScriptIsNoPass)
{
    const ScriptVerdict verdict = judge("s", readOutcome("passed\n"), Ending{23, 0}, false);
    EXPECT_FALSE(verdict.passed);
    EXPECT_EQ(verdict.text, "s: the script has passed, but the application has ended with exit code 23");
}

TEST(ScriptVerdict, KilledAfterAGoodScriptIsNoPass)
{
    const ScriptVerdict verdict = judge("s", readOutcome("passed\n"), Ending{0, SIGKILL}, true);
    EXPECT_FALSE(verdict.passed);
    EXPECT_EQ(verdict.text, "s: the script has passed, but the application did not end in time and was killed");
}

TEST(Ending, LauncherEndsAsAShellWould)
{
    EXPECT_EQ((Ending{3, 0}.status()), 3);
    EXPECT_EQ((Ending{0, SIGTERM}.status()), 128 + SIGTERM);
    EXPECT_EQ(Ending{}.description(), "has ended");
}

} // namespace
