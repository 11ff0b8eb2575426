#include "DisplayAPI/TranslatedText.h"

#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"

#include <utility>

namespace DisplayAPI {

TranslatedText::TranslatedText(std::string text) : mText(std::move(text)) {}

TranslatedText::TranslatedText(const TranslationInfo* translation) : mTranslation(translation) {}

std::string TranslatedText::text() const
{
    return mTranslation != nullptr ? mTranslation->getCompleteString() : mText;
}

PegString TranslatedText::shown() const
{
    return ICC::fromUTF8toUNICODE(text());
}

} // namespace DisplayAPI
