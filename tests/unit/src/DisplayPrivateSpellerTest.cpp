// The keypad tables and the names of the input modes, which come with the language.

#include "unit/src/DisplayPrivateTest.h"

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/SpellerLanguage.h"
#include "doubles/Mocks.h"
#include "utilities/ICC.h"
#include "widgets/KestrelTextEdit.h"

using DisplayAPI::DisplayPrivate;
using test::DisplayPrivateTest;

namespace {

struct Table {
    PegString& text;
    std::string key;
};

/// All tables, in the order in which they are filled.
const std::vector<Table>& tables()
{
    using Edit = KestrelTextEdit;
    static const std::vector<Table> all{
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
    return all;
}

/// A language in which each text is its key behind a mark; it notes what it is asked for.
class Language : public TranslatorIfc {
public:
    explicit Language(std::string mark) : mMark(std::move(mark)) {}

    std::string translate(const std::string& key) override
    {
        asked.push_back(key);
        return mMark + key;
    }

    std::vector<std::string> asked;

private:
    std::string mMark;
};

void expectTablesWithMark(const std::string& mark)
{
    for (const Table& table : tables())
        EXPECT_EQ(ICC::fromUNICODEtoUTF8(table.text), mark + table.key);
}

/// Puts the tables back as they were.
class DisplayPrivateSpellerTest : public DisplayPrivateTest {
protected:
    DisplayPrivateSpellerTest()
    {
        for (const Table& table : tables())
            mBefore.push_back(table.text);
    }

    ~DisplayPrivateSpellerTest() override
    {
        DisplayAPI::DisplayablePrivate::commonTranslator = nullptr;
        for (std::size_t i = 0; i < mBefore.size(); ++i)
            tables()[i].text = mBefore[i];
    }

private:
    std::vector<PegString> mBefore;
};

} // namespace

TEST_F(DisplayPrivateSpellerTest, EveryTableIsFilledWithTheTextOfItsKey)
{
    ASSERT_EQ(tables().size(), 36u);
    Language language("en ");
    DisplayPrivate::setSpellerLang(&language);
    expectTablesWithMark("en ");
}

TEST_F(DisplayPrivateSpellerTest, EachKeyIsAskedForOnceInTheOrderOfTheTables)
{
    Language language("");
    DisplayPrivate::setSpellerLang(&language);
    std::vector<std::string> keys;
    for (const Table& table : tables())
        keys.push_back(table.key);
    EXPECT_EQ(language.asked, keys);
}

TEST_F(DisplayPrivateSpellerTest, NoTranslatorLeavesTheTablesAsTheyWere)
{
    Language language("de ");
    DisplayPrivate::setSpellerLang(&language);
    DisplayPrivate::setSpellerLang(nullptr);
    expectTablesWithMark("de ");
}

TEST_F(DisplayPrivateSpellerTest, ASecondLanguageReplacesEveryTable)
{
    Language german("de ");
    Language french("fr ");
    DisplayPrivate::setSpellerLang(&german);
    DisplayPrivate::setSpellerLang(&french);
    expectTablesWithMark("fr ");
}

TEST_F(DisplayPrivateSpellerTest, AKeyWithoutATextEmptiesItsTable)
{
    Language german("de ");
    testing::NiceMock<doubles::MockTranslator> knowsNothing;
    DisplayPrivate::setSpellerLang(&german);
    DisplayPrivate::setSpellerLang(&knowsNothing);
    for (const Table& table : tables())
        EXPECT_TRUE(table.text.empty()) << table.key;
}

TEST_F(DisplayPrivateSpellerTest, ALetterOfSeveralBytesIsOneCharacter)
{
    testing::NiceMock<doubles::MockTranslator> translator;
    ON_CALL(translator, translate("Keypad.2.lower.case"))
        .WillByDefault(testing::Return("a\xC3\xA4\xD8\xA8\xE3\x81\x82"));
    DisplayPrivate::setSpellerLang(&translator);
    const PegString& table = KestrelTextEdit::msKeypad2lower;
    ASSERT_EQ(table.length(), 4u);
    EXPECT_EQ(table.data()[0], 'a');
    EXPECT_EQ(table.data()[1], 0xE4);
    EXPECT_EQ(table.data()[2], 0x628);
    EXPECT_EQ(table.data()[3], 0x3042);
}

TEST_F(DisplayPrivateSpellerTest, TheDisplaysTranslatorFillsTheTablesAndBecomesTheCommonOne)
{
    Language language("it ");
    display->setTranslator(&language);
    EXPECT_EQ(DisplayAPI::DisplayablePrivate::commonTranslator, &language);
    expectTablesWithMark("it ");
    display->setTranslator(nullptr);
    EXPECT_EQ(DisplayAPI::DisplayablePrivate::commonTranslator, nullptr);
    expectTablesWithMark("it ");
}

TEST_F(DisplayPrivateSpellerTest, TheCommonTranslatorIsInForceBeforeTheTablesAreFilled)
{
    testing::NiceMock<doubles::MockTranslator> translator;
    ON_CALL(translator, translate).WillByDefault([&](const std::string&) {
        EXPECT_EQ(DisplayAPI::DisplayablePrivate::commonTranslator, &translator);
        return std::string("x");
    });
    EXPECT_CALL(translator, translate).Times(36);
    display->setTranslator(&translator);
}

TEST_F(DisplayPrivateSpellerTest, SpellerLanguageHoldsAsLongAsItLives)
{
    Language german("de "), french("fr "), english("en ");
    DisplayPrivate::setSpellerLang(&german);
    {
        const DisplayAPI::SpellerLanguage typing(french);
        expectTablesWithMark("fr ");
        DisplayPrivate::setSpellerLang(&english);
        DisplayAPI::SpellerLanguage::apply();
        expectTablesWithMark("fr ");
    }
    expectTablesWithMark("de ");
}

TEST_F(DisplayPrivateSpellerTest, OfSeveralSpellerLanguagesTheLastOneThatLivesCounts)
{
    Language german("de "), french("fr "), russian("ru "), english("en ");
    DisplayPrivate::setSpellerLang(&german);
    auto outer = std::make_unique<DisplayAPI::SpellerLanguage>(french);
    auto middle = std::make_unique<DisplayAPI::SpellerLanguage>(russian);
    auto inner = std::make_unique<DisplayAPI::SpellerLanguage>(english);
    middle.reset();
    expectTablesWithMark("en ");
    inner.reset();
    expectTablesWithMark("fr ");
    middle = std::make_unique<DisplayAPI::SpellerLanguage>(russian);
    outer.reset();
    DisplayAPI::SpellerLanguage::apply();
    expectTablesWithMark("ru ");
    middle.reset();
    expectTablesWithMark("de ");
    DisplayAPI::SpellerLanguage::apply();
    expectTablesWithMark("de ");
}

TEST_F(DisplayPrivateSpellerTest, AfterwardsTheDisplaysLanguageOfTheMomentCounts)
{
    Language german("de "), french("fr "), english("en ");
    DisplayPrivate::setSpellerLang(&german);
    {
        const DisplayAPI::SpellerLanguage typing(french);
        DisplayAPI::DisplayablePrivate::commonTranslator = &english;
    }
    expectTablesWithMark("en ");
}
