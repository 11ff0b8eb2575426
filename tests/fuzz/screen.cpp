// The screen as text: what is written of any texts can be read by the grammar of docs/screen-formats.md and says what
// it was made of, and hostile texts are compared as they are.

#include "DisplayAPI/ScreenText.h"
#include "fuzz/check.h"
#include "simulator/core/ScreenCondition.h"
#include "simulator/core/TextDifference.h"
#include "simulator/screen/ScreenText.h"
#include "toolkit/PegThing.h"

#include <optional>
#include <vector>

namespace {

using DisplayAPI::screen::onOneLine;
using DisplayAPI::screen::toAscii;
using simulator::ScreenCondition;
using simulator::VolatileLines;

/// What an object, or a sub-item of it, says: "caption", "volatile" or "string" and the text behind the colon.
struct Node {
    std::string name;
    std::vector<std::pair<std::string, std::string>> lines{};
    std::vector<Node> subItems{};
};

/// Reads the grammar, line by line.
class Parser {
public:
    explicit Parser(std::string_view text) : mText(text) {}

    /// Nothing where the text is no screen.
    std::optional<std::vector<Node>> screen()
    {
        std::vector<Node> objects;
        while (mIsGood && !mText.empty())
            objects.push_back(object("object:", "end:", true));
        return mIsGood ? std::optional(std::move(objects)) : std::nullopt;
    }

private:
    Node object(std::string_view begin, std::string_view end, bool mayHaveSubItems)
    {
        Node node;
        mIsGood = mIsGood && take() == begin;
        std::string_view line = take();
        mIsGood = mIsGood && line.starts_with("name:");
        if (!mIsGood)
            return node;
        node.name = line.substr(line.find(':') + 1);
        while (mIsGood && peek() != end) {
            if (mayHaveSubItems && peek() == "subitem:")
                node.subItems.push_back(object("subitem:", "endsubitem:", false));
            else
                node.lines.push_back(lineOf(take()));
        }
        mIsGood = mIsGood && take() == end;
        return node;
    }

    std::pair<std::string, std::string> lineOf(std::string_view line)
    {
        const auto colon = line.find(':');
        const std::string_view keyword = line.substr(0, std::min(colon, line.size()));
        const bool isNumbered = keyword.starts_with("string") && keyword.size() > 6 &&
                                keyword.find_first_not_of("0123456789", 6) == std::string_view::npos;
        mIsGood =
            mIsGood && colon != std::string_view::npos && (keyword == "caption" || keyword == "volatile" || isNumbered);
        return mIsGood ? std::pair(std::string(isNumbered ? "string" : keyword), std::string(line.substr(colon + 1)))
                       : std::pair<std::string, std::string>();
    }

    std::string_view peek() const { return mText.substr(0, mText.find('\n')); }

    /// A line of characters from blank to tilde that has an end.
    std::string_view take()
    {
        const std::string_view line = peek();
        const auto isOther = [](char c) { return c < ' ' || c > '~'; };
        mIsGood = mIsGood && line.size() < mText.size() && std::ranges::none_of(line, isOther);
        mText.remove_prefix(std::min(line.size() + 1, mText.size()));
        return line;
    }

    std::string_view mText;
    bool mIsGood = true;
};

std::string shown(const std::string& text)
{
    return toAscii(onOneLine(text));
}

/// Some displayables of any texts, as the library writes them, and what ought to be read again.
std::string writeDisplayables(test::Bytes& bytes, std::vector<Node>& written)
{
    std::string text;
    for (unsigned int count = bytes.below(4); count > 0; --count) {
        const std::string name = bytes.text();
        Node node{shown(name)};
        std::string contents;
        int number = 0;
        for (unsigned int lines = bytes.below(6); lines > 0; --lines) {
            const unsigned int kind = bytes.below(3);
            const std::string some = bytes.text();
            if (kind == 2) {
                contents += DisplayAPI::screen::subItem(some, DisplayAPI::screen::textLine(0, some));
                node.subItems.push_back({shown(some), {{"string", shown(some)}}});
                continue;
            }
            contents += kind == 0 ? DisplayAPI::screen::caption(some) : DisplayAPI::screen::textLine(number++, some);
            node.lines.emplace_back(kind == 0 ? "caption" : "string", shown(some));
        }
        text += DisplayAPI::screen::object(name, contents);
        written.push_back(node);
    }
    return toAscii(text);
}

std::vector<host::TextRun> runsOf(test::Bytes& bytes)
{
    constexpr std::uint8_t WIDGETS[] = {TYPE_SYSTEM_WINDOW, TYPE_STATUS_MESSAGE, TYPE_TICKER, TYPE_WINDOW,
                                        TYPE_LIST_WITH_TITLE};
    std::vector<host::TextRun> runs;
    for (unsigned int count = bytes.below(6); count > 0; --count) {
        host::TextRun run;
        run.widget = WIDGETS[bytes.below(std::size(WIDGETS))];
        run.runs = bytes.below(2) == 1;
        run.inverted = bytes.below(2) == 1;
        run.area.top = static_cast<std::int16_t>(bytes.next());
        run.area.bottom = static_cast<std::int16_t>(run.area.top + static_cast<int>(bytes.below(20)));
        run.text = bytes.text();
        runs.push_back(run);
    }
    return runs;
}

/// A text that runs in a displayable is volatile wherever it stands; nothing else differs.
void checkSame(const std::vector<Node>& written, const std::vector<Node>& read)
{
    test::check(read.size() >= written.size(), "objects are lost");
    for (std::size_t i = 0; i < written.size(); ++i) {
        const Node& expected = written[i];
        test::check(read[i].name == expected.name, "another name");
        test::check(read[i].lines.size() == expected.lines.size(), "another number of lines");
        test::check(read[i].subItems.size() == expected.subItems.size(), "another number of sub-items");
        for (std::size_t line = 0; line < expected.lines.size(); ++line) {
            const auto& [keyword, text] = read[i].lines[line];
            test::check(text == expected.lines[line].second, "another text");
            test::check(keyword == expected.lines[line].first || keyword == "volatile", "another keyword");
        }
    }
}

void checkComparison(const std::string& one, const std::string& other)
{
    for (const auto volatileLines : {VolatileLines::COUNT, VolatileLines::MAY_DIFFER}) {
        const bool differs = !simulator::textDifference(one, other, volatileLines).empty();
        test::check(differs != simulator::areAlike(one, other, volatileLines), "they differ and are alike");
    }
}

void checkCondition(const simulator::Screen& screen, const std::string& text, unsigned int kind)
{
    using enum ScreenCondition::What;
    using enum ScreenCondition::Match;
    constexpr ScreenCondition::What WHATS[] = {TEXT, NO_TEXT, SELECTED, SCREEN};
    constexpr ScreenCondition::Match MATCHES[] = {EQUAL, CONTAINS, REGEX};
    const bool withVolatile = kind >= 128;
    const ScreenCondition condition(WHATS[kind % 4], MATCHES[kind / 4 % 3], text, {}, withVolatile);
    if (condition.error().empty() && !condition.holdsFor(screen))
        test::check(!condition.differenceOf(screen).empty(), "it does not hold and nothing differs");
    const ScreenCondition itself(SCREEN, EQUAL, textOf(screen), {}, withVolatile);
    test::check(itself.holdsFor(screen), "a screen is not itself");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view all = test::textOf(data, size);
    Parser(all).screen();

    test::Bytes bytes(all);
    std::vector<Node> written;
    simulator::Screen screen;
    screen.words.displayables = writeDisplayables(bytes, written);
    screen.picture.texts = runsOf(bytes);
    const std::string text = textOf(screen);
    const auto read = Parser(text).screen();
    test::check(read.has_value(), "what is written cannot be read:\n" + text);
    checkSame(written, *read);

    const std::string one = bytes.text();
    checkComparison(one, bytes.text());
    checkComparison(one, text);
    checkCondition(screen, one, bytes.next());
    return 0;
}
