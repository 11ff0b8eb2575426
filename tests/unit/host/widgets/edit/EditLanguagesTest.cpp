#include "unit/host/widgets/edit/TypingPhone.h"

#include <gmock/gmock.h>

using host::EditKind;
using host::EditLine;
using host::InputMode;
using test::peg;
using test::press;

namespace {

class EditLanguagesTest : public testing::Test, protected test::TypingPhone {
protected:
    static std::string utf8(const PegString& text) { return ICC::fromUNICODEtoUTF8(text); }
    std::string text() const { return utf8(line.text()); }

    /// By the hash key; false where there is no such mode.
    bool goTo(InputMode mode)
    {
        for (int tries = 0; tries < 10 && line.mode() != mode; ++tries)
            press(line, "#");
        return line.mode() == mode;
    }

    std::vector<std::string> modeNames()
    {
        std::vector<std::string> names;
        const InputMode first = line.mode();
        do {
            names.push_back(utf8(nameOf(line.mode())));
            press(line, "#");
        } while (line.mode() != first);
        return names;
    }

    /// Each of its characters by itself, by as many presses as it takes.
    std::u16string typedFrom(int key, std::size_t count)
    {
        line.clear();
        for (std::size_t presses = 1; presses <= count; ++presses) {
            press(line, std::string(presses, static_cast<char>(key)));
            pass(1000);
        }
        const PegString typed = line.text();
        return {typed.data(), typed.data() + typed.length()};
    }

    EditLine line;
};

} // namespace

TEST_F(EditLanguagesTest, EveryCharacterOfEveryTableIsTypedAndReadBack)
{
    const std::vector<std::pair<EditKind, std::vector<std::pair<InputMode, const char*>>>> tables{
        {EditKind::TEXT, {{InputMode::LOWER, "lower"}, {InputMode::UPPER, "upper"}}},
        {EditKind::PASSWORD,
         {{InputMode::PLAIN_LOWER, "restricted.lower"}, {InputMode::PLAIN_UPPER, "restricted.upper"}}}};
    for (const char* code : test::LANGUAGES) {
        change(code);
        for (const auto& [kind, modes] : tables) {
            line.setKind(kind);
            for (const auto& [mode, name] : modes) {
                ASSERT_TRUE(goTo(mode)) << code;
                for (int key = '2'; key <= '9'; ++key)
                    EXPECT_EQ(typedFrom(key, table(key, name).size()), table(key, name)) << code << ' ' << name << key;
            }
        }
    }
}

TEST_F(EditLanguagesTest, KeysGoRoundToTheirFirstCharacter)
{
    for (const char* code : test::LANGUAGES) {
        change(code);
        line.setKind(EditKind::TEXT);
        line.clear();
        press(line, std::string(table('7', "lower").size() + 1, '7'));
        EXPECT_EQ(line.text().data()[0], table('7', "lower")[0]) << code;
    }
}

TEST_F(EditLanguagesTest, ModesAreNamedInTheLanguageAndHaveItsLettersBesideThePlainOnes)
{
    const std::vector<std::pair<const char*, std::vector<std::string>>> names{
        {"en", {"Abc", "abc", "ABC", "123"}},
        {"de", {"Abc", "abc", "ABC", "123"}},
        {"fr", {"Abc", "abc", "ABC", "123"}},
        {"ar", {"أبت", "Abc", "abc", "ABC", "123"}},
        {"ja", {"かな", "カナ", "Abc", "abc", "ABC", "123"}}};
    for (const auto& [code, expected] : names) {
        change(code);
        line.setKind(EditKind::NAME);
        EXPECT_EQ(modeNames(), expected) << code;
    }
}

TEST_F(EditLanguagesTest, PasswordsAreTypedTheSameInEveryLanguage)
{
    for (const char* code : test::LANGUAGES) {
        change(code);
        line.setKind(EditKind::PASSWORD);
        EXPECT_EQ(modeNames(), (std::vector<std::string>{"abc", "ABC", "123"})) << code;
    }
}

TEST_F(EditLanguagesTest, PlainLettersAreThereInEveryLanguage)
{
    for (const char* code : test::LANGUAGES) {
        change(code);
        line.setKind(EditKind::NAME);
        line.clear();
        ASSERT_TRUE(goTo(InputMode::CAPITALISED));
        press(line, "2");
        pass(1000);
        press(line, "3");
        pass(1000);
        press(line, "2");
        EXPECT_EQ(text(), "Ada") << code;
    }
}

TEST_F(EditLanguagesTest, LanguageThatChangesMeanwhileCountsFromTheNextKeyOn)
{
    change("de");
    line.setKind(EditKind::TEXT);
    press(line, "2");
    change("ja");
    press(line, "2");
    EXPECT_EQ(text(), "aか");
    press(line, "#");
    EXPECT_EQ(line.mode(), InputMode::UPPER);
    change("en");
    change("ar");
    EXPECT_EQ(utf8(nameOf(line.mode())), "ABC");
    line.setKind(EditKind::NAME);
    EXPECT_EQ(utf8(nameOf(line.mode())), "أبت");
    change("en");
    EXPECT_EQ(utf8(nameOf(line.mode())), "Abc");
}

TEST_F(EditLanguagesTest, NameWithAccentsIsTypedByKeysAlone)
{
    change("en");
    line.setKind(EditKind::NAME);
    const auto character = [&](int key, char16_t wanted, const char* which) {
        press(line, std::string(table(key, which).find(wanted) + 1, static_cast<char>(key)));
        pass(1000);
    };
    character('9', u'Z', "upper");
    character('6', u'o', "lower");
    character('3', u'ë', "lower");
    press(line, "0");
    pass(1000);
    character('2', u'Å', "upper");
    for (const char16_t letter : {u'n', u'g', u's', u't', u'r', u'ö', u'm'})
        for (int key = '2'; key <= '9'; ++key)
            if (table(key, "lower").find(letter) != std::u16string::npos)
                character(key, letter, "lower");
    EXPECT_EQ(text(), "Zoë Ångström");
}
