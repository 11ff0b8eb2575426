#include "host/languages/Catalogue.h"
#include "host/languages/Languages.h"

#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>
#include <regex>
#include <set>
#include <sstream>

namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::SizeIs;

namespace fs = std::filesystem;

using Keys = std::set<std::string>;

constexpr const char* CODES[] = {"ar", "de", "en", "fr", "ja"};

std::string contentOf(const fs::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file).rdbuf();
    return content.str();
}

fs::path pathOf(const std::string& code)
{
    return fs::path(CATALOGUES) / (code + ".po");
}

host::Catalogue catalogueOf(const std::string& code)
{
    host::Catalogue catalogue;
    EXPECT_EQ(host::readCatalogue(pathOf(code), catalogue), "");
    return catalogue;
}

Keys keysOf(const host::Catalogue& catalogue)
{
    Keys keys;
    for (const auto& [key, text] : catalogue.texts)
        keys.insert(key);
    return keys;
}

/// The tables of the keypad and the names of the input modes.
Keys typingKeys()
{
    Keys keys;
    for (const char* kind : {"lower.case", "upper.case", "restricted.lower.case", "restricted.upper.case"})
        for (int key = 2; key <= 9; ++key)
            keys.insert("Keypad." + std::to_string(key) + "." + kind);
    for (const char* mode : {"lowercase", "uppercase", "capitalised", "numeric"})
        keys.insert(std::string("Text.input.mode.") + mode);
    return keys;
}

bool isTypingKey(const std::string& key)
{
    return typingKeys().contains(key);
}

/// Every literal of the desk phone's sources that looks like a key.
Keys keysOfTheDeskPhone()
{
    static const std::regex KEY("\"([A-Z][a-z]+(\\.[a-z0-9]+)+)\"");
    Keys keys;
    for (const auto& entry : fs::directory_iterator(DESK_PHONE)) {
        const std::string source = contentOf(entry.path());
        for (std::sregex_iterator at(source.begin(), source.end(), KEY), end; at != end; ++at)
            keys.insert((*at)[1]);
    }
    return keys;
}

/// The characters of a key's table but the last.
std::string lettersOf(const host::Catalogue& catalogue, const std::string& key)
{
    const std::string& table = catalogue.texts.at(key);
    return table.substr(0, table.size() - 1);
}

TEST(CataloguesTest, PhoneHasFiveLanguages)
{
    std::vector<host::Language> languages = host::Languages().available();
    ASSERT_THAT(languages, SizeIs(5));
    for (std::size_t i = 0; i < languages.size(); ++i) {
        EXPECT_EQ(languages[i].code, CODES[i]);
        EXPECT_EQ(languages[i].locale.substr(0, 3), CODES[i] + std::string("_"));
        EXPECT_NE(languages[i].name, languages[i].code);
    }
}

TEST(CataloguesTest, AllHoldTheSameKeys)
{
    const Keys english = keysOf(catalogueOf("en"));
    EXPECT_FALSE(english.empty());
    for (const char* code : CODES)
        EXPECT_EQ(keysOf(catalogueOf(code)), english) << code;
}

TEST(CataloguesTest, NoTextIsUntranslatedOrDoubtful)
{
    static const std::regex ENTRY("\nmsgid \"");
    for (const char* code : CODES) {
        const std::string content = contentOf(pathOf(code));
        const std::sregex_iterator first(content.begin(), content.end(), ENTRY);
        const auto entries = static_cast<std::size_t>(std::distance(first, {}));
        EXPECT_THAT(catalogueOf(code).texts, SizeIs(entries - 1)) << code; // all but the header
    }
}

TEST(CataloguesTest, KeypadAndInputModesAreThere)
{
    EXPECT_THAT(typingKeys(), SizeIs(36));
    for (const char* code : CODES)
        EXPECT_TRUE(std::ranges::includes(keysOf(catalogueOf(code)), typingKeys())) << code;
}

TEST(CataloguesTest, TableEndsWithTheDigitOfItsKey)
{
    for (const char* code : CODES)
        for (const auto& [key, table] : catalogueOf(code).texts)
            if (key.starts_with("Keypad.")) {
                EXPECT_EQ(table.back(), key[7]) << code << ' ' << key;
                EXPECT_GT(table.size(), 3u) << code << ' ' << key;
            }
}

TEST(CataloguesTest, RestrictedTablesArePlainLettersInEveryLanguage)
{
    const host::Catalogue english = catalogueOf("en");
    for (const char* code : CODES) {
        const host::Catalogue catalogue = catalogueOf(code);
        for (const std::string& key : typingKeys())
            if (key.find("restricted") != std::string::npos) {
                EXPECT_EQ(catalogue.texts.at(key), english.texts.at(key)) << code << ' ' << key;
                EXPECT_TRUE(std::ranges::all_of(lettersOf(catalogue, key), [](char c) { return std::isalpha(c); }));
            }
    }
}

TEST(CataloguesTest, GermanWritesItsUmlauts)
{
    const host::Catalogue german = catalogueOf("de");
    EXPECT_EQ(german.texts.at("Keypad.2.lower.case"), "abcäåáàâãæç2");
    EXPECT_EQ(german.texts.at("Keypad.6.upper.case"), "MNOÖÓÒÔÕØŒÑ6");
    EXPECT_EQ(german.texts.at("Keypad.7.lower.case"), "pqrsßšś7");
}

TEST(CataloguesTest, ArgumentsAreTheSameInEveryLanguage)
{
    const auto argumentsOf = [](const std::string& text) {
        return std::pair(text.find("%1") != std::string::npos, text.find("%2") != std::string::npos);
    };
    const host::Catalogue english = catalogueOf("en");
    for (const char* code : CODES)
        for (const auto& [key, text] : catalogueOf(code).texts)
            EXPECT_EQ(argumentsOf(text), argumentsOf(english.texts.at(key))) << code << ' ' << key;
}

TEST(CataloguesTest, DeskPhoneFindsItsTexts)
{
    const Keys used = keysOfTheDeskPhone();
    const Keys there = keysOf(catalogueOf("en"));
    EXPECT_THAT(used, Contains("Menu.title"));
    for (const std::string& key : used)
        EXPECT_THAT(there, Contains(key));
}

TEST(CataloguesTest, NoTextIsForNobody)
{
    const Keys used = keysOfTheDeskPhone();
    const auto isUsed = [&](const std::string& key) {
        static constexpr std::string_view WAY_BACK = "Back"; // what menus ask their translator for
        static constexpr std::string_view DAY = "day";       // what a desktop asks its translator for
        static constexpr std::string_view UNKNOWN_PARTY = "Caller.Unknown.XXX"; // what rows of calls ask theirs for
        static constexpr std::string_view TITLE = ".title"; // a setting's title is named after the setting
        return used.contains(key) || isTypingKey(key) || key == "Language.name" || key == WAY_BACK ||
               key == UNKNOWN_PARTY || key.ends_with(DAY) ||
               (key.ends_with(TITLE) && used.contains(key.substr(0, key.size() - TITLE.size())));
    };
    Keys unused = keysOf(catalogueOf("en"));
    std::erase_if(unused, isUsed);
    EXPECT_THAT(unused, IsEmpty());
}

} // namespace
