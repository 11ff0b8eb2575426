#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"

#include <string>

namespace DisplayAPI {

/// Asks whoever translates for all displayables when a text is looked up: what is shown for long may outlive one.
class LatestTranslator : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override
    {
        TranslatorIfc* const translator = DisplayablePrivate::commonTranslator;
        return translator != nullptr ? translator->translate(key) : key;
    }

    /// Never destroyed: texts may be looked up while the process ends.
    static LatestTranslator* instance()
    {
        static auto* const translator = new LatestTranslator;
        return translator;
    }
};

/// The key of what stands for a party of whom nothing is known.
inline constexpr const char* UNKNOWN_PARTY = "Caller.Unknown.XXX";

/// For facades and private sides. Calls `show` with who the party is or, where nothing is known, with a translation
/// that says so and that whoever is called owns.
template <typename Show>
void showParty(const CallPartyIdentifier& party, Show show)
{
    std::string text;
    if (party.getInterimNameNumber(text, false))
        show(text);
    else
        show(new TranslationInfo(UNKNOWN_PARTY, LatestTranslator::instance()));
}

} // namespace DisplayAPI
