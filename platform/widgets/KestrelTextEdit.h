#pragma once

#include "toolkit/PString.h"

/// The text editor: what its keypad tables hold is the same for all of them.
///
/// The tables are filled and read on the GUI thread. Each holds the characters that repeated presses of a key cycle
/// through; before the first language they are the letters of the keys in ASCII.
class KestrelTextEdit {
public:
    static PegString msKeypad2lower;
    static PegString msKeypad3lower;
    static PegString msKeypad4lower;
    static PegString msKeypad5lower;
    static PegString msKeypad6lower;
    static PegString msKeypad7lower;
    static PegString msKeypad8lower;
    static PegString msKeypad9lower;

    static PegString msKeypad2upper;
    static PegString msKeypad3upper;
    static PegString msKeypad4upper;
    static PegString msKeypad5upper;
    static PegString msKeypad6upper;
    static PegString msKeypad7upper;
    static PegString msKeypad8upper;
    static PegString msKeypad9upper;

    /// Without the characters that not every field takes.
    static PegString msKeypad2lowerRestricted;
    static PegString msKeypad3lowerRestricted;
    static PegString msKeypad4lowerRestricted;
    static PegString msKeypad5lowerRestricted;
    static PegString msKeypad6lowerRestricted;
    static PegString msKeypad7lowerRestricted;
    static PegString msKeypad8lowerRestricted;
    static PegString msKeypad9lowerRestricted;

    static PegString msKeypad2upperRestricted;
    static PegString msKeypad3upperRestricted;
    static PegString msKeypad4upperRestricted;
    static PegString msKeypad5upperRestricted;
    static PegString msKeypad6upperRestricted;
    static PegString msKeypad7upperRestricted;
    static PegString msKeypad8upperRestricted;
    static PegString msKeypad9upperRestricted;

    /// What the input modes are called on the screen.
    static PegString msTextInputModeLowerCase;
    static PegString msTextInputModeUpperCase;
    static PegString msTextInputModeCapitalised;
    static PegString msTextInputModeNumeric;
};
