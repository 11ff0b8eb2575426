// Scripts, what a script reports, and what a page says: texts that come from outside.

#include "fuzz/check.h"
#include "simulator/script/ScriptOutcome.h"
#include "simulator/script/ScriptParser.h"
#include "simulator/web/PageMessage.h"

#include <algorithm>

namespace {

/// What is written of it reads as it was.
void checkText(const simulator::ScriptText& text)
{
    if (text.pieces.empty())
        return;
    const std::string written = text.written();
    std::string_view rest = written;
    test::check(simulator::ScriptText::take(rest).written() == written, "a text that is written reads otherwise");
    const auto shown = text.shown([](const std::string& key) { return key; });
    test::check(!shown.empty() && shown.size() <= simulator::ScriptText::MOST_TEXTS, "too many texts, or none");
}

void checkScript(std::string_view text)
{
    const simulator::Script script = simulator::parseScript("s.script", text);
    const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1;
    test::check(script.steps.size() + script.errors.size() <= lines, "more steps than lines");
    int before = 0;
    for (const simulator::Step& step : script.steps) {
        test::check(step.line > before && step.line <= static_cast<int>(lines), "a step of no line");
        test::check(step.milliseconds >= 0, "time runs backwards");
        test::check(step.text.find('\n') == std::string::npos, "a step of several lines");
        before = step.line;
        checkText(step.target);
    }
    for (const std::string& error : script.errors)
        test::check(error.starts_with("s.script:"), "an error without a place");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = test::textOf(data, size);
    checkScript(text);
    simulator::readOutcome(std::string(text));
    simulator::parsePageMessage(text);
    return 0;
}
