#include "unit/exchange/Scenario.h"

namespace test {

namespace {

/// How call #1 with 4711 comes into a state. What goes on then has no say any more when it ends.
struct Ending {
    exchange::CallState state;
    std::string numbers;
    std::vector<std::string> steps;
};

using exchange::CallState;

const char TALKS[] = "4711 answers, holds after 5 s, resumes after 5 s, transfers me to 4713 after 5 s\n4712 answers";

const std::vector<Ending> ENDINGS = {
    {CallState::DIALLING, TALKS, {"place 4711"}},
    {CallState::PROCEEDING, TALKS, {"place 4711", "wait 200"}},
    {CallState::RINGING_BACK, "4711 answers after 9 s", {"place 4711", "wait 500"}},
    {CallState::INCOMING, TALKS, {"forward 1 later 4712", "4711 calls"}},
    {CallState::CONNECTED, TALKS, {"4711 calls", "answer 1"}},
    {CallState::HELD_BY_ME, TALKS, {"4711 calls", "answer 1", "hold 1"}},
    {CallState::HELD_BY_OTHER, TALKS, {"4711 calls", "answer 1", "wait 5000"}},
    {CallState::HELD_BY_BOTH, TALKS, {"4711 calls", "answer 1", "wait 5000", "hold 1"}},
    {CallState::RESUMING, TALKS, {"4711 calls", "answer 1", "hold 1", "resume 1"}},
    {CallState::TRANSFERRING, TALKS, {"4711 calls", "answer 1", "transferTo 1 4712"}},
    {CallState::TRANSFERRING, TALKS, {"4711 calls", "answer 1", "wait 15000"}},
    {CallState::TRANSFERRING, TALKS, {"4711 calls", "answer 1", "place 4712", "wait 500", "transfer 1 2"}},
    {CallState::CONFERENCE, TALKS, {"4711 calls", "answer 1", "place 4712", "wait 500", "join 1 2"}},
    {CallState::CONFERENCE, "", {"4711 calls", "answer 1", "4711 plays in a conference with 4712"}},
};

/// What comes of call #1.
class FirstCall : public exchange::TelephonyListener {
public:
    void callChanged(const exchange::CallEvent& event) override
    {
        if (event.call == 1)
            events.push_back(event);
    }

    std::vector<exchange::CallEvent> events;
};

class EndingTest : public testing::TestWithParam<Ending> {
protected:
    EndingTest()
    {
        fixture.exchange.setListener(&first);
        for (const std::string& step : GetParam().steps)
            take(fixture, step);
        fixture.exchange.waitUntilHeard();
        EXPECT_EQ(nameOf(first.events.back().state), nameOf(GetParam().state));
        first.events.clear();
    }
    ~EndingTest() override { fixture.exchange.setListener(nullptr); }

    /// It has ended once, and nothing comes of it within the hour.
    void expectEnd(exchange::Reason reason)
    {
        fixture.pass(60 * 60 * 1000);
        ASSERT_EQ(first.events.size(), 1u);
        EXPECT_EQ(first.events.front().state, CallState::ENDED);
        EXPECT_EQ(nameOf(first.events.front().reason), nameOf(reason));
        EXPECT_EQ(first.events.front().other.number, "4711");
        EXPECT_FALSE(fixture.exchange.end(1));
    }

    FirstCall first;
    ExchangeFixture fixture{GetParam().numbers};
};

TEST_P(EndingTest, EndsFromHere)
{
    EXPECT_TRUE(fixture.exchange.end(1));
    const bool isRejected = GetParam().state == CallState::INCOMING;
    expectEnd(isRejected ? exchange::Reason::REJECTED : exchange::Reason::ENDED_BY_ME);
}

TEST_P(EndingTest, EndsFromThere)
{
    EXPECT_EQ(fixture.exchange.command("4711 ends"), "");
    const bool givesUp = GetParam().state == CallState::INCOMING;
    expectEnd(givesUp ? exchange::Reason::NO_ANSWER : exchange::Reason::ENDED_BY_OTHER);
}

TEST_P(EndingTest, LeavesTheLineToOthers)
{
    fixture.exchange.setTakesSeveral(1, false);
    fixture.exchange.end(1);
    fixture.exchange.end(2);
    EXPECT_EQ(fixture.exchange.command("4799 calls"), "");
    fixture.exchange.setListener(&fixture.listener);
    EXPECT_EQ(fixture.heard().size(), 1u) << "the only one that lives";
    EXPECT_EQ(fixture.exchange.command("4799 ends"), "");
    ASSERT_EQ(fixture.heard().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(, EndingTest, testing::ValuesIn(ENDINGS));

} // namespace

} // namespace test
