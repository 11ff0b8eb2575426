#include "apps/deskphone/OwnLines.h"
#include "apps/exchange/Exchange.h"
#include "unit/exchange/StandingClock.h"

#include <gmock/gmock.h>

#include <string>

using deskphone::comesBack;
using deskphone::OwnLines;

namespace {

class OwnLinesTest : public testing::Test {
protected:
    void say(const std::string& sentence) { EXPECT_EQ(exchange.command(sentence), ""); }

    test::StandingClock clock;
    exchange::Exchange exchange{exchange::Numbers::parse("numbers", "line 1 is 3301\nline 2 is 3302\nline 3 is 3303\n"),
                                clock};
    OwnLines lines{exchange};
};

TEST_F(OwnLinesTest, CallsGoOutOnTheFirstLineUntilAnotherIsChosen)
{
    EXPECT_EQ(lines.outgoing().party.number, "3301");
    lines.choose(3);
    EXPECT_EQ(lines.outgoing().party.number, "3303");
}

TEST_F(OwnLinesTest, CallsGoOutOnAnotherLineWhileTheChosenOneIsNotRegistered)
{
    lines.choose(2);
    say("line 2 is not registered");
    EXPECT_EQ(lines.outgoing().number, 1);
    say("line 1 is not registered");
    EXPECT_EQ(lines.outgoing().number, 3);
    say("line 2 is registered");
    EXPECT_EQ(lines.outgoing().number, 2);
}

TEST_F(OwnLinesTest, ChosenLineIsTheOneThatFailsWhereNoneIsRegistered)
{
    lines.choose(2);
    for (const char* line : {"line 1", "line 2", "line 3"})
        say(std::string(line) + " is not registered");
    EXPECT_EQ(lines.outgoing().number, 2);
    EXPECT_FALSE(lines.outgoing().isRegistered);
}

TEST_F(OwnLinesTest, LinesMayBeginWithAnotherNumberThanOne)
{
    test::StandingClock ownClock; // two exchanges would take each other's wake-ups
    exchange::Exchange other(exchange::Numbers::parse("numbers", "line 4 is 3304\nline 7 is 3307\n"), ownClock);
    OwnLines four(other);
    EXPECT_EQ(four.outgoing().number, 4);
    four.choose(7);
    EXPECT_EQ(four.outgoing().number, 7);
}

TEST_F(OwnLinesTest, CallsComeBackFromTheLineItselfAndFromOthersThatSendThemHere)
{
    EXPECT_FALSE(comesBack(lines.all(), 1, "4711"));
    EXPECT_FALSE(comesBack(lines.all(), 1, ""));
    EXPECT_TRUE(comesBack(lines.all(), 1, "3301"));
    EXPECT_FALSE(comesBack(lines.all(), 1, "3302"));
    ASSERT_TRUE(exchange.setForwarding(2, {.always = "3303"}));
    EXPECT_FALSE(comesBack(lines.all(), 1, "3302"));
    ASSERT_TRUE(exchange.setForwarding(3, {.always = "3301"}));
    EXPECT_TRUE(comesBack(lines.all(), 1, "3302"));
}

TEST_F(OwnLinesTest, CallsThatTurnInACircleOfOtherLinesRingNowhere)
{
    ASSERT_TRUE(exchange.setForwarding(2, {.always = "3303"}));
    ASSERT_TRUE(exchange.setForwarding(3, {.always = "3302"}));
    EXPECT_TRUE(comesBack(lines.all(), 1, "3302"));
}

TEST_F(OwnLinesTest, LineIsFoundAsItIsNow)
{
    say("line 2 has 3 messages");
    EXPECT_EQ(lines.find(2).messages, 3);
}

} // namespace
