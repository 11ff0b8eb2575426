#include "widgets/KestrelTextEdit.h"

#include "utilities/ICC.h"

namespace {

PegString letters(const char* text)
{
    return ICC::fromUTF8toUNICODE(text);
}

} // namespace

PegString KestrelTextEdit::msKeypad2lower = letters("abc2");
PegString KestrelTextEdit::msKeypad3lower = letters("def3");
PegString KestrelTextEdit::msKeypad4lower = letters("ghi4");
PegString KestrelTextEdit::msKeypad5lower = letters("jkl5");
PegString KestrelTextEdit::msKeypad6lower = letters("mno6");
PegString KestrelTextEdit::msKeypad7lower = letters("pqrs7");
PegString KestrelTextEdit::msKeypad8lower = letters("tuv8");
PegString KestrelTextEdit::msKeypad9lower = letters("wxyz9");

PegString KestrelTextEdit::msKeypad2upper = letters("ABC2");
PegString KestrelTextEdit::msKeypad3upper = letters("DEF3");
PegString KestrelTextEdit::msKeypad4upper = letters("GHI4");
PegString KestrelTextEdit::msKeypad5upper = letters("JKL5");
PegString KestrelTextEdit::msKeypad6upper = letters("MNO6");
PegString KestrelTextEdit::msKeypad7upper = letters("PQRS7");
PegString KestrelTextEdit::msKeypad8upper = letters("TUV8");
PegString KestrelTextEdit::msKeypad9upper = letters("WXYZ9");

PegString KestrelTextEdit::msKeypad2lowerRestricted = letters("abc2");
PegString KestrelTextEdit::msKeypad3lowerRestricted = letters("def3");
PegString KestrelTextEdit::msKeypad4lowerRestricted = letters("ghi4");
PegString KestrelTextEdit::msKeypad5lowerRestricted = letters("jkl5");
PegString KestrelTextEdit::msKeypad6lowerRestricted = letters("mno6");
PegString KestrelTextEdit::msKeypad7lowerRestricted = letters("pqrs7");
PegString KestrelTextEdit::msKeypad8lowerRestricted = letters("tuv8");
PegString KestrelTextEdit::msKeypad9lowerRestricted = letters("wxyz9");

PegString KestrelTextEdit::msKeypad2upperRestricted = letters("ABC2");
PegString KestrelTextEdit::msKeypad3upperRestricted = letters("DEF3");
PegString KestrelTextEdit::msKeypad4upperRestricted = letters("GHI4");
PegString KestrelTextEdit::msKeypad5upperRestricted = letters("JKL5");
PegString KestrelTextEdit::msKeypad6upperRestricted = letters("MNO6");
PegString KestrelTextEdit::msKeypad7upperRestricted = letters("PQRS7");
PegString KestrelTextEdit::msKeypad8upperRestricted = letters("TUV8");
PegString KestrelTextEdit::msKeypad9upperRestricted = letters("WXYZ9");

PegString KestrelTextEdit::msTextInputModeLowerCase = letters("abc");
PegString KestrelTextEdit::msTextInputModeUpperCase = letters("ABC");
PegString KestrelTextEdit::msTextInputModeCapitalised = letters("Abc");
PegString KestrelTextEdit::msTextInputModeNumeric = letters("123");
