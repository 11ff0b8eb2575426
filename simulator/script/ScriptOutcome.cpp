#include "simulator/script/ScriptOutcome.h"

#include <charconv>

namespace simulator {

namespace {

int numberBehind(std::string_view word, std::string_view line)
{
    int number = 0;
    line.remove_prefix(word.size());
    std::from_chars(line.data(), line.data() + line.size(), number);
    return number;
}

} // namespace

ScriptOutcome readOutcome(std::string_view report)
{
    ScriptOutcome outcome;
    for (auto end = report.find('\n'); end != std::string_view::npos; end = report.find('\n')) {
        const std::string_view line = report.substr(0, end);
        report.remove_prefix(end + 1);
        if (line.starts_with("at "))
            outcome.lastLine = numberBehind("at ", line);
        if (line == "passed")
            outcome.passed = true;
        if (line.starts_with("failed ")) {
            outcome.failure = {numberBehind("failed ", line), std::string(report)};
            break;
        }
    }
    return outcome;
}

} // namespace simulator
