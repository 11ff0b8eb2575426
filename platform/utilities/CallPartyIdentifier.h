#pragma once

#include <string>

/// A party of a call: name and number, either of which may be unknown.
class CallPartyIdentifier {
public:
    /// What kind of number it is. Others may come.
    enum PhoneNumberIconType : int { WORK = 0, HOME = 1, MOBILE = 2, LETTER = 3, PERSON = 4 };

    CallPartyIdentifier() = default;
    CallPartyIdentifier(std::string name, std::string number);

    /// Puts the text to show into `text`: the name, or the number where there is no name or `preferNumber` is set and
    /// there is a number. Returns false, leaving `text` alone, when nothing is known.
    bool getInterimNameNumber(std::string& text, bool preferNumber) const;

    const std::string& name() const { return mName; }
    const std::string& number() const { return mNumber; }

private:
    std::string mName;
    std::string mNumber;
};
