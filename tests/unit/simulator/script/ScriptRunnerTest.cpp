#include "simulator/script/ScriptRunner.h"

#include "simulator/script/ExpectedScreen.h"
#include "simulator/script/ScriptParser.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace simulator;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

/// Notes what is done to it; shows the text that the test gives it.
class FakePhone : public ScriptedPhone {
public:
    bool press(PegKey key) override { return note("down " + std::to_string(key)), takesKeys; }
    bool release(PegKey key) override { return note("up " + std::to_string(key)), takesKeys && !isGone; }
    void pass(std::int64_t time) override
    {
        note("pass " + std::to_string(time));
        passed += time;
        if (passed >= atTime.first)
            text = atTime.second;
    }
    bool advance(std::int64_t time) override { return note("advance " + std::to_string(time)), hasVirtualClock; }

    ScreenPtr screen() override
    {
        return std::make_shared<Screen>(Screen{1, {"object:\nname:List\nstring0:" + text + "\nend:\n", {}}, picture()});
    }

    std::optional<std::string> waitFor(const ScreenCondition& condition, milliseconds limit) override
    {
        const auto end = std::chrono::steady_clock::now() + limit;
        while (!condition.holdsFor(*screen())) {
            if (isGone || std::chrono::steady_clock::now() >= end)
                return condition.differenceOf(*screen());
            if (nextFrame)
                nextFrame();
        }
        return {};
    }

    bool settle(const std::function<void()>& tell) override
    {
        return (standsStill ? tell() : void()), comesToRest && !isGone;
    }
    bool isThere() override { return !isGone; }
    std::string say(const std::string& wire, const std::string& line) override
    {
        return note(wire + ": " + line), refusal;
    }

    std::optional<host::Workplace> workplace(const std::vector<std::string>&) override { return place; }
    host::Workplace::Typed type(const std::string&) override { return host::Workplace::Typed::NOWHERE; }
    std::string translate(const std::string& key) override { return key == "Menu" ? "MENU" : key; }
    void rest(milliseconds) override {}

    host::Picture picture() override
    {
        host::Picture picture{8, 8, std::vector<std::uint8_t>(64), {}, 1};
        if (!text.empty())
            picture.texts.push_back({{0, 0, 7, 7}, text, true, false});
        return picture;
    }

    void note(const std::string& line)
    {
        notes.push_back(line);
        isGone = isGone || line == goesAtKey;
    }

    std::vector<std::string> notes;
    std::string text;
    bool takesKeys = true;
    bool hasVirtualClock = true;
    bool comesToRest = true;
    bool standsStill = false;
    bool isGone = false;
    std::string goesAtKey;
    host::Workplace place;
    std::string refusal;
    std::function<void()> nextFrame;
    std::int64_t passed = 0;
    std::pair<std::int64_t, std::string> atTime{INT64_MAX, {}}; ///< what it shows from then on
};

class FakeReport : public ScriptReport {
public:
    void at(int line) override { lines.push_back(line); }
    void note(int line, const std::string& text) override { notes.push_back(std::to_string(line) + ": " + text); }
    void passed() override { hasPassed = true; }

    void failed(int line, const std::string& reason) override
    {
        failedLine = line;
        failure = reason;
    }

    std::vector<int> lines;
    std::vector<std::string> notes;
    bool hasPassed = false;
    int failedLine = 0;
    std::string failure;
};

class ScriptRunnerTest : public testing::Test {
protected:
    void run(const std::string& text, milliseconds patience = milliseconds(0))
    {
        const Script script = parseScript("s", text);
        ASSERT_THAT(script.errors, IsEmpty());
        ScriptRunner(phone, report, folder.path(), patience).run(script);
        EXPECT_NE(report.hasPassed, report.failedLine != 0);
    }

    std::string contentOf(const char* name) const
    {
        std::stringstream text;
        text << std::ifstream(folder / name).rdbuf();
        return text.str();
    }

    const test::TemporaryFolder folder;
    FakePhone phone;
    FakeReport report;
};

TEST_F(ScriptRunnerTest, EmptyScriptPasses)
{
    run("");
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, TellsEachLineBeforeItsStep)
{
    run("key ok\n\nwait 5\n");
    EXPECT_THAT(report.lines, ElementsAre(1, 3));
}

TEST_F(ScriptRunnerTest, KeysGoDownAndUpOneAfterTheOther)
{
    run("type 1*");
    EXPECT_THAT(phone.notes, ElementsAre("down 49", "up 49", "down 42", "up 42"));
}

TEST_F(ScriptRunnerTest, HeldKeyIsDownForThatLong)
{
    run("hold 5 1800");
    EXPECT_THAT(phone.notes, ElementsAre("down 53", "pass 1800", "up 53"));
}

TEST_F(ScriptRunnerTest, HeldKeyThatMovesThroughAListRepeats)
{
    run("hold down 750");
    const std::string down = "down " + std::to_string(PK_DOWN);
    EXPECT_THAT(phone.notes, ElementsAre(down, "pass 500", down, "pass 100", down, "pass 100", down, "pass 50",
                                         "up " + std::to_string(PK_DOWN)));
}

TEST_F(ScriptRunnerTest, WaitLetsTimePass)
{
    run("wait 250");
    EXPECT_THAT(phone.notes, ElementsAre("pass 250"));
}

TEST_F(ScriptRunnerTest, ExchangeHearsALine)
{
    run("exchange 4711 \"Ada\" calls  line 2 ");
    EXPECT_THAT(phone.notes, ElementsAre("exchange: 4711 \"Ada\" calls  line 2"));
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, LineThatIsRefusedEndsTheScript)
{
    phone.refusal = "there is no line 3";
    run("key ok\nexchange 4711 calls line 3\nkey ok");
    EXPECT_EQ(report.failedLine, 2);
    EXPECT_THAT(report.failure, testing::HasSubstr("there is no line 3"));
}

TEST_F(ScriptRunnerTest, AdvanceMovesTheClockInOneGo)
{
    run("advance 36000000");
    EXPECT_THAT(phone.notes, ElementsAre("advance 36000000"));
}

TEST_F(ScriptRunnerTest, RealClockIsNotAdvanced)
{
    phone.hasVirtualClock = false;
    run("wait 5\nadvance 5");
    EXPECT_EQ(report.failedLine, 2);
    EXPECT_THAT(report.failure, testing::StartsWith("the telephone's clock is not a virtual one"));
}

TEST_F(ScriptRunnerTest, ExpectedTextMayBeAPartOfARow)
{
    phone.text = "Ring tone: Classic";
    run("expect tone: Cl");
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, ExpectationWaitsForALaterFrame)
{
    phone.nextFrame = [this] { phone.text = "Ready"; };
    run("expect Ready", std::chrono::minutes(1));
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, FailureTellsWhatIsShown)
{
    phone.text = "Busy";
    run("key ok\nexpect Ready\nkey ok\n");
    EXPECT_EQ(report.failedLine, 2);
    EXPECT_THAT(report.failure, testing::StartsWith("expected 'Ready'\nthe screen shows:\n> Busy\n"));
    EXPECT_THAT(report.lines, ElementsAre(1, 2));
}

TEST_F(ScriptRunnerTest, FailureTellsOfAnEmptyScreen)
{
    run("expect Ready");
    EXPECT_THAT(report.failure, testing::StartsWith("expected 'Ready'\nthe screen shows no text\n"));
}

TEST_F(ScriptRunnerTest, FailureLeavesTheScreen)
{
    phone.text = "Busy";
    run("expect Ready");
    EXPECT_THAT(report.failure, testing::EndsWith("the screen is kept as " + (folder / "s-failed.png") + " and " +
                                                  (folder / "s-failed.txt")));
    EXPECT_EQ(contentOf("s-failed.txt"), "object:\nname:List\nstring0:Busy\nend:\n");
    EXPECT_EQ(contentOf("s-failed.png").substr(0, 4), "\x89PNG");
}

TEST_F(ScriptRunnerTest, ScreenThatCannotBeLeftIsToldBehindTheFailure)
{
    ScriptRunner(phone, report, "/nowhere", milliseconds(0)).run(parseScript("s", "expect Ready"));
    EXPECT_EQ(report.failure, "expected 'Ready'\nthe screen shows no text\nthe screen cannot be kept in /nowhere");
}

TEST_F(ScriptRunnerTest, LastKeyMayEndTheProgram)
{
    phone.goesAtKey = "down " + std::to_string('2');
    run("wait 5\ntype 12");
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, LastHeldKeyMayEndTheProgram)
{
    phone.goesAtKey = "up " + std::to_string('2');
    run("hold 2 100");
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, KeyOnTheWayToAChoiceMayNotEndTheProgram)
{
    phone.place.choices = {{.count = 2, .current = 0, .hasKeys = true, .found = {1}}};
    phone.goesAtKey = "up " + std::to_string(PK_DOWN);
    run("choose \"b\"");
    EXPECT_EQ(report.failedLine, 1);
    phone.isGone = false;
    phone.place.choices[0].current = 1;
    phone.goesAtKey = "up " + std::to_string(PK_OK);
    report = {};
    run("choose \"b\"");
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, KeyBeforeTheLastMayNotEndTheProgram)
{
    phone.goesAtKey = "down " + std::to_string('1');
    run("type 12");
    EXPECT_EQ(report.failedLine, 1);
    report = {};
    phone.isGone = false;
    run("key 1\nwait 5");
    EXPECT_EQ(report.failedLine, 1);
}

TEST_F(ScriptRunnerTest, UnwantedTextFails)
{
    phone.text = "Busy";
    run("expect-not Busy");
    EXPECT_THAT(report.failure, testing::StartsWith("expected no 'Busy'\nthe screen shows:\n> Busy\n"));
}

TEST_F(ScriptRunnerTest, UnwantedTextMayStillGo)
{
    phone.text = "Busy";
    phone.nextFrame = [this] { phone.text.clear(); };
    run("expect-not Busy", std::chrono::minutes(1));
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, RefusedKeyFails)
{
    phone.takesKeys = false;
    run("key ok");
    EXPECT_EQ(report.failedLine, 1);
    EXPECT_THAT(report.failure, testing::StartsWith("the telephone does not take the key"));
}

TEST_F(ScriptRunnerTest, EndOfTheApplicationFails)
{
    phone.isGone = true;
    run("wait 5");
    EXPECT_THAT(report.failure, testing::StartsWith("the application has ended"));
    EXPECT_THAT(phone.notes, IsEmpty());
}

TEST_F(ScriptRunnerTest, UnrestFails)
{
    phone.comesToRest = false;
    run("wait 5");
    EXPECT_THAT(report.failure, testing::StartsWith("the application does not come to rest\n"));
    EXPECT_THAT(report.notes, IsEmpty());
}

TEST_F(ScriptRunnerTest, GuiThreadThatStandsStillForAWhileIsNoted)
{
    phone.standsStill = true;
    run("\nwait 5");
    EXPECT_TRUE(report.hasPassed);
    EXPECT_THAT(report.notes, ElementsAre("2: the GUI thread stands still: for 2 seconds it has been at one thing"));
}

TEST_F(ScriptRunnerTest, GuiThreadThatStandsStillForGoodFails)
{
    phone.standsStill = true;
    phone.comesToRest = false;
    run("wait 5");
    EXPECT_THAT(report.failure,
                testing::StartsWith("the application does not come to rest: its GUI thread stands still\n"));
}

TEST_F(ScriptRunnerTest, DumpWritesTheScreenAsText)
{
    phone.text = "Ready";
    run("dump ScriptRunnerTest.txt");
    EXPECT_EQ(contentOf("ScriptRunnerTest.txt"), "object:\nname:List\nstring0:Ready\nend:\n");
}

TEST_F(ScriptRunnerTest, DumpWritesTheTextsAsJson)
{
    phone.text = "Ångström";
    run("dump --json ScriptRunnerTest.json");
    EXPECT_THAT(contentOf("ScriptRunnerTest.json"), testing::HasSubstr("\"text\": \"Ångström\""));
}

class ScriptComparisonTest : public ScriptRunnerTest {
protected:
    ScriptComparisonTest() { std::ofstream(mFile) << "object:\nname:List\nstring0:Ready\nend:\n"; }

    void compare(milliseconds patience = milliseconds(0))
    {
        const Script script{{{Step::Action::COMPARE, 7, {}, 0, mFile}}, {}};
        ScriptRunner(phone, report, "/nowhere", patience).run(script);
    }

    void update()
    {
        setenv(UPDATE_SCREENS_VARIABLE, "1", 1);
        compare();
        unsetenv(UPDATE_SCREENS_VARIABLE);
        EXPECT_TRUE(report.hasPassed);
    }

    std::string mFile = folder / "ScriptComparisonTest.txt";
};

TEST_F(ScriptComparisonTest, SameScreenPasses)
{
    phone.text = "Ready";
    compare();
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptComparisonTest, OtherScreenFailsWithTheLinesThatDiffer)
{
    phone.text = "Busy";
    compare();
    EXPECT_EQ(report.failedLine, 7);
    EXPECT_THAT(
        report.failure,
        testing::StartsWith("the screen is not that of " + mFile +
                            " (-), but another (+):\n- string0:Ready\n+ string0:Busy\n\nthe screen shows:\n> Busy\n"));
}

TEST_F(ScriptComparisonTest, WaitsForALaterFrame)
{
    phone.text = "Busy";
    phone.nextFrame = [this] { phone.text = "Ready"; };
    compare(std::chrono::minutes(1));
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptComparisonTest, DoesNotWaitForATelephoneThatIsGone)
{
    phone.text = "Busy";
    phone.nextFrame = [this] { phone.isGone = true; };
    compare(std::chrono::minutes(1));
    EXPECT_EQ(report.failedLine, 7);
}

TEST_F(ScriptComparisonTest, DoesNotWaitForAFileThatIsGone)
{
    std::filesystem::remove(mFile);
    phone.nextFrame = [this] { phone.isGone = true; };
    compare(std::chrono::minutes(1));
    EXPECT_EQ(report.failedLine, 7);
    EXPECT_THAT(report.failure, testing::StartsWith("cannot read " + mFile));
}

TEST_F(ScriptComparisonTest, UpdateWritesAFileThatDoesNotExist)
{
    std::filesystem::remove(mFile);
    phone.text = "Busy";
    update();
    EXPECT_EQ(contentOf("ScriptComparisonTest.txt"), "object:\nname:List\nstring0:Busy\nend:\n");
}

TEST_F(ScriptComparisonTest, UpdateGivesAPanelThatShowsSomethingElseAFileOfItsOwn)
{
    phone.text = "Busy";
    update();
    EXPECT_EQ(contentOf("ScriptComparisonTest.txt"), "object:\nname:List\nstring0:Ready\nend:\n");
    EXPECT_EQ(contentOf("ScriptComparisonTest.plain.txt"), "object:\nname:List\nstring0:Busy\nend:\n");
}

TEST_F(ScriptComparisonTest, UpdateGivesAPanelThatShowsTheSameNoFileOfItsOwn)
{
    phone.text = "Ready";
    update();
    EXPECT_FALSE(std::filesystem::exists(folder / "ScriptComparisonTest.plain.txt"));
}

TEST_F(ScriptComparisonTest, UpdateRenewsAPanelsOwnFile)
{
    mFile = folder / "ScriptComparisonTest.plain.txt";
    std::ofstream(mFile) << "object:\n";
    phone.text = "Busy";
    update();
    EXPECT_EQ(contentOf("ScriptComparisonTest.plain.txt"), "object:\nname:List\nstring0:Busy\nend:\n");
    EXPECT_EQ(contentOf("ScriptComparisonTest.txt"), "object:\nname:List\nstring0:Ready\nend:\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "ScriptComparisonTest.plain.plain.txt"));
}

TEST_F(ScriptRunnerTest, ScreenshotWritesAPicture)
{
    run("screenshot ScriptRunnerTest.png");
    EXPECT_TRUE(report.hasPassed);
    std::ifstream file(folder / "ScriptRunnerTest.png");
    std::string start(4, ' ');
    EXPECT_TRUE(file.read(start.data(), 4));
    EXPECT_EQ(start, "\x89PNG");
}

TEST_F(ScriptRunnerTest, OutputThatCannotBeWrittenFails)
{
    for (const char* step : {"dump a.txt", "dump --json a.json", "screenshot a.png"}) {
        report = {};
        ScriptRunner(phone, report, "/nowhere", milliseconds(0)).run(parseScript("s", step));
        EXPECT_EQ(report.failedLine, 1) << step;
    }
}

TEST_F(ScriptRunnerTest, ExpectedTextMayBeTheCatalogues)
{
    phone.text = "The MENU";
    run("expect _(\"Menu\")");
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, AnyOfTheTextsIsWhatShallNotBeThere)
{
    phone.text = "The MENU";
    run("expect-not _(\"Other\" or \"Menu\")");
    EXPECT_EQ(report.failedLine, 1);
    EXPECT_THAT(report.failure, testing::StartsWith("expected no 'Other' or 'MENU'"));
}

TEST_F(ScriptRunnerTest, ShortTextIsAWholeOneButWhereItIsLooselyMeant)
{
    phone.text = "09:41";
    run("expect 4\nawait 9\nexpect-not _(\"4\")");
    EXPECT_TRUE(report.hasPassed);
    phone.atTime = {100, "4"};
    run("await \"4\"");
    EXPECT_TRUE(report.hasPassed);
    EXPECT_EQ(phone.passed, 100);
}

TEST_F(ScriptRunnerTest, AnyOfTheTextsIsWaitedForAtOnce)
{
    phone.text = "Kontakte";
    phone.nextFrame = [this] {
        ADD_FAILURE() << "it waits although one is there";
        phone.isGone = true;
    };
    run("expect _(\"Contacts\" or \"Kontakte\")", std::chrono::seconds(60));
    EXPECT_TRUE(report.hasPassed);
}

TEST_F(ScriptRunnerTest, TimePassesUntilWhatIsAwaitedComes)
{
    phone.text = "Ringing";
    phone.atTime = {120, "Connected"};
    run("await Connected");
    EXPECT_TRUE(report.hasPassed);
    EXPECT_EQ(phone.passed, 150);
}

TEST_F(ScriptRunnerTest, WhatNeverComesIsAwaitedForAMinute)
{
    phone.text = "Ringing";
    run("await Connected");
    EXPECT_THAT(report.failure, testing::StartsWith("'Connected' has not come within 60 seconds on the telephone's "
                                                    "clock\nthe screen shows:\n> Ringing"));
    EXPECT_EQ(phone.passed, 60'000);
}

TEST_F(ScriptRunnerTest, WhatCannotBeDoneSaysWhy)
{
    run("choose Contacts");
    EXPECT_THAT(report.failure, testing::StartsWith("there is no 'Contacts' to go to, and nothing else\n"));
    run("type \"Ada\"");
    EXPECT_THAT(report.failure, testing::StartsWith("there is nothing into which 'Ada' could be typed\n"));
}

} // namespace
