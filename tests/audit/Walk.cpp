#include "audit/Walk.h"

#include "audit/Lines.h"

#include <algorithm>
#include <charconv>
#include <sstream>
#include <stdexcept>

namespace audit {

namespace {

/// A list remembers its row: up again, however many rows it has, and in a tab on to the bar. A menu begins with the
/// first one, and goes round.
const std::string FIRST_ROW = "hold up 1500\n";

/// Longer than a message stays.
const std::string NO_MESSAGE = "wait 3000\n";

/// The menu of the home screen begins with its first row.
const std::string MENU = "key ok\n";

/// The choices of the first field of the third row of the menu.
const std::string LANGUAGES = MENU + "key down\nkey down\nkey ok\nkey ok\n" + FIRST_ROW;

/// Above the first field of a form.
const std::string SAVE = "key up\nkey ok\n";

constexpr int OTHER_TABS = 5;

const std::string CONTACTS = MENU + "key down\nkey ok\n" + FIRST_ROW;

std::string repeated(int count, const std::string& line)
{
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += line;
    return lines;
}

std::string dump(const std::string& name)
{
    return "dump --json " + name + ".json\ndump " + name + ".txt\n";
}

/// "=exchange.4711.calls", or with another mark in front.
std::string toLine(std::string word)
{
    std::ranges::replace(word, '.', ' ');
    return word.substr(1) + '\n';
}

/// "2", "2:right" or any line of a script.
Step toStep(const std::string& word)
{
    if (word.front() == '=')
        return {.line = toLine(word)};
    const std::size_t colon = word.find(':');
    if (colon == std::string::npos)
        return {.row = std::stoi(word)};
    return {.row = std::stoi(word.substr(0, colon)), .key = word.substr(colon + 1)};
}

std::string nameOf(const std::string& key, bool fromTheRight)
{
    if (key != "next")
        return key;
    return fromTheRight ? "left" : "right";
}

std::string take(const Step& step, bool isFirst, bool fromTheRight)
{
    if (!step.line.empty())
        return step.line;
    return repeated(step.row, "key down\n") + "key " + nameOf(step.key, fromTheRight) + '\n' +
           (!isFirst && step.key == "ok" ? FIRST_ROW : "");
}

std::string visit(const Screen& screen, bool fromTheRight)
{
    std::string script = NO_MESSAGE;
    for (const Step& step : screen.path)
        script += take(step, &step == &screen.path.front(), fromTheRight);
    script += dump(screen.name);
    for (int row = 1; row < screen.rows; ++row)
        script += "key down\n" + dump(screen.name + '.' + std::to_string(row));
    if (!screen.path.empty())
        script += "key left\n" + dump("from-" + screen.name) + screen.wayBack;
    // Nobody is called any more, and nobody waits.
    const bool hasCalls = std::ranges::any_of(screen.path, [](const Step& step) { return !step.line.empty(); });
    script += "key hook\n" + (hasCalls ? dump("hung-up-" + screen.name) + repeated(3, "wait 300\nkey hook\n") : "");
    // More than there are steps: in a dialer the first one takes back what has been typed, and from a tab left may lead
    // through all the others; the handset that is lifted without a call has one of its own.
    return script + repeated(static_cast<int>(screen.path.size()) + OTHER_TABS + 1, "key left\n");
}

} // namespace

std::vector<Screen> readScreens(const std::string& fileName)
{
    std::vector<Screen> screens;
    for (const std::string& line : readLines(fileName)) {
        std::istringstream words(line);
        Screen screen;
        if (line.starts_with('#') || !(words >> screen.name >> screen.rows))
            continue;
        for (std::string word; words >> word;)
            if (word.front() == '<')
                screen.wayBack += toLine(word);
            else
                screen.path.push_back(toStep(word));
        screens.push_back(screen);
    }
    return screens;
}

std::string scriptThrough(const std::vector<Screen>& screens, int language, bool fromTheRight)
{
    std::string script = LANGUAGES + repeated(language, "key down\n") + "key ok\n" + SAVE + dump("language-chosen");
    for (const Screen& screen : screens)
        script += visit(screen, fromTheRight);
    return script;
}

int toContacts(std::string_view text)
{
    int contacts = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), contacts);
    if (error != std::errc() || end != text.data() + text.size() || contacts < 1)
        throw std::runtime_error("'" + std::string(text) + "' is no number of contacts");
    return contacts;
}

std::string scriptThroughCards(int cards)
{
    std::string script = CONTACTS;
    for (int card = 0; card < cards; ++card)
        script += "key ok\n" + dump("card." + std::to_string(card)) + "key left\nkey down\n";
    return script;
}

std::string scriptThroughContacts(int contacts, int step)
{
    const int held = 500 + 100 * (step - 2);
    const std::string next = step == 1 ? "key down\n" : "hold down " + std::to_string(held) + '\n';
    std::string script = CONTACTS + dump("contacts");
    for (int row = step; row < contacts; row += step)
        script += next + dump("contacts." + std::to_string(row));
    return script + next + dump("contacts.last");
}

} // namespace audit
