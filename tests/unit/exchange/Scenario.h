#pragma once

#include "unit/exchange/ExchangeTest.h"

#include <gmock/gmock.h>
#include <ostream>
#include <sstream>

namespace test {

/// A line of the file of numbers, what is done on the telephone and at the exchange meanwhile, and all that is heard.
struct Scenario {
    const char* name;
    std::string numbers;
    std::vector<std::string> steps;
    std::vector<std::string> heard;
};

inline void PrintTo(const Scenario& scenario, std::ostream* out)
{
    *out << scenario.name;
}

inline exchange::Forwarding forwardingOf(const std::string& when, const std::string& number)
{
    if (when == "always")
        return {.always = number};
    if (when == "busy")
        return {.whenBusy = number};
    return {.whenNotAnswered = number, .answerTime = 5000};
}

/// "hold 1" is done on the telephone, "wait 500" lets time pass, "dnd 1 on" sets what a line does; "4711 holds" and all
/// else is a sentence for the exchange.
inline void take(ExchangeFixture& fixture, const std::string& step)
{
    exchange::Exchange& telephone = fixture.exchange;
    std::istringstream words(step);
    std::string verb, text;
    int one = 0, other = 0;
    const auto is = [&](const char* wanted) { return verb == wanted; };
    words >> verb;
    bool isTaken = true;
    if (is("wait") && words >> one)
        fixture.pass(one);
    else if (is("place") && words >> text)
        isTaken = telephone.place(words >> one ? one : 1, text) != exchange::NO_CALL;
    else if (is("answer") && words >> one)
        isTaken = telephone.answer(one);
    else if (is("end") && words >> one)
        isTaken = telephone.end(one);
    else if (is("hold") && words >> one)
        isTaken = telephone.hold(one);
    else if (is("resume") && words >> one)
        isTaken = telephone.resume(one);
    else if (is("join") && words >> one >> other)
        isTaken = telephone.join(one, other);
    else if (is("transfer") && words >> one >> other)
        isTaken = telephone.transfer(one, other);
    else if (is("transferTo") && words >> one >> text)
        isTaken = telephone.transferTo(one, text);
    else if (is("deflect") && words >> one >> text)
        isTaken = telephone.deflect(one, text);
    else if (is("forward") && words >> one >> verb >> text)
        isTaken = telephone.setForwarding(one, forwardingOf(verb, text));
    else if (is("disturb") && words >> one >> text)
        isTaken = telephone.setDoNotDisturb(one, text == "not");
    else if (is("take") && words >> one >> text)
        isTaken = telephone.setTakesSeveral(one, text == "several");
    else
        EXPECT_EQ(telephone.command(step), "") << step;
    EXPECT_TRUE(isTaken) << step;
}

class ScenarioTest : public testing::TestWithParam<Scenario> {
protected:
    static void runScenario()
    {
        ExchangeFixture fixture(GetParam().numbers);
        for (const std::string& step : GetParam().steps)
            take(fixture, step);
        EXPECT_THAT(fixture.heard(), testing::ElementsAreArray(GetParam().heard));
    }
};

inline std::string nameOfScenario(const testing::TestParamInfo<Scenario>& scenario)
{
    return scenario.param.name;
}

} // namespace test
