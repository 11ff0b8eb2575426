#include "host/utilities/TranslationMemory.h"

#include <algorithm>

namespace host {

TranslationMemory& TranslationMemory::instance()
{
    static auto* const memory = new TranslationMemory; // texts are looked up while the process ends
    return *memory;
}

void TranslationMemory::switchOn()
{
    gIsOn = true;
}

void TranslationMemory::switchOff()
{
    gIsOn = false;
    const std::lock_guard lock(mMutex);
    mPatterns.clear();
    mSources.clear();
    mOrder.clear();
}

void TranslationMemory::answered(const std::string& key, const std::string& text)
{
    const std::lock_guard lock(mMutex);
    if (mPatterns.size() >= MOST_TEXTS && !mPatterns.contains(key))
        return;
    mPatterns[key] = text;
    remember(text, {key, {}});
}

void TranslationMemory::shown(const std::string& text, const std::string& key, const std::string& addition)
{
    const std::lock_guard lock(mMutex);
    remember(text, {key, {}});
    if (!addition.empty())
        remember(text + addition, {key, addition});
}

/// REQUIRES: the lock is held. The oldest text goes where there are too many.
void TranslationMemory::remember(const std::string& text, Source source)
{
    if (text.empty())
        return;
    std::vector<Source>& sources = mSources[text];
    if (sources.empty())
        mOrder.push_back(text);
    std::erase(sources, source);
    sources.push_back(std::move(source));
    if (mOrder.size() <= MOST_TEXTS)
        return;
    mSources.erase(mOrder.front());
    mOrder.pop_front();
}

std::vector<TranslationMemory::Origin> TranslationMemory::originsOf(const std::string& text) const
{
    const std::lock_guard lock(mMutex);
    std::vector<Origin> origins;
    const auto found = mSources.find(text);
    if (found == mSources.end())
        return origins;
    for (auto source = found->second.rbegin(); source != found->second.rend(); ++source) {
        const auto pattern = mPatterns.find(source->key);
        if (pattern != mPatterns.end())
            origins.push_back({source->key, pattern->second, source->addition});
    }
    return origins;
}

} // namespace host
