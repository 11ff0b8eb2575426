#pragma once

#include <string>

class TranslatorIfc;

/// A text by its key, looked up each time it is asked for. Safe to read from any thread.
class TranslationInfo {
public:
    /// `translator` is not owned and may be null: the text is then the key itself. `addition` is plain text that
    /// belongs behind the translated one, such as a number.
    TranslationInfo(std::string key, TranslatorIfc* translator, std::string addition = {});

    /// The translated text.
    std::string getString() const;

    /// The translated text with the addition.
    std::string getCompleteString() const;

    const std::string& key() const;

private:
    std::string mKey;
    TranslatorIfc* mTranslator;
    std::string mAddition;
};
