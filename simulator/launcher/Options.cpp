#include "simulator/launcher/Options.h"

#include "host/Phone.h"
#include "simulator/web/Endpoint.h"

#include <map>
#include <stdexcept>

namespace simulator {

const char* const USAGE = R"(Usage: phone [--variant plain|narrow|wp1] [--port 8080] APP [ARGS]
       phone [--variant ...] [--port 8080] --listen ADDRESS --token TOKEN APP [ARGS]
       phone [--variant ...] [--port 8080] --rpc [--rpc-token FILE] [--rpc-read-only] APP [ARGS]
       phone [--variant ...] [--port 8080] [...] --record FILE APP [ARGS]
       phone [--variant ...] --script FILE [--out DIR] APP [ARGS]

Runs APP as a telephone. Its panel and keys are a page for the browser, or a script presses the keys and looks at the
panel. The page is for this machine only unless --listen and --token say otherwise; --port 0 takes a free port.
--rpc opens the test interface on the same port, for programs that know the token in the file that is printed, or is
named by --rpc-token; with --rpc-read-only they only look. --virtual-clock lets no time pass but what they pass.
--record writes what is done there as a script, which replays on every panel and in every language.

A script has one command a line:
  key NAME, hold NAME MS, type DIGITS      press keys
  choose TEXT, select TEXT, command TEXT   go to a row, a field or a command, and press OK there
  type "TEXT", set TEXT, dial NUMBER, back fill in a line, set a field, call somebody, leave
  wait MS, advance MS                      let time pass; move the virtual clock in one go
  await TEXT, await-not TEXT               let time pass until a row has the text, or none has
  expect TEXT, expect-not TEXT             wait until a row has the text, or none has
  compare NAME.txt                         wait until the screen is that of the file beside the script
  screenshot NAME.png, dump NAME.txt,      write the screen to the folder of --out
  dump --json NAME.json
  exchange LINE, language CODE,            say something to the program
  act NAME LINE
A text may be one of the catalogue in use: _("KEY"). What else it may be, several keys, arguments, escapes and #2, is in
docs/testing.md.
With DISPLAYAPI_UPDATE_SCREENS=1 in the environment, compare writes its files.
)";

namespace {

struct Mistake : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Setter = void (*)(Options&, const std::string&);

const std::map<std::string, Setter>& setters()
{
    static const std::map<std::string, Setter> all = {
        {"--variant", [](Options& options, const std::string& value) { options.variant = value; }},
        {"--port", [](Options& options, const std::string& value) { options.port = value; }},
        {"--listen", [](Options& options, const std::string& value) { options.listen = value; }},
        {"--token", [](Options& options, const std::string& value) { options.token = value; }},
        {"--script", [](Options& options, const std::string& value) { options.script = value; }},
        {"--out", [](Options& options, const std::string& value) { options.out = value; }},
        {"--record", [](Options& options, const std::string& value) { options.record = value; }},
        {"--rpc-token", [](Options& options, const std::string& value) { options.rpcToken = value; }},
    };
    return all;
}

/// Options without a value.
const std::map<std::string, bool Options::*>& switches()
{
    static const std::map<std::string, bool Options::*> all = {
        {"--help", &Options::wantsHelp},
        {"-h", &Options::wantsHelp},
        {"--virtual-clock", &Options::virtualClock},
        {"--rpc", &Options::rpc},
        {"--rpc-read-only", &Options::rpcReadOnly},
    };
    return all;
}

using Position = std::vector<std::string>::const_iterator;

/// Reads one option with its value, `--name value` or `--name=value`, and returns where the next word is.
Position readOption(Options& options, Position word, Position end)
{
    if (const auto flag = switches().find(*word); flag != switches().end()) {
        options.*flag->second = true;
        return word + 1;
    }
    const std::string name = word->substr(0, word->find('='));
    const auto setter = setters().find(name);
    if (setter == setters().end())
        throw Mistake("There is no option " + name + ".");
    if (name != *word) {
        setter->second(options, word->substr(name.size() + 1));
        return word + 1;
    }
    if (word + 1 == end)
        throw Mistake(name + " needs a value.");
    setter->second(options, *(word + 1));
    return word + 2;
}

void readAll(Options& options, const std::vector<std::string>& arguments)
{
    Position word = arguments.begin();
    while (!options.wantsHelp && word != arguments.end() && word->starts_with('-') && *word != "--")
        word = readOption(options, word, arguments.end());
    if (word != arguments.end() && *word == "--")
        ++word;
    options.application.assign(word, arguments.end());
}

void check(const Options& options)
{
    if (!host::variantFromName(options.variant))
        throw Mistake("There is no variant '" + options.variant + "'; there are plain, narrow and wp1.");
    if (options.application.empty())
        throw Mistake("Which application shall run? Its name is missing.");
    if (!options.rpc && (options.rpcToken || options.rpcReadOnly))
        throw Mistake("--rpc-token and --rpc-read-only go with --rpc.");
    if (options.rpc && options.script)
        throw Mistake("--rpc is on the page's port; a script has none.");
    if (options.record && options.script)
        throw Mistake("--record is for what is done on the page; a script is written already.");
    if (options.record && options.record->empty())
        throw Mistake("--record needs the name of a file.");
    if (options.script)
        return;
    const std::string port = options.port == ANY_PORT ? Options().port : options.port;
    const std::string error = endpointError(port, options.listen, options.token);
    if (!error.empty())
        throw Mistake(error);
}

} // namespace

Options parseOptions(const std::vector<std::string>& arguments)
{
    Options options;
    try {
        readAll(options, arguments);
        if (!options.wantsHelp)
            check(options);
    } catch (const Mistake& mistake) {
        options.error = mistake.what();
    }
    return options;
}

} // namespace simulator
