#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "host/lcd/Lcd.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <memory>
#include <unordered_map>

namespace bench {

namespace {

constexpr int ROWS = 10'000;

std::string key(int row)
{
    return "Row." + std::to_string(row);
}

/// Two languages of as many texts as there are rows.
class TwoLanguages : public TranslatorIfc {
public:
    TwoLanguages()
    {
        for (int row = 0; row < ROWS; ++row) {
            mTexts[0][key(row)] = "Entry " + std::to_string(row);
            mTexts[1][key(row)] = "Eintrag " + std::to_string(row);
        }
    }

    void use(std::size_t language) { mLanguage = language; }
    std::string translate(const std::string& wanted) override { return mTexts[mLanguage].at(wanted); }

private:
    std::array<std::unordered_map<std::string, std::string>, 2> mTexts;
    std::atomic<std::size_t> mLanguage{0};
};

bool shows(const std::string& text)
{
    for (const host::TextRun& run : host::Lcd::current()->picture().texts) {
        if (run.text == text)
            return true;
    }
    return false;
}

/// Until every row has its new text and the screen shows them.
double changeLanguage()
{
    Phone phone;
    TwoLanguages languages;
    std::vector<TranslationInfo> texts;
    for (int row = 0; row < ROWS; ++row)
        texts.emplace_back(key(row), &languages);
    DisplayAPI::List list(0);
    for (TranslationInfo& text : texts)
        list.append(&text);
    phone.display().setCurrent(&list);
    list.size();
    waitUntilShown();

    const auto start = Clock::now();
    languages.use(1);
    phone.display().localeChanged("de_DE");
    waitUntilShown();
    const double milliseconds = secondsSince(start) * 1e3;

    const std::unique_ptr<DisplayAPI::ListItem> last(list.removeAt(ROWS - 1));
    if (!shows("Eintrag 0") || last->getText() != "Eintrag " + std::to_string(ROWS - 1))
        std::fprintf(stderr, "benchmark broken: the language has not changed\n");
    phone.display().setCurrent(nullptr);
    return milliseconds;
}

} // namespace

std::vector<Case> languageCases()
{
    return {{SCREEN, "Change of language with 10000 rows in a list, until shown", "ms", changeLanguage}};
}

} // namespace bench
