#include "simulator/screen/ScreenText.h"

#include "DisplayAPI/ScreenText.h"
#include "simulator/screen/WidgetNames.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace simulator {

namespace {

using Texts = std::vector<host::TextRun>;

using DisplayAPI::screen::onOneLine;
using DisplayAPI::screen::toAscii;

/// Stands where a text changes by itself.
std::string volatileLine(const std::string& text)
{
    return DisplayAPI::screen::line("volatile", text);
}

std::set<std::string> runningTextsOfDisplayables(const Texts& texts)
{
    std::set<std::string> running;
    for (const host::TextRun& run : texts)
        if (run.runs && isDisplayables(run.widget))
            running.insert(toAscii(onOneLine(run.text)));
    return running;
}

std::string marked(const std::string& line, const std::set<std::string>& running)
{
    const auto colon = line.find(':');
    const bool isText = line.starts_with("string") || line.starts_with("caption");
    if (colon == std::string::npos || !isText || !running.contains(line.substr(colon + 1)))
        return line + '\n';
    return volatileLine(line.substr(colon + 1));
}

std::string withMarks(const std::string& displayables, const std::set<std::string>& running)
{
    if (running.empty())
        return displayables;
    std::istringstream lines(displayables);
    std::string text;
    for (std::string line; std::getline(lines, line);)
        text += marked(line, running);
    return text;
}

std::string object(const std::string& name, const Texts& texts)
{
    if (texts.empty())
        return {};
    std::string lines;
    for (int i = 0; const host::TextRun& run : texts) {
        lines += run.runs ? volatileLine(run.text) : DisplayAPI::screen::textLine(i, run.text);
        ++i;
    }
    return toAscii(DisplayAPI::screen::object(name, lines));
}

Texts textsOf(PegType widget, const Texts& texts)
{
    Texts found;
    std::ranges::copy_if(texts, std::back_inserter(found), [=](const auto& run) { return run.widget == widget; });
    return found;
}

/// A clock or a timer that a displayable paints and does not tell, as lists do in their status lines.
Texts untoldTexts(const Texts& texts, const std::string& told)
{
    Texts untold;
    for (const host::TextRun& run : texts)
        if (run.runs && isDisplayables(run.widget) && told.find(toAscii(volatileLine(run.text))) == std::string::npos)
            untold.push_back(run);
    return untold;
}

} // namespace

std::string screenText(const std::string& displayables, const Texts& texts)
{
    std::string text = withMarks(displayables, runningTextsOfDisplayables(texts));
    text += object("RunningTexts", untoldTexts(texts, text));
    text += object("SystemWindow", textsOf(TYPE_SYSTEM_WINDOW, texts));
    text += object("StatusMessage", textsOf(TYPE_STATUS_MESSAGE, texts));
    for (const host::TextRun& ticker : textsOf(TYPE_TICKER, texts))
        text += object("Ticker", {ticker});
    return text;
}

} // namespace simulator
