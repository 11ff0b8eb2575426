#include "widgets/KestrelTextEdit.h"

#include "utilities/ICC.h"

#include <gtest/gtest.h>

namespace {

std::string text(const PegString& table)
{
    return ICC::fromUNICODEtoUTF8(table);
}

TEST(KestrelTextEdit, BeforeTheFirstLanguageKeysWriteTheirAsciiLetters)
{
    EXPECT_EQ(text(KestrelTextEdit::msKeypad2lower), "abc2");
    EXPECT_EQ(text(KestrelTextEdit::msKeypad9lower), "wxyz9");
    EXPECT_EQ(text(KestrelTextEdit::msKeypad3upper), "DEF3");
    EXPECT_EQ(text(KestrelTextEdit::msKeypad7upper), "PQRS7");
    EXPECT_EQ(text(KestrelTextEdit::msKeypad4lowerRestricted), "ghi4");
    EXPECT_EQ(text(KestrelTextEdit::msKeypad8upperRestricted), "TUV8");
}

TEST(KestrelTextEdit, BeforeTheFirstLanguageModesAreNamedByExample)
{
    EXPECT_EQ(text(KestrelTextEdit::msTextInputModeLowerCase), "abc");
    EXPECT_EQ(text(KestrelTextEdit::msTextInputModeUpperCase), "ABC");
    EXPECT_EQ(text(KestrelTextEdit::msTextInputModeCapitalised), "Abc");
    EXPECT_EQ(text(KestrelTextEdit::msTextInputModeNumeric), "123");
}

} // namespace
