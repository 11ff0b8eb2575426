#include "host/widgets/edit/KeypadLetters.h"

#include "support/Keys.h"

#include <gtest/gtest.h>

using host::InputMode;

namespace {

std::string letters(char key, InputMode mode, bool beginsWord = false)
{
    return ICC::fromUNICODEtoUTF8(host::keypadLetters(key, mode, beginsWord));
}

} // namespace

TEST(KeypadLettersTest, AreThoseOfTheKeyInEachMode)
{
    EXPECT_EQ(letters('2', InputMode::LOWER), "abc2");
    EXPECT_EQ(letters('9', InputMode::UPPER), "WXYZ9");
    EXPECT_EQ(letters('7', InputMode::CAPITALISED, true), "PQRS7");
    EXPECT_EQ(letters('7', InputMode::CAPITALISED, false), "pqrs7");
    EXPECT_EQ(letters('7', InputMode::NUMBERS), "7");
}

TEST(KeypadLettersTest, AreDigitsSpaceOrNothingOnKeysWithoutLetters)
{
    EXPECT_EQ(letters('0', InputMode::LOWER), " 0");
    EXPECT_EQ(letters('1', InputMode::LOWER), "1");
    EXPECT_EQ(letters('*', InputMode::LOWER), "");
    EXPECT_EQ(letters('*', InputMode::NUMBERS), "*");
    EXPECT_EQ(letters('#', InputMode::NUMBERS), "#");
}

TEST(KeypadLettersTest, AreNoneForOtherKeys)
{
    for (const int key : {int(PK_UP), int(PK_OK), int('a'), 0, -1})
        EXPECT_TRUE(host::keypadLetters(key, InputMode::NUMBERS, false).empty()) << key;
}

TEST(KeypadLettersTest, NameTheirMode)
{
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(host::nameOf(InputMode::LOWER)), "abc");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(host::nameOf(InputMode::CAPITALISED)), "Abc");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(host::nameOf(InputMode::UPPER)), "ABC");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(host::nameOf(InputMode::NUMBERS)), "123");
}
