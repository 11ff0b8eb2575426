#include "utilities/TranslationInfo.h"

#include "host/utilities/TranslationMemory.h"
#include "utilities/TranslatorIfc.h"

#include <utility>

TranslationInfo::TranslationInfo(std::string key, TranslatorIfc* translator, std::string addition)
    : mKey(std::move(key)), mTranslator(translator), mAddition(std::move(addition))
{
}

std::string TranslationInfo::getString() const
{
    std::string text = mTranslator != nullptr ? mTranslator->translate(mKey) : mKey;
    if (host::TranslationMemory::isOn())
        host::TranslationMemory::instance().shown(text, mKey, mAddition);
    return text;
}

std::string TranslationInfo::getCompleteString() const
{
    return getString() + mAddition;
}

const std::string& TranslationInfo::key() const
{
    return mKey;
}
