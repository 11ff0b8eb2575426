// Lists the texts that are cut, lack a glyph or are never seen on one panel in all languages:
// text_audit PHONE APPLICATION PANEL SCREENS ALLOWED OUT [CONTACTS]
// With a number of contacts it looks at those instead of the screens.

#include "audit/Catalogue.h"
#include "audit/Faults.h"
#include "audit/Walk.h"
#include "host/languages/Languages.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>

namespace {

using namespace audit;
namespace fs = std::filesystem;

struct Arguments {
    std::string phone, application, panel, screens, allowed;
    fs::path out;
    int contacts = 0;
};

/// What is found in one panel's pictures.
struct Findings {
    std::set<std::string> seen;
    std::vector<Fault> faults;
};

void runScript(const Arguments& arguments, const fs::path& folder, const std::string& script)
{
    fs::remove_all(folder);
    fs::create_directories(folder);
    const fs::path file = folder / "walk.script";
    std::ofstream(file) << script;
    const std::string command = '"' + arguments.phone + "\" --variant " + arguments.panel + " --script \"" +
                                file.string() + "\" --out \"" + folder.string() + "\" \"" + arguments.application +
                                "\" >\"" + (folder / "log").string() + "\" 2>&1";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("the walk has failed: " + (folder / "log").string());
}

void look(const fs::path& file, const std::string& language, const std::string& panel, Findings& findings)
{
    const nlohmann::json screen = nlohmann::json::parse(std::ifstream(file));
    const std::string name = file.stem().string().substr(0, file.stem().string().find('.'));
    for (const auto& text : screen.at("texts")) {
        const auto shown = text.at("text").get<std::string>();
        findings.seen.insert(shown);
        if (text.at("cut"))
            findings.faults.push_back({"cut", language, panel, name, shown});
        if (text.at("lacksGlyph"))
            findings.faults.push_back({"glyph", language, panel, name, shown});
    }
}

void lookAtAll(const fs::path& folder, const std::string& language, const std::string& panel, Findings& findings)
{
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().extension() == ".json")
            look(entry.path(), language, panel, findings);
}

bool isSeen(const std::string& text, const std::set<std::string>& seen)
{
    return std::ranges::any_of(seen, [&](const std::string& shown) { return isThatText(text, shown); });
}

/// As what another text has in it.
bool isSeenWithin(const std::string& text, const std::set<std::string>& keys, host::Languages& languages,
                  const std::set<std::string>& seen)
{
    return std::ranges::any_of(keys, [&](const std::string& key) {
        std::string whole = languages.translate(key);
        const std::size_t mark = whole.find("%1");
        return mark != std::string::npos && isSeen(whole.replace(mark, 2, text), seen);
    });
}

void lookForUnseen(const std::string& language, const std::string& panel, Findings& findings)
{
    host::Languages languages;
    if (const std::string error = languages.use(language); !error.empty())
        throw std::runtime_error(error);
    const std::set<std::string> keys = keysOf((fs::path(CATALOGUES) / (language + ".po")).string());
    for (const std::string& key : keys)
        if (const std::string text = languages.translate(key);
            !isSeen(text, findings.seen) && !isSeenWithin(text, keys, languages, findings.seen))
            findings.faults.push_back({"unseen", language, panel, key, languages.translate(key)});
}

bool isReadFromTheRight(const std::string& language)
{
    static const std::set<std::string> CODES{"ar", "fa", "he", "ur"};
    return CODES.contains(language);
}

std::vector<Fault> auditLanguages(const Arguments& arguments)
{
    std::vector<Fault> faults;
    const auto languages = host::Languages().available();
    const std::vector<Screen> screens = readScreens(arguments.screens);
    for (std::size_t row = 0; row < languages.size(); ++row) {
        const std::string& language = languages[row].code;
        Findings findings;
        runScript(arguments, arguments.out / language,
                  scriptThrough(screens, static_cast<int>(row), isReadFromTheRight(language)));
        lookAtAll(arguments.out / language, language, arguments.panel, findings);
        lookForUnseen(language, arguments.panel, findings);
        faults.insert(faults.end(), findings.faults.begin(), findings.faults.end());
    }
    return faults;
}

/// Names and numbers are the same in all languages. Each name is on one of the first cards.
std::vector<Fault> auditContacts(const Arguments& arguments)
{
    constexpr int ROWS_IN_A_STEP = 4;
    constexpr int CARDS = 2000;
    Findings findings;
    const int step = arguments.panel == "wp1" ? 1 : ROWS_IN_A_STEP;
    runScript(arguments, arguments.out / "rows", scriptThroughContacts(arguments.contacts, step));
    lookAtAll(arguments.out / "rows", "en", arguments.panel, findings);
    runScript(arguments, arguments.out / "cards", scriptThroughCards(CARDS));
    lookAtAll(arguments.out / "cards", "en", arguments.panel, findings);
    if (findings.seen.size() < static_cast<std::size_t>(arguments.contacts))
        throw std::runtime_error("only " + std::to_string(findings.seen.size()) + " different texts have been seen");
    return findings.faults;
}

bool report(const std::vector<Fault>& faults, const Allowed& allowed, const Arguments& arguments)
{
    std::set<std::string> lines;
    for (const Fault& fault : faults)
        if (!allowed.covers(fault))
            lines.insert(fault.line());
    for (const std::string& error : allowed.errors())
        lines.insert("cannot be read, or has no reason: " + error);
    for (const std::string& line : lines)
        std::cout << line << '\n';
    std::cout << faults.size() << " texts are cut, lack a glyph or are not seen; " << lines.size()
              << " complaints; what is allowed stands in " << arguments.allowed << '\n';
    return lines.empty();
}

} // namespace

int main(int count, char** words)
{
    if (count < 7) {
        std::cerr << "usage: text_audit PHONE APPLICATION PANEL SCREENS ALLOWED OUT [CONTACTS]\n";
        return 2;
    }
    try {
        const Arguments arguments{
            words[1], words[2], words[3], words[4], words[5], words[6], count > 7 ? toContacts(words[7]) : 0};
        const Allowed allowed(arguments.allowed);
        return report(arguments.contacts > 0 ? auditContacts(arguments) : auditLanguages(arguments), allowed, arguments)
                   ? 0
                   : 1;
    } catch (const std::exception& error) {
        std::cerr << "text_audit: " << error.what() << '\n';
        return 2;
    }
}
