#include "simulator/screen/ScreenText.h"

#include "toolkit/PegThing.h"

#include <gtest/gtest.h>

namespace {

using host::TextRun;
using simulator::screenText;

constexpr bool RUNS = true;

TextRun run(std::string text, PegType widget, bool runs = false)
{
    TextRun made{{0, 0, 9, 9}, std::move(text)};
    made.widget = widget;
    made.runs = runs;
    return made;
}

const std::string LIST = "object:\nname:List\ncaption:Calls\nsubitem:\nname:Row\nstring0:09:12\nendsubitem:\nend:\n";

TEST(ScreenText, DisplayablesAreAsTheLibraryTellsThem)
{
    EXPECT_EQ(screenText("", {}), "");
    EXPECT_EQ(screenText(LIST, {}), LIST);
    EXPECT_EQ(screenText(LIST, {run("09:12", TYPE_LIST_WITH_TITLE)}), LIST);
}

TEST(ScreenText, SystemWindowIsOneObject)
{
    EXPECT_EQ(screenText(LIST, {run("Anna", TYPE_SYSTEM_WINDOW), run("2nd line", TYPE_SYSTEM_WINDOW)}),
              LIST + "object:\nname:SystemWindow\nstring0:Anna\nstring1:2nd line\nend:\n");
}

TEST(ScreenText, RunningTextsOfTheSystemWindowAreVolatileAndTheOthersKeepTheirNumbers)
{
    EXPECT_EQ(screenText("", {run("Anna", TYPE_SYSTEM_WINDOW), run("09:12", TYPE_SYSTEM_WINDOW, RUNS),
                              run("Call", TYPE_SYSTEM_WINDOW)}),
              "object:\nname:SystemWindow\nstring0:Anna\nvolatile:09:12\nstring2:Call\nend:\n");
}

TEST(ScreenText, EachTickerIsAnObject)
{
    EXPECT_EQ(screenText("", {run("News", TYPE_TICKER, RUNS), run("Short", TYPE_TICKER)}),
              "object:\nname:Ticker\nvolatile:News\nend:\nobject:\nname:Ticker\nstring0:Short\nend:\n");
}

TEST(ScreenText, ObjectsStandInAFixedOrder)
{
    EXPECT_EQ(screenText("", {run("c", TYPE_TICKER), run("b", TYPE_STATUS_MESSAGE), run("a", TYPE_SYSTEM_WINDOW)}),
              "object:\nname:SystemWindow\nstring0:a\nend:\nobject:\nname:StatusMessage\nstring0:b\nend:\n"
              "object:\nname:Ticker\nstring0:c\nend:\n");
}

TEST(ScreenText, RunningTextsOfListsAreVolatileWhereTheLibraryTellsThem)
{
    for (const PegType list : {TYPE_LIST_WITH_TITLE, TYPE_LIST_WP1})
        EXPECT_EQ(screenText(LIST, {run("09:12", list, RUNS), run("09:12", list)}),
                  "object:\nname:List\ncaption:Calls\nsubitem:\nname:Row\nvolatile:09:12\nendsubitem:\nend:\n");
    EXPECT_EQ(screenText("object:\ncaption:1:00\nend:\n", {run("1:00", TYPE_LIST_WP1, RUNS)}),
              "object:\nvolatile:1:00\nend:\n");
}

TEST(ScreenText, RunningTextsOfWindowsAreVolatileWhereTheLibraryTellsThem)
{
    const std::string idle = "object:\nname:IdleDisplay\nsubitem:\nname:Time\n";
    EXPECT_EQ(screenText(idle + "string0:14:05\n", {run("14:05", TYPE_WINDOW, RUNS)}), idle + "volatile:14:05\n");
}

TEST(ScreenText, RunningTextsOfListsAreAnObjectWhereTheLibraryDoesNotTellThem)
{
    EXPECT_EQ(screenText(LIST, {run("10:00:00", TYPE_LIST_WITH_TITLE, RUNS), run("Line 1", TYPE_LIST_WITH_TITLE)}),
              LIST + "object:\nname:RunningTexts\nvolatile:10:00:00\nend:\n");
}

TEST(ScreenText, KeywordsAreNeverVolatile)
{
    const std::string text = "object:\nname:List\nnot a keyword\n\nstring\nend:\n";
    EXPECT_TRUE(screenText(text, {run("List", TYPE_LIST_WP1, RUNS), run("", TYPE_LIST_WP1, RUNS)}).starts_with(text));
}

TEST(ScreenText, TextIsAsciiOnOneLine)
{
    EXPECT_EQ(screenText("", {run("Zo\xC3\xAB\nA\t\xFF", TYPE_STATUS_MESSAGE)}),
              "object:\nname:StatusMessage\nstring0:Zo? A ?\nend:\n");
}

TEST(ScreenText, RunningTextOfAListIsFoundInAscii)
{
    EXPECT_EQ(screenText("string0:Zo?\n", {run("Zo\xC3\xAB", TYPE_LIST_WP1, RUNS)}), "volatile:Zo?\n");
}

} // namespace
