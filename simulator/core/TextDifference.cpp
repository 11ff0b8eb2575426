#include "simulator/core/TextDifference.h"

#include <algorithm>
#include <vector>

namespace simulator {

namespace {

using Lines = std::vector<std::string_view>;

std::string_view withoutCarriageReturn(std::string_view line)
{
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

Lines linesOf(std::string_view text)
{
    Lines lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        lines.push_back(withoutCarriageReturn(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

/// Whether one line is as good as the other.
struct Alike {
    VolatileLines volatileLines;

    bool operator()(std::string_view expected, std::string_view actual) const
    {
        constexpr std::string_view VOLATILE = "volatile:";
        const bool mayDiffer = volatileLines == VolatileLines::MAY_DIFFER;
        return expected == actual || (mayDiffer && expected.starts_with(VOLATILE) && actual.starts_with(VOLATILE));
    }
};

/// How many lines two texts have in common, in order, for all pairs of their ends.
class CommonLines {
public:
    CommonLines(const Lines& expected, const Lines& actual, Alike areAlikeLines)
        : mCounts(expected.size() + 1, std::vector<std::size_t>(actual.size() + 1))
    {
        for (std::size_t e = expected.size(); e-- > 0;)
            for (std::size_t a = actual.size(); a-- > 0;)
                mCounts[e][a] = areAlikeLines(expected[e], actual[a]) ? mCounts[e + 1][a + 1] + 1
                                                                      : std::max(mCounts[e + 1][a], mCounts[e][a + 1]);
    }

    std::size_t from(std::size_t expected, std::size_t actual) const { return mCounts[expected][actual]; }

private:
    std::vector<std::vector<std::size_t>> mCounts;
};

void dropCommonEnds(Lines& expected, Lines& actual, Alike areAlikeLines)
{
    const auto [e, a] = std::ranges::mismatch(expected, actual, areAlikeLines);
    expected.erase(expected.begin(), e);
    actual.erase(actual.begin(), a);
    while (!expected.empty() && !actual.empty() && areAlikeLines(expected.back(), actual.back())) {
        expected.pop_back();
        actual.pop_back();
    }
}

void append(std::string& text, const char* mark, std::string_view line)
{
    text.append(mark).append(line).append("\n");
}

} // namespace

std::string textDifference(std::string_view expectedText, std::string_view actualText, VolatileLines volatileLines)
{
    const Alike areAlikeLines{volatileLines};
    Lines expected = linesOf(expectedText);
    Lines actual = linesOf(actualText);
    dropCommonEnds(expected, actual, areAlikeLines);
    const CommonLines common(expected, actual, areAlikeLines);
    std::string text;
    std::size_t e = 0;
    std::size_t a = 0;
    while (e < expected.size() || a < actual.size()) {
        if (e < expected.size() && a < actual.size() && areAlikeLines(expected[e], actual[a])) {
            append(text, "  ", actual[a++]);
            ++e;
        } else if (a == actual.size() || (e < expected.size() && common.from(e + 1, a) >= common.from(e, a + 1))) {
            append(text, "- ", expected[e++]);
        } else {
            append(text, "+ ", actual[a++]);
        }
    }
    return text;
}

bool areAlike(std::string_view expected, std::string_view actual, VolatileLines volatileLines)
{
    return std::ranges::equal(linesOf(expected), linesOf(actual), Alike{volatileLines});
}

} // namespace simulator
