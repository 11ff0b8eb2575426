#include "simulator/script/ScriptParser.h"

#include "simulator/script/ExpectedScreen.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using simulator::parseScript;
using simulator::Script;
using simulator::Step;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

Step onlyStep(const std::string& text)
{
    const Script script = parseScript("s", text);
    EXPECT_THAT(script.errors, IsEmpty()) << text;
    EXPECT_THAT(script.steps, SizeIs(1)) << text;
    return script.steps.empty() ? Step{} : script.steps.front();
}

void expectMistake(const std::string& text, const std::string& reason)
{
    const Script script = parseScript("s", text);
    EXPECT_THAT(script.errors, ElementsAre(AllOf(StartsWith("s:1: "), HasSubstr(reason)))) << text;
    EXPECT_THAT(script.steps, IsEmpty()) << text;
}

TEST(ScriptParser, KeyIsPressedOnce)
{
    const Step step = onlyStep("key volume-up");
    EXPECT_EQ(step.action, Step::Action::PRESS);
    EXPECT_THAT(step.keys, ElementsAre(PK_VOLUME_UP));
}

TEST(ScriptParser, ByteOrderMarkIsNothing)
{
    EXPECT_THAT(onlyStep("\xEF\xBB\xBFkey ok").keys, ElementsAre(PK_OK));
    EXPECT_THAT(onlyStep("\xEF\xBB\xBF# comment\nkey ok").keys, ElementsAre(PK_OK));
    expectMistake("key \xEF\xBB\xBFok", "there is no key");
}

TEST(ScriptParser, HoldHasAKeyAndATime)
{
    const Step step = onlyStep("hold 5 800");
    EXPECT_EQ(step.action, Step::Action::HOLD);
    EXPECT_THAT(step.keys, ElementsAre(static_cast<PegKey>('5')));
    EXPECT_EQ(step.milliseconds, 800);
}

TEST(ScriptParser, TypePressesOneKeyAfterTheOther)
{
    const Step step = onlyStep("type 0*#9");
    EXPECT_EQ(step.action, Step::Action::PRESS);
    EXPECT_THAT(step.keys, ElementsAre(PK_0, PK_STAR, PK_HASH, PK_9));
}

TEST(ScriptParser, ExchangeHasALine)
{
    const Step step = onlyStep("exchange 4711 ends busy");
    EXPECT_EQ(step.action, Step::Action::SAY);
    EXPECT_EQ(step.text, "4711 ends busy");
    expectMistake("exchange", "'exchange' needs something behind it");
}

TEST(ScriptParser, WaitHasATime)
{
    EXPECT_EQ(onlyStep("wait 0").milliseconds, 0);
    EXPECT_EQ(onlyStep("wait 86400000").milliseconds, 86'400'000);
}

TEST(ScriptParser, AdvanceHasATime)
{
    const Step step = onlyStep("advance 36000000");
    EXPECT_EQ(step.action, Step::Action::ADVANCE);
    EXPECT_EQ(step.milliseconds, 36'000'000);
}

TEST(ScriptParser, ExpectationsTakeTheRestOfTheLine)
{
    EXPECT_EQ(onlyStep("expect  Ring tone: Классика  ").target, simulator::ScriptText::literal("Ring tone: Классика"));
    EXPECT_EQ(onlyStep("expect-not key down").target, simulator::ScriptText::literal("key down"));
    EXPECT_EQ(onlyStep("expect-not a").action, Step::Action::EXPECT_NOT);
}

TEST(ScriptParser, OutputHasAPlainName)
{
    EXPECT_EQ(onlyStep("screenshot menu.png").text, "menu.png");
    EXPECT_EQ(onlyStep("dump menu 2.txt").text, "menu 2.txt");
    EXPECT_EQ(onlyStep("compare menu.txt").text, "menu.txt");
}

TEST(ScriptParser, DumpMayBeJson)
{
    const Step step = onlyStep("dump  --json  menu 2.json");
    EXPECT_EQ(step.action, Step::Action::DUMP_JSON);
    EXPECT_EQ(step.text, "menu 2.json");
    EXPECT_EQ(onlyStep("dump menu.txt").action, Step::Action::DUMP);
}

TEST(ScriptParser, BadOptionsOfDump)
{
    expectMistake("dump --xml menu.xml", "there is no option '--xml'; there is --json");
    expectMistake("dump --json", "the name of the file is missing");
    expectMistake("dump --json menu.txt", "is no plain file name that ends in .json");
    expectMistake("dump --json ../menu.json", "is no plain file name that ends in .json");
    expectMistake("dump menu.json", "is no plain file name that ends in .txt");
}

TEST(ScriptParser, CommentsEmptyLinesAndCarriageReturnsAreNothing)
{
    const Script script = parseScript("s", "# key nobody\r\n\r\n  \t\n   # no\n\tkey ok\r\n\nkey hook");
    EXPECT_THAT(script.errors, IsEmpty());
    ASSERT_THAT(script.steps, SizeIs(2));
    EXPECT_EQ(script.steps[0].line, 5);
    EXPECT_EQ(script.steps[1].line, 7);
}

TEST(ScriptParser, AllMistakesAreReportedWithTheirLines)
{
    const Script script = parseScript("walk.script", "key ok\nkey no\n\njump 3\n");
    EXPECT_THAT(script.errors, ElementsAre(StartsWith("walk.script:2: there is no key 'no'"),
                                           StartsWith("walk.script:4: there is no command 'jump'")));
}

TEST(ScriptParser, UnknownKeys)
{
    expectMistake("key OK", "there is no key 'OK'");
    expectMistake("key down up", "there is no key 'down up'");
    expectMistake("hold middle 5", "there is no key 'middle'");
    expectMistake("type 12x", "not 'x'");
}

TEST(ScriptParser, BadNumbers)
{
    for (const char* number : {"-1", "1.5", "ten", "5s", "86400001", "99999999999999999999", "0x10", "1 2"})
        for (const char* command : {"wait ", "advance "})
            expectMistake(std::string(command) + number, "is no number of milliseconds");
    expectMistake("hold 5 long", "'long' is no number of milliseconds");
    expectMistake("hold 5", "the milliseconds are missing");
}

TEST(ScriptParser, NothingBehindACommand)
{
    for (const char* command :
         {"key", "hold", "type", "wait", "advance", "expect", "expect-not", "screenshot", "dump", "compare"})
        expectMistake(command, "needs something behind it");
}

TEST(ScriptParser, OutputStaysInItsFolder)
{
    for (const char* name : {"../a.png", "/tmp/a.png", "b/a.png", "..", ".a.png", "a.txt"})
        expectMistake(std::string("screenshot ") + name, "is no plain file name that ends in .png");
    expectMistake("dump a.png", "is no plain file name that ends in .txt");
    expectMistake("compare ../a.txt", "is no plain file name that ends in .txt");
}

TEST(ScriptParser, FileThatCannotBeReadIsAMistake)
{
    EXPECT_THAT(simulator::readScript("/nowhere/s", "plain").errors,
                ElementsAre("/nowhere/s: the script cannot be read"));
    EXPECT_THAT(simulator::readScript("/", "plain").errors, ElementsAre("/: the script cannot be read"));
}

TEST(ScriptParser, EmptyFileIsAMistake)
{
    const test::TemporaryFolder folder;
    const std::string file = folder / "s";
    std::ofstream{file};
    EXPECT_THAT(simulator::readScript(file, "plain").errors, ElementsAre(file + ": the script is empty"));
}

/// A folder with a script that compares the screen with `menu.txt`.
class ComparingScriptTest : public testing::Test {
protected:
    ComparingScriptTest() { write("s", "key ok\ncompare menu.txt\n"); }

    void write(const char* name, const char* text) const { std::ofstream(folder / name) << text; }
    Script read(const char* panel) const { return simulator::readScript(folder / "s", panel); }

    const test::TemporaryFolder temporary;
    const std::filesystem::path& folder = temporary.path();
};

TEST_F(ComparingScriptTest, ComparesWithAFileBesideTheScript)
{
    write("menu.txt", "");
    const Script script = read("wp1");
    EXPECT_THAT(script.errors, IsEmpty());
    EXPECT_EQ(script.steps.at(1).text, folder / "menu.txt");
}

TEST_F(ComparingScriptTest, PanelMayHaveAFileOfItsOwn)
{
    write("menu.txt", "");
    write("menu.wp1.txt", "");
    EXPECT_EQ(read("wp1").steps.at(1).text, folder / "menu.wp1.txt");
    EXPECT_EQ(read("plain").steps.at(1).text, folder / "menu.txt");
}

TEST_F(ComparingScriptTest, MissingFileIsAMistake)
{
    write("menu.wp1.txt", "");
    const std::string start = (folder / "s").string() + ":2: there is no file " + (folder / "menu.txt").string();
    EXPECT_THAT(read("plain").errors, ElementsAre(StartsWith(start)));
}

TEST_F(ComparingScriptTest, FolderIsAMistakeAtOnce)
{
    std::filesystem::create_directory(folder / "menu.txt");
    const std::string error = (folder / "s").string() + ":2: " + (folder / "menu.txt").string() + " is no file";
    EXPECT_THAT(read("plain").errors, ElementsAre(error));
}

TEST_F(ComparingScriptTest, FileThatIsAboutToBeWrittenMayBeMissing)
{
    setenv(simulator::UPDATE_SCREENS_VARIABLE, "1", 1);
    EXPECT_THAT(read("plain").errors, IsEmpty());
    setenv(simulator::UPDATE_SCREENS_VARIABLE, "0", 1);
    EXPECT_THAT(read("plain").errors, SizeIs(1));
    unsetenv(simulator::UPDATE_SCREENS_VARIABLE);
}

TEST(ScriptParser, TypedTextStandsInQuotes)
{
    const Step step = onlyStep("type \"Ada\"");
    EXPECT_EQ(step.action, Step::Action::TYPE);
    EXPECT_EQ(step.target, simulator::ScriptText::literal("Ada"));
}

TEST(ScriptParser, ChoiceMayBeTheSecondThatIsCalledSo)
{
    EXPECT_EQ(onlyStep("choose \"Ada\"").nth, 1);
    EXPECT_EQ(onlyStep("select \"Ada\" #2").nth, 2);
    EXPECT_EQ(onlyStep("command _(\"Row.call\") #3").nth, 3);
    EXPECT_FALSE(onlyStep("choose \"Ada\"").isLoose);
    EXPECT_TRUE(onlyStep("choose Ada").isLoose);
    EXPECT_EQ(onlyStep("choose Ada #2").target, simulator::ScriptText::literal("Ada #2"));
    expectMistake("choose \"Ada\" #0", "there may be #2");
    expectMistake("choose \"Ada\" 2", "there may be #2");
    expectMistake("choose \"Ada\" #99999999999", "there may be #2");
}

TEST(ScriptParser, EveryLineOfARecordingIsOne)
{
    for (const char* line : {"key ok",
                             "key fpk16",
                             "key 5",
                             "key star",
                             "key hash",
                             "hold left 700",
                             "hold volume-up 4000",
                             "back",
                             "dial +49*30#",
                             "type \"Zo\\\"\\n\\u202E\"",
                             "select \"Ada\"",
                             "select _(\"a\" or \"b\") #2",
                             "choose _(\"a\", \"1\", _(\"b\" or \"c\")) \" (3)\"",
                             "choose \"a, \" _(\"b\" or \"c\") #12",
                             "command \"Call\"",
                             "command \"Call\" #2",
                             "command _(\"Row.call\" or \"Call\") #2",
                             "set \"6\"",
                             "set _(\"a\" or \"b\")",
                             "expect Ada",
                             "expect _(\"a\", \"1\")",
                             "await \"Ada\"",
                             "await _(\"a\" or \"b\") \" (3)\"",
                             "await-not _(\"a\")",
                             "wait 3000",
                             "exchange 4711 calls",
                             "language ar",
                             "act jukebox play"})
        EXPECT_THAT(parseScript("s", line).errors, IsEmpty());
}

TEST(ScriptParser, ExpectedTextIsAsItStandsButForTheCatalogues)
{
    EXPECT_EQ(onlyStep("expect \"Ada\"").target, simulator::ScriptText::literal("\"Ada\""));
    EXPECT_EQ(onlyStep("expect-not _x").target, simulator::ScriptText::literal("_x"));
    EXPECT_TRUE(onlyStep("expect _(\"Menu.contacts\")").target.pieces.front().isTranslated);
    expectMistake("expect _(\"Menu.contacts\"", "the bracket of _( is not closed");
    expectMistake("expect _(\"Menu.contacts\") x", "nothing may stand behind the text");
}

TEST(ScriptParser, BackStandsAlone)
{
    EXPECT_EQ(onlyStep("back").action, Step::Action::BACK);
    expectMistake("back twice", "nothing may stand behind it");
}

TEST(ScriptParser, OnlyNumbersAreDialled)
{
    EXPECT_EQ(onlyStep("dial +49*#1").target, simulator::ScriptText::literal("+49*#1"));
    expectMistake("dial Ada", "can be dialled");
}

TEST(ScriptParser, LinesAreSaidToWhoIsNamed)
{
    EXPECT_EQ(onlyStep("language ar").wire, "language");
    EXPECT_EQ(onlyStep("act jukebox play 7").wire, "jukebox");
    EXPECT_EQ(onlyStep("act jukebox play 7").text, "play 7");
}

} // namespace
