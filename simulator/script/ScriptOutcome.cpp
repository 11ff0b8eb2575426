#include "simulator/script/ScriptOutcome.h"

#include <algorithm>
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

ScriptOutcome::Note noteIn(std::string_view line)
{
    line.remove_prefix(std::string_view("note ").size());
    const auto end = std::min(line.find(' '), line.size());
    return {numberBehind("", line), std::string(line.substr(std::min(end + 1, line.size())))};
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
        if (line.starts_with("note "))
            outcome.notes.push_back(noteIn(line));
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
