#include "simulator/launcher/ScriptVerdict.h"

namespace simulator {

namespace {

std::string endOf(const Ending& ending, bool stuck)
{
    return "the application " + (stuck ? "did not end in time and was killed" : ending.description());
}

} // namespace

ScriptVerdict judge(const std::string& fileName, const ScriptOutcome& outcome, const Ending& ending, bool stuck)
{
    if (outcome.failure)
        return {false, fileName + ":" + std::to_string(outcome.failure->line) + ": " + outcome.failure->reason};
    if (outcome.lastLine == 0 && !outcome.passed)
        return {false, fileName + ": " + endOf(ending, stuck) + " before the script could begin"};
    if (!outcome.passed)
        return {false, fileName + ":" + std::to_string(outcome.lastLine) + ": " + endOf(ending, stuck) +
                           " before the script was through"};
    if (stuck || !ending.isGood())
        return {false, fileName + ": the script has passed, but " + endOf(ending, stuck)};
    return {true, fileName + ": passed"};
}

} // namespace simulator
