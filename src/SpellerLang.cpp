#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/SpellerLanguage.h"
#include "DisplayPrivate.h"
#include "utilities/ICC.h"
#include "utilities/TranslatorIfc.h"
#include "widgets/KestrelTextEdit.h"

#include <utility>
#include <vector>

namespace DisplayAPI {

namespace {

struct Table {
    PegString& characters;
    const char* key;
};

using Edit = KestrelTextEdit;

constexpr Table TABLES[] = {
    {Edit::msKeypad2lower, "Keypad.2.lower.case"},
    {Edit::msKeypad3lower, "Keypad.3.lower.case"},
    {Edit::msKeypad4lower, "Keypad.4.lower.case"},
    {Edit::msKeypad5lower, "Keypad.5.lower.case"},
    {Edit::msKeypad6lower, "Keypad.6.lower.case"},
    {Edit::msKeypad7lower, "Keypad.7.lower.case"},
    {Edit::msKeypad8lower, "Keypad.8.lower.case"},
    {Edit::msKeypad9lower, "Keypad.9.lower.case"},
    {Edit::msKeypad2upper, "Keypad.2.upper.case"},
    {Edit::msKeypad3upper, "Keypad.3.upper.case"},
    {Edit::msKeypad4upper, "Keypad.4.upper.case"},
    {Edit::msKeypad5upper, "Keypad.5.upper.case"},
    {Edit::msKeypad6upper, "Keypad.6.upper.case"},
    {Edit::msKeypad7upper, "Keypad.7.upper.case"},
    {Edit::msKeypad8upper, "Keypad.8.upper.case"},
    {Edit::msKeypad9upper, "Keypad.9.upper.case"},
    {Edit::msKeypad2lowerRestricted, "Keypad.2.restricted.lower.case"},
    {Edit::msKeypad3lowerRestricted, "Keypad.3.restricted.lower.case"},
    {Edit::msKeypad4lowerRestricted, "Keypad.4.restricted.lower.case"},
    {Edit::msKeypad5lowerRestricted, "Keypad.5.restricted.lower.case"},
    {Edit::msKeypad6lowerRestricted, "Keypad.6.restricted.lower.case"},
    {Edit::msKeypad7lowerRestricted, "Keypad.7.restricted.lower.case"},
    {Edit::msKeypad8lowerRestricted, "Keypad.8.restricted.lower.case"},
    {Edit::msKeypad9lowerRestricted, "Keypad.9.restricted.lower.case"},
    {Edit::msKeypad2upperRestricted, "Keypad.2.restricted.upper.case"},
    {Edit::msKeypad3upperRestricted, "Keypad.3.restricted.upper.case"},
    {Edit::msKeypad4upperRestricted, "Keypad.4.restricted.upper.case"},
    {Edit::msKeypad5upperRestricted, "Keypad.5.restricted.upper.case"},
    {Edit::msKeypad6upperRestricted, "Keypad.6.restricted.upper.case"},
    {Edit::msKeypad7upperRestricted, "Keypad.7.restricted.upper.case"},
    {Edit::msKeypad8upperRestricted, "Keypad.8.restricted.upper.case"},
    {Edit::msKeypad9upperRestricted, "Keypad.9.restricted.upper.case"},
    {Edit::msTextInputModeLowerCase, "Text.input.mode.lowercase"},
    {Edit::msTextInputModeUpperCase, "Text.input.mode.uppercase"},
    {Edit::msTextInputModeCapitalised, "Text.input.mode.capitalised"},
    {Edit::msTextInputModeNumeric, "Text.input.mode.numeric"},
};

/// The display's own, while a form or the like has another language: for who has no translator.
std::vector<PegString>& tablesBefore()
{
    static std::vector<PegString> tables;
    return tables;
}

void restoreTables()
{
    auto before = tablesBefore().begin();
    for (const Table& table : TABLES)
        table.characters = std::move(*before++);
    tablesBefore().clear();
    DisplayPrivate::setSpellerLang(DisplayablePrivate::commonTranslator);
}

} // namespace

/// What the translator answers for a key it does not know becomes the table: no text of the former language stays.
void DisplayPrivate::setSpellerLang(TranslatorIfc* translator)
{
    if (translator == nullptr)
        return;
    for (const Table& table : TABLES)
        table.characters = ICC::fromUTF8toUNICODE(translator->translate(table.key));
}

SpellerLanguage*& SpellerLanguage::innermost()
{
    static SpellerLanguage* last = nullptr;
    return last;
}

SpellerLanguage::SpellerLanguage(TranslatorIfc& translator) : mTranslator(translator), mOuter(innermost())
{
    if (mOuter == nullptr)
        for (const Table& table : TABLES)
            tablesBefore().push_back(table.characters);
    innermost() = this;
    apply();
}

SpellerLanguage::~SpellerLanguage()
{
    SpellerLanguage** place = &innermost();
    while (*place != this)
        place = &(*place)->mOuter;
    *place = mOuter;
    if (innermost() == nullptr)
        restoreTables();
    else if (place == &innermost())
        apply();
}

void SpellerLanguage::apply()
{
    if (innermost() != nullptr)
        DisplayPrivate::setSpellerLang(&innermost()->mTranslator);
}

} // namespace DisplayAPI
