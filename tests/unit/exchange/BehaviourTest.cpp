#include "unit/exchange/ExchangeTest.h"

#include <gmock/gmock.h>
#include <ostream>

namespace test {

namespace {

using testing::ElementsAreArray;

/// A line of the file of numbers, what is done on the telephone and at the exchange meanwhile, and all that is heard.
struct BehaviourCase {
    const char* name;
    std::string numbers;
    std::vector<std::string> steps;
    std::vector<std::string> heard;
};

void PrintTo(const BehaviourCase& behaviour, std::ostream* out)
{
    *out << behaviour.name;
}

/// "after 500: hold 1" is done after 500 ms more, "4711 holds" is a sentence for the exchange.
void take(ExchangeFixture& fixture, const std::string& step)
{
    std::istringstream words(step);
    std::string verb, text;
    int call = 0, other = 0;
    words >> verb;
    const auto isTaken = [&](bool result) { EXPECT_TRUE(result) << step; };
    if (verb == "wait") {
        words >> call;
        fixture.pass(call);
    } else if (verb == "place") {
        words >> text;
        isTaken(fixture.exchange.place(words >> call ? call : 1, text) != exchange::NO_CALL);
    } else if (verb == "answer" && words >> call) {
        isTaken(fixture.exchange.answer(call));
    } else if (verb == "end" && words >> call) {
        isTaken(fixture.exchange.end(call));
    } else if (verb == "hold" && words >> call) {
        isTaken(fixture.exchange.hold(call));
    } else if (verb == "resume" && words >> call) {
        isTaken(fixture.exchange.resume(call));
    } else if (verb == "join" && words >> call >> other) {
        isTaken(fixture.exchange.join(call, other));
    } else if (verb == "transfer" && words >> call >> other) {
        isTaken(fixture.exchange.transfer(call, other));
    } else if (verb == "transferTo" && words >> call >> text) {
        isTaken(fixture.exchange.transferTo(call, text));
    } else if (verb == "deflect" && words >> call >> text) {
        isTaken(fixture.exchange.deflect(call, text));
    } else {
        EXPECT_EQ(fixture.exchange.command(step), "") << step;
    }
}

const std::vector<BehaviourCase> BEHAVIOURS = {
    {"AnswersAfterThreeSeconds",
     "4711 \"Ada Byron\" answers after 3 s",
     {"place 4711", "wait 5000"},
     {"0 #1 dialling 4711 (Ada Byron)", "200 #1 proceeding 4711 (Ada Byron)", "500 #1 ringing back 4711 (Ada Byron)",
      "3500 #1 connected 4711 (Ada Byron)"}},
    {"AnswersAtOnce",
     "4711 answers",
     {"place 4711 2", "wait 500"},
     {"0 #1 on 2 dialling 4711", "200 #1 on 2 proceeding 4711", "500 #1 on 2 ringing back 4711",
      "500 #1 on 2 connected 4711"}},
    {"IsBusy",
     "4711 is busy",
     {"place 4711", "wait 500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ended 4711: busy"}},
    {"NeverAnswers",
     "4711 never answers",
     {"place 4711", "wait 60500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "60500 #1 ended 4711: no answer"}},
    {"Rejects",
     "4711 rejects after 2 s",
     {"place 4711", "wait 2500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "2500 #1 ended 4711: rejected"}},
    {"FailsWithAReason",
     "4711 fails with \"No line is free\"",
     {"place 4711", "wait 500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 failed 4711: failure, No line is free"}},
    {"NobodyHasTheNumber",
     "",
     {"place 4711", "wait 500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 failed 4711: unknown number"}},
    {"OwnLineIsBusy",
     "",
     {"place 3302", "wait 500"},
     {"0 #1 dialling 3302", "200 #1 proceeding 3302", "500 #1 ended 3302: busy"}},
    {"ForwardsAtOnce",
     "4711 \"Ada\" forwards to 4712\n4712 \"Bob\" answers after 1 s",
     {"place 4711", "wait 1500"},
     {"0 #1 dialling 4711 (Ada)", "200 #1 proceeding 4711 (Ada)", "500 #1 ringing back 4712 (Bob) by 4711",
      "1500 #1 connected 4712 (Bob) by 4711"}},
    {"ForwardsAfterAWhile",
     "4711 forwards to 4712 after 5 s\n4712 answers",
     {"place 4711", "wait 5500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "5500 #1 ringing back 4712 by 4711",
      "5500 #1 connected 4712 by 4711"}},
    {"ForwardsToNobody",
     "4711 forwards to 4799",
     {"place 4711", "wait 500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 failed 4799 by 4711: unknown number"}},
    {"ForwardsInACircle",
     "4711 forwards to 4712\n4712 forwards to 4711",
     {"place 4711", "wait 500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 failed 4711 by 4711: failure, Forwarded too often"}},
    {"ForwardsInASlowCircle",
     "4711 forwards to 4712\n4712 forwards to 4711 after 1 s",
     {"place 4711", "wait 9000", "wait 600"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4712 by 4711",
      "1500 #1 ringing back 4712 by 4711", "2500 #1 ringing back 4712 by 4711", "3500 #1 ringing back 4712 by 4711",
      "4500 #1 ringing back 4712 by 4711", "5500 #1 failed 4711 by 4711: failure, Forwarded too often"}},
    {"CallsBack",
     "4711 is busy, calls back after 10 s",
     {"place 4711 2", "wait 11000"},
     {"0 #1 on 2 dialling 4711", "200 #1 on 2 proceeding 4711", "500 #1 on 2 ended 4711: busy",
      "10500 #2 on 2 incoming 4711"}},
    {"HoldsAndResumesAndEnds",
     "4711 answers, holds after 5 s, resumes after 2 s, ends after 1 s",
     {"place 4711", "wait 10000"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "500 #1 connected 4711",
      "5500 #1 held by other 4711", "7500 #1 connected 4711", "8500 #1 ended 4711: ended by other"}},
    {"TransfersMe",
     "4711 answers, transfers me to 4712 after 1 s\n4712 answers after 2 s, ends after 1 s",
     {"place 4711", "wait 10000"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "500 #1 connected 4711",
      "1500 #1 transferring 4711 to 4712", "2000 #1 ringing back 4712 by 4711", "4000 #1 connected 4712 by 4711",
      "5000 #1 ended 4712 by 4711: ended by other"}},
    {"TransfersMeToSomebodyBusyAndIsBack",
     "4711 answers, transfers me to 4712 after 1 s, ends after 1 s\n4712 is busy",
     {"place 4711", "wait 10000"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "500 #1 connected 4711",
      "1500 #1 transferring 4711 to 4712", "2000 #1 connected 4711: busy", "3000 #1 ended 4711: ended by other"}},
    {"PlaysInAConference",
     "4711 answers, plays in a conference with 4712 after 1 s, ends after 1 s",
     {"place 4711", "wait 10000"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "500 #1 connected 4711",
      "1500 #1 conference 4711 to 4712", "2500 #1 ended 4711: ended by other"}},
    {"DoesAsMuchWhenItIsTheOneWhoCalls",
     "4711 is busy, holds after 5 s",
     {"4711 calls", "wait 1000", "answer 1", "wait 5000"},
     {"0 #1 incoming 4711", "1000 #1 connected 4711", "6000 #1 held by other 4711"}},
    {"CallsAndIsAnswered",
     "4711 \"Ada\" answers",
     {"4711 calls line 2", "wait 1000", "answer 1", "wait 500", "4711 ends"},
     {"0 #1 on 2 incoming 4711 (Ada)", "1000 #1 on 2 connected 4711 (Ada)",
      "1500 #1 on 2 ended 4711 (Ada): ended by other"}},
    {"CallsAndIsRejected", "", {"4711 calls", "end 1"}, {"0 #1 incoming 4711", "0 #1 ended 4711: rejected"}},
    {"CallsAndGivesUp", "", {"4711 calls", "4711 ends"}, {"0 #1 incoming 4711", "0 #1 ended 4711: no answer"}},
    {"CallsForAMinute", "", {"4711 calls", "wait 99999"}, {"0 #1 incoming 4711", "60000 #1 ended 4711: no answer"}},
    {"CallsForAsLongAsIsSaid",
     "",
     {"4711 \"Eve\" calls line 1 forwarded by 4712 for 10 s", "wait 99999"},
     {"0 #1 incoming 4711 (Eve) by 4712", "10000 #1 ended 4711 (Eve) by 4712: no answer"}},
    {"HoldsOnBothSides",
     "4711 answers",
     {"4711 calls", "answer 1", "hold 1", "4711 holds", "resume 1", "wait 200", "hold 1", "4711 resumes", "resume 1",
      "wait 200"},
     {"0 #1 incoming 4711", "0 #1 connected 4711", "0 #1 held by me 4711", "0 #1 held by both 4711",
      "0 #1 resuming 4711", "200 #1 held by other 4711", "200 #1 held by both 4711", "200 #1 held by me 4711",
      "200 #1 resuming 4711", "400 #1 connected 4711"}},
    {"HoldsWhileIResume",
     "",
     {"4711 calls", "answer 1", "hold 1", "resume 1", "4711 holds", "wait 200"},
     {"0 #1 incoming 4711", "0 #1 connected 4711", "0 #1 held by me 4711", "0 #1 resuming 4711",
      "200 #1 held by other 4711"}},
    {"RingsAndAnswersWhenTold",
     "4711 never answers",
     {"place 4711", "wait 700", "4711 answers", "wait 99999"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "700 #1 connected 4711"}},
    {"RingsAndRejectsWhenTold",
     "4711 never answers",
     {"place 4711", "wait 700", "4711 rejects"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ringing back 4711", "700 #1 ended 4711: rejected"}},
    {"EndsBusy",
     "",
     {"4711 calls", "answer 1", "4711 ends busy"},
     {"0 #1 incoming 4711", "0 #1 connected 4711", "0 #1 ended 4711: busy"}},
    {"EndsWithAReason",
     "",
     {"4711 calls", "answer 1", "4711 ends \"Cable cut\""},
     {"0 #1 incoming 4711", "0 #1 connected 4711", "0 #1 failed 4711: failure, Cable cut"}},
    {"IsBusyFromNowOn",
     "4711 answers",
     {"4711 is busy", "place 4711", "wait 500"},
     {"0 #1 dialling 4711", "200 #1 proceeding 4711", "500 #1 ended 4711: busy"}},
    {"IsNewFromNowOn",
     "",
     {"4799 \"Eve\" rejects after 1 s", "place 4799", "wait 1500"},
     {"0 #1 dialling 4799 (Eve)", "200 #1 proceeding 4799 (Eve)", "500 #1 ringing back 4799 (Eve)",
      "1500 #1 ended 4799 (Eve): rejected"}},
    {"TransfersMeWhenTold",
     "4712 never answers",
     {"4711 calls", "answer 1", "4711 transfers to 4712", "wait 500"},
     {"0 #1 incoming 4711", "0 #1 connected 4711", "0 #1 transferring 4711 to 4712",
      "500 #1 ringing back 4712 by 4711"}},
    {"PlaysInAConferenceWhenTold",
     "",
     {"4711 calls", "answer 1", "4711 plays in a conference with 4712"},
     {"0 #1 incoming 4711", "0 #1 connected 4711", "0 #1 conference 4711 to 4712"}},
};

} // namespace

class BehaviourTest : public testing::TestWithParam<BehaviourCase> {};

TEST_P(BehaviourTest, IsHeardInOrder)
{
    ExchangeFixture fixture(GetParam().numbers);
    for (const std::string& step : GetParam().steps)
        take(fixture, step);
    EXPECT_THAT(fixture.heard(), ElementsAreArray(GetParam().heard));
}

INSTANTIATE_TEST_SUITE_P(, BehaviourTest, testing::ValuesIn(BEHAVIOURS),
                         [](const auto& one) { return std::string(one.param.name); });

} // namespace test
