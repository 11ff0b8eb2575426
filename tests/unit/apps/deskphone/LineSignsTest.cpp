#include "apps/deskphone/LineSigns.h"
#include "utilities/TranslatorIfc.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using deskphone::LineSigns;
using deskphone::PhoneCall;
using deskphone::signsOf;
using deskphone::wordsFor;
using exchange::CallState;
using exchange::Line;
using testing::ElementsAre;
using testing::IsEmpty;
using enum DisplayAPI::LineOverviewItem::LineState;

namespace {

/// Texts are their keys, with what stands in them behind.
class Keys : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return key + " %1"; }
};

class LineSignsTest : public testing::Test {
protected:
    static PhoneCall call(exchange::LineNumber line, CallState state)
    {
        return {.last = {.call = 1, .line = line, .state = state, .other = {}}};
    }

    auto stateWith(const std::vector<PhoneCall>& calls)
    {
        std::vector<const PhoneCall*> all;
        for (const PhoneCall& one : calls)
            all.push_back(&one);
        return stateOf(line, all);
    }

    LineSigns signs(const std::vector<Line>& lines) { return signsOf(lines, lines.front(), keys); }

    Keys keys;
    Line line{.number = 1};
};

TEST_F(LineSignsTest, LineStandsAsItsCallDoes)
{
    const std::vector<std::pair<CallState, DisplayAPI::LineOverviewItem::LineState>> expected = {
        {CallState::DIALLING, DIALLING},     {CallState::PROCEEDING, DIALLING},
        {CallState::RINGING_BACK, DIALLING}, {CallState::INCOMING, RINGING},
        {CallState::CONNECTED, IN_USE},      {CallState::RESUMING, IN_USE},
        {CallState::HELD_BY_ME, HELD},       {CallState::HELD_BY_BOTH, HELD},
        {CallState::TRANSFERRING, HELD},     {CallState::HELD_BY_OTHER, HELD_BY_OTHER},
        {CallState::CONFERENCE, CONFERENCE}};
    for (const auto& [state, shown] : expected)
        EXPECT_EQ(stateWith({call(1, state)}), shown) << nameOf(state);
}

TEST_F(LineSignsTest, CallThatWantsTheUserGoesBeforeOneThatWaits)
{
    EXPECT_EQ(stateWith({call(1, CallState::HELD_BY_ME), call(1, CallState::CONNECTED)}), IN_USE);
    EXPECT_EQ(stateWith({call(1, CallState::CONNECTED), call(1, CallState::INCOMING)}), RINGING);
}

TEST_F(LineSignsTest, CallOfAnotherLineIsNothingToThisOne)
{
    EXPECT_EQ(stateWith({call(2, CallState::CONNECTED)}), IDLE);
}

TEST_F(LineSignsTest, LineWithoutCallsTellsWhatIsInTheirWayBeforeWhatWaits)
{
    EXPECT_EQ(stateWith({}), IDLE);
    line.messages = 3;
    EXPECT_EQ(stateWith({}), MESSAGE_WAITING);
    line.forwarding.always = "4711";
    EXPECT_EQ(stateWith({}), FORWARDED);
    line.doNotDisturb = true;
    EXPECT_EQ(stateWith({}), DO_NOT_DISTURB);
    line.isRegistered = false;
    EXPECT_EQ(stateWith({}), NOT_REGISTERED);
    EXPECT_EQ(stateWith({call(1, CallState::INCOMING)}), RINGING);
}

TEST_F(LineSignsTest, WordsHaveWhatBelongsToThem)
{
    line.messages = 3;
    line.forwarding.always = "4711";
    EXPECT_EQ(wordsFor(MESSAGE_WAITING, line, keys), "Line.messages 3");
    EXPECT_EQ(wordsFor(FORWARDED, line, keys), "Line.forwarded 4711");
    EXPECT_EQ(wordsFor(IDLE, line, keys), "");
}

TEST_F(LineSignsTest, NothingIsToldOfLinesOnWhichNothingIsTheMatter)
{
    EXPECT_EQ(signs({{.number = 1}, {.number = 2}}), (LineSigns{.name = "Line.number 1", .status = "Line.number 1"}));
}

TEST_F(LineSignsTest, NoticesNameEachLineToWhichNobodyComesThrough)
{
    const LineSigns told = signs({{.number = 1, .doNotDisturb = true}, {.number = 2, .isRegistered = false}});
    EXPECT_THAT(told.notices, ElementsAre("Line.number 1  Menu.disturb 0", "Line.number 2  "
                                                                           "Line.not.registered 0"));
    EXPECT_EQ(told.state, "Menu.disturb 0");
    EXPECT_EQ(told.status, "Line.number 1  Menu.disturb 0");
    EXPECT_TRUE(told.isQuiet);
}

TEST_F(LineSignsTest, MessagesAreThoseOfAllLines)
{
    const LineSigns told = signs({{.number = 1, .messages = 2}, {.number = 2, .messages = 3}});
    EXPECT_EQ(told.messages, 5);
    EXPECT_EQ(told.state, "Line.messages 2");
    EXPECT_THAT(told.notices, IsEmpty());
}

TEST_F(LineSignsTest, AddressIsTheOutgoingLinesAndTheSignEachLines)
{
    const exchange::Forwarding always{.always = "4711"}, busy{.whenBusy = "4712"}, late{.whenNotAnswered = "4713"};
    EXPECT_EQ(signs({{.number = 1, .forwarding = always}}).forwardedTo, "4711");
    EXPECT_EQ(signs({{.number = 1}, {.number = 2, .forwarding = always}}).forwardedTo, "");
    EXPECT_TRUE(signs({{.number = 1}, {.number = 2, .forwarding = busy}}).forwards);
    EXPECT_TRUE(signs({{.number = 1}, {.number = 2, .forwarding = late}}).forwards);
    EXPECT_FALSE(signs({{.number = 1}}).forwards);
}

} // namespace
