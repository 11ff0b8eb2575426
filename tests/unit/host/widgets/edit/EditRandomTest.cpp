#include "support/Seeds.h"
#include "unit/host/widgets/edit/TypingPhone.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <random>

using host::EditKind;
using host::EditLine;
using host::InputMode;
using test::press;

namespace {

constexpr int KEYS = 7'000; ///< with each seed
constexpr std::size_t MAXIMUM = 30;

struct Case {
    const char* code;
    unsigned int seed;
};

std::vector<Case> cases()
{
    std::vector<Case> all;
    for (const unsigned int seed : test::seeds())
        for (const char* code : test::LANGUAGES)
            all.push_back({code, seed});
    return all;
}

bool isArabic(char16_t character)
{
    return character >= u'\u0620' && character <= u'\u064A';
}

/// A plain string with a cursor, and what the keys do to them.
class Plain {
public:
    Plain(test::TypingPhone& phone, std::string code) : mPhone(phone), mCode(std::move(code)) {}

    void type(int key)
    {
        const std::u16string letters = lettersOf(key, key == mKey ? cursor - 1 : cursor);
        if (key == mKey) {
            mIndex = (mIndex + 1) % letters.size();
            text[cursor - 1] = letters[mIndex];
            return;
        }
        mKey = 0;
        if (!put(letters[0]) || letters.size() == 1)
            return;
        mKey = key;
        mIndex = 0;
    }

    bool put(char16_t character)
    {
        if (text.size() >= MAXIMUM)
            return false;
        text.insert(cursor++, 1, character);
        return true;
    }

    void set() { mKey = 0; }

    void nextMode()
    {
        set();
        mMode = (mMode + 1) % modes().size();
    }

    void deleteBefore(std::size_t at)
    {
        cursor = at;
        if (cursor > 0)
            text.erase(--cursor, 1);
    }

    InputMode mode() const { return modes()[mMode]; }

    bool hasArabic() const { return std::ranges::any_of(text, isArabic); }

    bool isReadFromTheRight() const
    {
        const auto letter = std::ranges::find_if(text, [](char16_t character) {
            return isArabic(character) || (character < 0x80 && std::isalpha(character) != 0) || character >= u'À';
        });
        return letter != text.end() && isArabic(*letter);
    }

    std::u16string text;
    std::size_t cursor = 0;

private:
    std::vector<InputMode> modes() const
    {
        using enum InputMode;
        if (mCode == "ar")
            return {LOWER, CAPITALISED, PLAIN_LOWER, UPPER, NUMBERS};
        if (mCode == "ja")
            return {LOWER, UPPER, CAPITALISED, PLAIN_LOWER, PLAIN_UPPER, NUMBERS};
        return {LOWER, CAPITALISED, UPPER, NUMBERS};
    }

    std::string tableName(std::size_t at) const
    {
        const bool isPlain = mCode == "ar" || mCode == "ja";
        const bool beginsWord = at == 0 || text[at - 1] == u' ' || text[at - 1] == u'-';
        switch (mode()) {
        case InputMode::LOWER: return "lower";
        case InputMode::UPPER: return "upper";
        case InputMode::PLAIN_LOWER: return "restricted.lower";
        case InputMode::PLAIN_UPPER: return "restricted.upper";
        default: return std::string(isPlain ? "restricted." : "") + (beginsWord ? "upper" : "lower");
        }
    }

    std::u16string lettersOf(int key, std::size_t at) const
    {
        const std::u16string digit(1, static_cast<char16_t>(key));
        if (mode() == InputMode::NUMBERS || key == '1')
            return digit;
        return key == '0' ? u" 0" : mPhone.table(key, tableName(at));
    }

    test::TypingPhone& mPhone;
    const std::string mCode;
    std::size_t mMode = 0;
    int mKey = 0;
    std::size_t mIndex = 0;
};

class EditRandomTest : public testing::TestWithParam<Case>, protected test::TypingPhone {
protected:
    EditRandomTest()
    {
        change(GetParam().code);
        line.setKind(EditKind::TEXT);
        line.setMaximum(MAXIMUM);
    }

    void step()
    {
        switch (random() % 12) {
        case 0: return move(PK_LEFT);
        case 1: return move(PK_RIGHT);
        case 2: return symbol();
        case 3: return time();
        case 4:
            if (random() % 4 != 0)
                return hold();
            press(line, "#");
            return plain.nextMode();
        default: return type();
        }
    }

    void type()
    {
        const int key = static_cast<int>('0' + random() % 10);
        const auto times = 1 + random() % 3;
        for (unsigned int i = 0; i < times; ++i) {
            line.key(key);
            plain.type(key);
        }
    }

    void symbol()
    {
        constexpr std::u16string_view FIRST_PAGE = u".,?!'\"-_:;";
        const auto index = random() % FIRST_PAGE.size();
        plain.set();
        plain.put(FIRST_PAGE[index]);
        press(line, std::string("*") + static_cast<char>('0' + (index + 1) % 10));
    }

    void time()
    {
        pass(1000);
        plain.set();
    }

    /// With letters that are read from the right the way on the screen is that of another test: here it leads
    /// somewhere else, or stays where it is.
    void move(int key)
    {
        plain.set();
        const bool moved = line.key(key);
        line.released(key);
        if (plain.hasArabic()) {
            plain.cursor = static_cast<std::size_t>(line.cursor());
            return;
        }
        EXPECT_EQ(moved, key == PK_LEFT ? plain.cursor > 0 : plain.cursor < plain.text.size());
        if (moved)
            plain.cursor = key == PK_LEFT ? plain.cursor - 1 : plain.cursor + 1;
    }

    void hold()
    {
        plain.set();
        const int key = plain.isReadFromTheRight() ? PK_RIGHT : PK_LEFT;
        if (line.key(key)) {
            pass(600);
            plain.deleteBefore(plain.cursor);
            pass(150);
            plain.deleteBefore(plain.cursor);
        }
        line.released(key);
    }

    std::mt19937 random{GetParam().seed};
    EditLine line;
    Plain plain{*this, GetParam().code};
};

} // namespace

TEST_P(EditRandomTest, DoesWhatAPlainStringWithACursorWouldDo)
{
    for (int i = 0; i < KEYS && !HasFailure(); ++i) {
        step();
        const PegString text = line.text();
        ASSERT_EQ(std::u16string(text.data(), text.data() + text.length()), plain.text) << i;
        ASSERT_EQ(static_cast<std::size_t>(line.cursor()), plain.cursor) << i;
        ASSERT_EQ(line.mode(), plain.mode()) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Language, EditRandomTest, testing::ValuesIn(cases()),
                         [](const auto& tested) { return tested.param.code + std::to_string(tested.param.seed); });
