#pragma once

#include "DisplayAPI/Export.h"
#include "toolkit/PString.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

/// A text that an application has set as it is, or as a translation, which is looked up anew each time that it is asked
/// for: whoever shows it asks again when the language changes. GUI thread only.
class DISPLAYAPI_EXPORT TranslatedText {
public:
    TranslatedText() = default;

    /// UTF-8.
    explicit TranslatedText(std::string text);

    /// Not owned and has to outlive this; null is an empty text.
    explicit TranslatedText(const TranslationInfo* translation);

    bool isTranslated() const { return mTranslation != nullptr; }

    /// Null where it is not translated.
    const TranslationInfo* translation() const { return mTranslation; }

    /// In the language of the moment: UTF-8, and as the toolkit wants it.
    std::string text() const;
    PegString shown() const;

private:
    std::string mText;
    const TranslationInfo* mTranslation = nullptr;
};

} // namespace DisplayAPI
