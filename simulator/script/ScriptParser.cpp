#include "simulator/script/ScriptParser.h"

#include "host/input/Keyboard.h"
#include "simulator/script/ExpectedScreen.h"

#include <charconv>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace simulator {

namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::int64_t LONGEST_WAIT = 24 * 60 * 60 * 1000;

struct Mistake : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string quoted(std::string_view text)
{
    return "'" + std::string(text) + "'";
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// Takes the first word off `text`.
std::string_view takeWord(std::string_view& text)
{
    const auto end = std::min(text.find_first_of(" \t"), text.size());
    const std::string_view word = text.substr(0, end);
    text = trimmed(text.substr(end));
    return word;
}

PegKey toKey(std::string_view name)
{
    if (name.empty())
        throw Mistake("the name of a key is missing");
    if (const auto key = host::Keyboard::keyFromName(name))
        return *key;
    throw Mistake(
        "there is no key " + quoted(name) +
        "; keys are up, down, left, right, ok, 0 to 9, star, hash, volume-up, volume-down, hook and fpk1 to fpk16");
}

PegKey toDigit(char character)
{
    if ((character >= '0' && character <= '9') || character == '*' || character == '#')
        return static_cast<PegKey>(character);
    throw Mistake("only 0 to 9, * and # can be typed, not " + quoted({&character, 1}));
}

std::int64_t toMilliseconds(std::string_view text)
{
    if (text.empty())
        throw Mistake("the milliseconds are missing");
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 0 || value > LONGEST_WAIT)
        throw Mistake(quoted(text) + " is no number of milliseconds from 0 to " + std::to_string(LONGEST_WAIT));
    return value;
}

/// Output stays inside the folder that the user has named.
std::string toFileName(std::string_view text, std::string_view ending)
{
    const bool staysInside = text.find('/') == std::string_view::npos && text.front() != '.';
    if (!staysInside || !text.ends_with(ending))
        throw Mistake(quoted(text) + " is no plain file name that ends in " + std::string(ending));
    return std::string(text);
}

void parseKey(Step& step, std::string_view rest)
{
    step.keys = {toKey(rest)};
}

void parseHold(Step& step, std::string_view rest)
{
    step.keys = {toKey(takeWord(rest))};
    step.milliseconds = toMilliseconds(rest);
}

void parseType(Step& step, std::string_view rest)
{
    for (const char character : rest)
        step.keys.push_back(toDigit(character));
}

void parseTime(Step& step, std::string_view rest)
{
    step.milliseconds = toMilliseconds(rest);
}

ScriptText takeText(std::string_view& rest)
{
    try {
        const ScriptText text = ScriptText::take(rest);
        rest = trimmed(rest);
        return text;
    } catch (const std::invalid_argument& mistake) {
        throw Mistake(mistake.what());
    }
}

void refuseRest(std::string_view rest)
{
    if (!rest.empty())
        throw Mistake("nothing may stand behind the text, and there is " + quoted(rest));
}

/// As it stands, but what the catalogue is to be asked for: an old script may look for quotes.
void parseExpected(Step& step, std::string_view rest)
{
    step.isLoose = !rest.starts_with("_(");
    if (step.isLoose) {
        step.target = ScriptText::literal(std::string(rest));
        return;
    }
    step.target = takeText(rest);
    refuseRest(rest);
}

void parseTarget(Step& step, std::string_view rest)
{
    step.isLoose = !ScriptText::isQuoted(rest);
    if (step.isLoose) {
        step.target = ScriptText::literal(std::string(rest));
        return;
    }
    step.target = takeText(rest);
    refuseRest(rest);
}

/// "Ada" #2 is the second one that is called so.
void parseChoice(Step& step, std::string_view rest)
{
    if (!ScriptText::isQuoted(rest))
        return parseTarget(step, rest);
    step.target = takeText(rest);
    if (rest.empty())
        return;
    const auto [end, error] = std::from_chars(rest.data() + 1, rest.data() + rest.size(), step.nth);
    const bool isNumber = rest.front() == '#' && error == std::errc() && end == rest.data() + rest.size();
    if (!isNumber || step.nth < 1)
        throw Mistake("behind the text there may be #2 for the second one that is called so, not " + quoted(rest));
}

/// Digits are keys, a text in quotes is what stands there in the end.
void parseTyped(Step& step, std::string_view rest)
{
    if (!ScriptText::isQuoted(rest))
        return parseType(step, rest);
    step.action = Step::Action::TYPE;
    step.target = takeText(rest);
    refuseRest(rest);
}

void parseNumber(Step& step, std::string_view rest)
{
    if (rest.find_first_not_of("0123456789*#+") != std::string_view::npos)
        throw Mistake("only 0 to 9, *, # and + can be dialled");
    step.target = ScriptText::literal(std::string(rest));
}

void parseNothing(Step&, std::string_view rest)
{
    if (!rest.empty())
        throw Mistake("nothing may stand behind it, and there is " + quoted(rest));
}

template <const char* WIRE>
void parseSaid(Step& step, std::string_view rest)
{
    step.wire = WIRE;
    step.text = rest;
}

void parseAct(Step& step, std::string_view rest)
{
    step.wire = takeWord(rest);
    step.text = rest;
}

void parsePictureName(Step& step, std::string_view rest)
{
    step.text = toFileName(rest, ".png");
}

void parseTextName(Step& step, std::string_view rest)
{
    step.text = toFileName(rest, ".txt");
}

/// `dump` with an option is another step.
void parseDump(Step& step, std::string_view rest)
{
    if (!rest.starts_with("--"))
        return parseTextName(step, rest);
    if (const std::string_view option = takeWord(rest); option != "--json")
        throw Mistake("there is no option " + quoted(option) + "; there is --json");
    if (rest.empty())
        throw Mistake("the name of the file is missing");
    step.action = Step::Action::DUMP_JSON;
    step.text = toFileName(rest, ".json");
}

constexpr char EXCHANGE[] = "exchange";
constexpr char LANGUAGE[] = "language";

struct Command {
    Step::Action action;
    void (*parse)(Step&, std::string_view);
};

const std::map<std::string_view, Command>& commands()
{
    using enum Step::Action;
    static const std::map<std::string_view, Command> all = {
        {"key", {PRESS, parseKey}},
        {"hold", {HOLD, parseHold}},
        {"type", {PRESS, parseTyped}},
        {"wait", {WAIT, parseTime}},
        {"advance", {ADVANCE, parseTime}},
        {"expect", {EXPECT, parseExpected}},
        {"expect-not", {EXPECT_NOT, parseExpected}},
        {"await", {AWAIT, parseTarget}},
        {"await-not", {AWAIT_NOT, parseTarget}},
        {"choose", {CHOOSE, parseChoice}},
        {"select", {SELECT, parseChoice}},
        {"set", {SET, parseTarget}},
        {"command", {COMMAND, parseChoice}},
        {"back", {BACK, parseNothing}},
        {"dial", {DIAL, parseNumber}},
        {"screenshot", {SCREENSHOT, parsePictureName}},
        {"dump", {DUMP, parseDump}},
        {"compare", {COMPARE, parseTextName}},
        {"exchange", {SAY, parseSaid<EXCHANGE>}},
        {"language", {SAY, parseSaid<LANGUAGE>}},
        {"act", {SAY, parseAct}},
    };
    return all;
}

Step parseLine(std::string_view text, int line)
{
    const std::string_view name = takeWord(text);
    const auto command = commands().find(name);
    if (command == commands().end())
        throw Mistake("there is no command " + quoted(name) +
                      "; commands are key, hold, type, choose, select, set, command, back, dial, wait, advance, await, "
                      "await-not, expect, "
                      "expect-not, screenshot, dump, compare, exchange, language and act");
    if (text.empty() && command->second.action != Step::Action::BACK)
        throw Mistake(quoted(name) + " needs something behind it");
    Step step{.action = command->second.action, .line = line};
    command->second.parse(step, text);
    return step;
}

std::string errorAt(const std::string& fileName, int line, const std::string& reason)
{
    return fileName + ":" + std::to_string(line) + ": " + reason;
}

/// Why a screen cannot be compared with `file`; empty where it can.
std::string obstacleOf(const std::filesystem::path& file)
{
    if (is_regular_file(file))
        return {};
    if (exists(file))
        return file.string() + " is no file";
    if (updatesScreens())
        return {};
    return "there is no file " + file.string() + "; " + UPDATE_SCREENS_VARIABLE + "=1 writes it";
}

/// From names to the paths of files.
void locateExpectedScreens(Script& script, const std::string& fileName, std::string_view panel)
{
    for (Step& step : script.steps) {
        if (step.action != Step::Action::COMPARE)
            continue;
        const std::filesystem::path file =
            expectedScreen(std::filesystem::path(fileName).parent_path(), step.text, panel);
        if (const std::string obstacle = obstacleOf(file); !obstacle.empty())
            script.errors.push_back(errorAt(fileName, step.line, obstacle));
        step.text = file.string();
    }
}

} // namespace

Script parseScript(const std::string& fileName, std::string_view text)
{
    Script script;
    script.name = std::filesystem::path(fileName).stem();
    if (text.starts_with(BYTE_ORDER_MARK))
        text.remove_prefix(BYTE_ORDER_MARK.size());
    for (int line = 1; !text.empty(); ++line) {
        const auto end = std::min(text.find('\n'), text.size());
        const std::string_view content = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (content.empty() || content.front() == '#')
            continue;
        try {
            script.steps.push_back(parseLine(content, line));
        } catch (const Mistake& mistake) {
            script.errors.push_back(errorAt(fileName, line, mistake.what()));
        }
    }
    return script;
}

Script readScript(const std::string& fileName, std::string_view panel)
{
    std::ifstream file(fileName);
    if (file.peek() == std::ifstream::traits_type::eof())
        return {{}, {fileName + (file.bad() || !file.eof() ? ": the script cannot be read" : ": the script is empty")}};
    std::stringstream text;
    text << file.rdbuf();
    Script script = parseScript(fileName, text.str());
    locateExpectedScreens(script, fileName, panel);
    return script;
}

} // namespace simulator
