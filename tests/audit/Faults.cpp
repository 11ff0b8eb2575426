#include "audit/Faults.h"

#include "audit/Lines.h"

#include <algorithm>
#include <sstream>

namespace audit {

namespace {

bool matches(const std::string& pattern, const std::string& word)
{
    return pattern == "*" || pattern == word;
}

bool matchesText(const Fault& pattern, const std::string& text)
{
    if (pattern.kind != "glyph" && pattern.text.ends_with('*'))
        return text.starts_with(pattern.text.substr(0, pattern.text.size() - 1));
    return pattern.text == text;
}

} // namespace

std::string Fault::line() const
{
    return kind + ' ' + language + ' ' + panel + ' ' + screen + ' ' + text;
}

Allowed::Allowed(const std::string& fileName)
{
    for (const std::string& text : readLines(fileName)) {
        if (text.empty() || text.starts_with('#'))
            continue;
        constexpr const char* DASH = " -- ";
        const auto reason = text.find(DASH);
        std::istringstream words(text.substr(0, reason));
        Fault fault;
        words >> fault.kind >> fault.language >> fault.panel >> fault.screen >> std::ws;
        std::getline(words, fault.text);
        if (fault.text.empty() || reason == std::string::npos || reason + 4 >= text.size())
            mErrors.push_back(text);
        else
            mLines.push_back(fault);
    }
}

bool Allowed::covers(const Fault& fault) const
{
    return std::ranges::any_of(mLines, [&](const Fault& line) {
        return line.kind == fault.kind && matches(line.language, fault.language) && matches(line.panel, fault.panel) &&
               matches(line.screen, fault.screen) && matchesText(line, fault.text);
    });
}

} // namespace audit
