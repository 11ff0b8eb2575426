#include "utilities/CallPartyIdentifier.h"

#include <utility>

CallPartyIdentifier::CallPartyIdentifier(std::string name, std::string number)
    : mName(std::move(name)), mNumber(std::move(number))
{
}

bool CallPartyIdentifier::getInterimNameNumber(std::string& text, bool preferNumber) const
{
    const bool useNumber = mName.empty() || (preferNumber && !mNumber.empty());
    const std::string& chosen = useNumber ? mNumber : mName;
    if (chosen.empty())
        return false;
    text = chosen;
    return true;
}
