#include "simulator/launcher/Options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using simulator::Options;
using simulator::parseOptions;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(Options, ApplicationAloneIsEnough)
{
    const Options options = parseOptions({"app"});
    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.variant, "plain");
    EXPECT_EQ(options.port, "8080");
    EXPECT_THAT(options.application, ElementsAre("app"));
}

TEST(Options, WhatFollowsTheApplicationIsItsOwn)
{
    const Options options = parseOptions({"--variant", "wp1", "--port=9000", "app", "--port", "1"});
    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.variant, "wp1");
    EXPECT_EQ(options.port, "9000");
    EXPECT_THAT(options.application, ElementsAre("app", "--port", "1"));
}

TEST(Options, TwoDashesEndTheLaunchersOwn)
{
    EXPECT_THAT(parseOptions({"--", "-app"}).application, ElementsAre("-app"));
}

TEST(Options, ScriptNeedsNoPort)
{
    const Options options = parseOptions({"--script", "walk", "--out", "pictures", "--port", "none", "app"});
    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.script, "walk");
    EXPECT_EQ(options.out, "pictures");
}

TEST(Options, PortMayBeAnyThatIsFree)
{
    EXPECT_EQ(parseOptions({"--port", "0", "app"}).error, "");
    EXPECT_THAT(parseOptions({"--port", "00", "app"}).error, HasSubstr("not '00'"));
    EXPECT_THAT(parseOptions({"--port", "0", "--listen", "0.0.0.0", "app"}).error, HasSubstr("go together"));
}

TEST(Options, TestInterfaceIsOffUnlessItIsAskedFor)
{
    EXPECT_FALSE(parseOptions({"app"}).rpc);
    const Options options = parseOptions({"--rpc", "--rpc-read-only", "--rpc-token", "t", "--virtual-clock", "app"});
    EXPECT_EQ(options.error, "");
    EXPECT_TRUE(options.rpc && options.rpcReadOnly && options.virtualClock);
    EXPECT_EQ(options.rpcToken, "t");
}

TEST(Options, HelpAsksForNothingElse)
{
    EXPECT_TRUE(parseOptions({"--help"}).wantsHelp);
    EXPECT_EQ(parseOptions({"-h"}).error, "");
}

TEST(Options, MistakesAreSentences)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> mistakes = {
        {{}, "Its name is missing"},
        {{"--port", "80"}, "Its name is missing"},
        {{"--colour", "app"}, "There is no option --colour"},
        {{"--colour=red", "app"}, "There is no option --colour"},
        {{"--port"}, "--port needs a value"},
        {{"--variant", "wide", "app"}, "There is no variant 'wide'"},
        {{"--port", "eighty", "app"}, "not 'eighty'"},
        {{"--listen", "0.0.0.0", "app"}, "go together"},
        {{"--rpc-token", "t", "app"}, "go with --rpc"},
        {{"--rpc-read-only", "app"}, "go with --rpc"},
        {{"--rpc", "--script", "s", "app"}, "a script has none"},
        {{"--rpc=yes", "app"}, "There is no option --rpc"},
        {{"--record", "r", "--script", "s", "app"}, "a script is written already"},
        {{"--record=", "app"}, "--record needs the name of a file"},
    };
    for (const auto& [words, sentence] : mistakes)
        EXPECT_THAT(parseOptions(words).error, HasSubstr(sentence));
}

} // namespace
