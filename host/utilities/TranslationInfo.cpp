#include "utilities/TranslationInfo.h"

#include "utilities/TranslatorIfc.h"

#include <utility>

TranslationInfo::TranslationInfo(std::string key, TranslatorIfc* translator, std::string addition)
    : mKey(std::move(key)), mTranslator(translator), mAddition(std::move(addition))
{
}

std::string TranslationInfo::getString() const
{
    return mTranslator != nullptr ? mTranslator->translate(mKey) : mKey;
}

std::string TranslationInfo::getCompleteString() const
{
    return getString() + mAddition;
}

const std::string& TranslationInfo::key() const
{
    return mKey;
}
