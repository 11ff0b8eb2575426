#include "simulator/rpc/RpcCondition.h"

#include "simulator/rpc/RpcError.h"

#include <map>

namespace simulator {

namespace {

using What = ScreenCondition::What;
using Match = ScreenCondition::Match;

constexpr std::size_t LONGEST_PATTERN = 1000;

RpcError badCondition(const std::string& sentence)
{
    return {RpcError::BAD_PARAMS, sentence};
}

Match matchIn(RpcParams& params)
{
    static const std::map<std::string, Match> names = {
        {"equal", Match::EQUAL}, {"contains", Match::CONTAINS}, {"regex", Match::REGEX}};
    if (!params.has("match"))
        return Match::EQUAL;
    const auto found = names.find(params.text("match"));
    if (found == names.end())
        throw badCondition("'match' must be \"equal\", \"contains\" or \"regex\"");
    return found->second;
}

/// Which of them there is: exactly one.
std::string subjectIn(RpcParams& params)
{
    std::string subject;
    for (const char* name : {"text", "absent", "screen", "rows"}) {
        if (!params.has(name))
            continue;
        if (!subject.empty())
            throw badCondition("'" + subject + "' and '" + name + "' are two conditions");
        subject = name;
    }
    if (subject.empty())
        throw badCondition("one of 'text', 'absent', 'screen' and 'rows' is missing");
    return subject;
}

What whatIn(RpcParams& params, const std::string& subject)
{
    const bool selected = params.flag("selected", false);
    if (selected && subject != "text")
        throw badCondition("'selected' goes with 'text'");
    static const std::map<std::string, What> names = {
        {"text", What::TEXT}, {"absent", What::NO_TEXT}, {"screen", What::SCREEN}, {"rows", What::ROWS}};
    return selected ? What::SELECTED : names.at(subject);
}

} // namespace

ScreenCondition conditionIn(RpcParams& params)
{
    const std::string subject = subjectIn(params);
    const What what = whatIn(params, subject);
    const Match match = matchIn(params);
    const bool withVolatile = params.flag("volatile", false);
    std::vector<std::string> rows;
    std::string text;
    if (what == What::ROWS)
        rows = params.texts(subject);
    else
        text = params.text(subject);
    if (what == What::ROWS && match != Match::EQUAL)
        throw badCondition("'rows' are only to be equal");
    if (match == Match::REGEX && text.size() > LONGEST_PATTERN)
        throw badCondition("a regular expression has at most " + std::to_string(LONGEST_PATTERN) + " bytes");
    ScreenCondition condition(what, match, std::move(text), std::move(rows), withVolatile);
    if (const std::string error = condition.error(); !error.empty())
        throw badCondition("this is no regular expression: " + error);
    return condition;
}

} // namespace simulator
