#include "simulator/script/ScriptOutcome.h"

#include "simulator/launcher/ReportPipe.h"
#include "simulator/script/ScriptReport.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using simulator::readOutcome;

TEST(ScriptOutcome, NothingIsDecidedAtFirst)
{
    EXPECT_FALSE(readOutcome("").isDecided());
    EXPECT_FALSE(readOutcome("at 3\nat 4\npass").isDecided());
}

TEST(ScriptOutcome, KnowsTheLastLineThatBegan)
{
    EXPECT_EQ(readOutcome("").lastLine, 0);
    EXPECT_EQ(readOutcome("at 3\nat 14\nat 1").lastLine, 14);
}

TEST(ScriptOutcome, Passed)
{
    EXPECT_TRUE(readOutcome("at 3\npassed\n").passed);
}

TEST(ScriptOutcome, ReasonMayLookLikeAReport)
{
    const auto outcome = readOutcome("at 3\nfailed 3\nexpected 'x'\npassed\nat 9\n");
    ASSERT_TRUE(outcome.failure.has_value());
    EXPECT_EQ(outcome.failure->line, 3);
    EXPECT_EQ(outcome.failure->reason, "expected 'x'\npassed\nat 9\n");
    EXPECT_FALSE(outcome.passed);
    EXPECT_EQ(outcome.lastLine, 3);
}

TEST(ScriptOutcome, NotesComeOnTheWay)
{
    const auto outcome = readOutcome("at 3\nnote 3 it takes its time\nat 4\nnote 4 again\npassed\n");
    ASSERT_EQ(outcome.notes.size(), 2u);
    EXPECT_EQ(outcome.notes[0].line, 3);
    EXPECT_EQ(outcome.notes[0].text, "it takes its time");
    EXPECT_EQ(outcome.notes[1].text, "again");
    EXPECT_EQ(outcome.lastLine, 4);
    EXPECT_TRUE(outcome.passed);
}

TEST(ScriptOutcome, ReadsWhatAPipeReportWrites)
{
    simulator::ReportPipe pipe;
    {
        simulator::PipeReport report(dup(pipe.writeEnd()));
        EXPECT_FALSE(pipe.readAvailable());
        report.at(7);
        EXPECT_TRUE(pipe.readAvailable());
        EXPECT_EQ(readOutcome(pipe.text()).lastLine, 7);
        report.note(7, "slow");
        EXPECT_TRUE(pipe.readAvailable());
        EXPECT_EQ(readOutcome(pipe.text()).notes.at(0).text, "slow");
        report.failed(7, "expected 'x'");
    }
    pipe.closeWriteEnd();
    EXPECT_TRUE(pipe.readAvailable());
    EXPECT_EQ(pipe.descriptor(), -1);
    EXPECT_EQ(readOutcome(pipe.text()).failure->reason, "expected 'x'");
}

} // namespace
