#pragma once

#include "DisplayAPI/Export.h"

class TranslatorIfc;

namespace DisplayAPI {

/// For as long as it lives the keypad types in the language of a translator, and not in the display's: afterwards in
/// that again. Of several the one that was made last counts; they may go in any order. GUI thread only.
class DISPLAYAPI_EXPORT SpellerLanguage {
public:
    /// Not owned, and outlives this.
    explicit SpellerLanguage(TranslatorIfc& translator);

    SpellerLanguage(const SpellerLanguage&) = delete;
    SpellerLanguage& operator=(const SpellerLanguage&) = delete;
    ~SpellerLanguage();

    /// Whether it is the keypad's language now.
    bool counts() const { return innermost() == this; }

    /// Once more what counts, where the display's language has come in between.
    static void apply();

private:
    static SpellerLanguage*& innermost();

    TranslatorIfc& mTranslator;
    SpellerLanguage* mOuter;
};

} // namespace DisplayAPI
