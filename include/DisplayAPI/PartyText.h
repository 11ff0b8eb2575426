#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslationInfo.h"

#include <string>

namespace DisplayAPI {

/// For facades and private sides. Calls `show` with who the party is or, where nothing is known, with a translation
/// that says so and that whoever is called owns.
template <typename Show>
void showParty(const CallPartyIdentifier& party, Show show)
{
    std::string text;
    if (party.getInterimNameNumber(text, false))
        show(text);
    else
        show(new TranslationInfo("Caller.Unknown.XXX", DisplayablePrivate::commonTranslator));
}

} // namespace DisplayAPI
