#pragma once

#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace DisplayAPI::kit {

/// A text with arguments in the language of the moment: %1 to %9 of the translated text become what the arguments say,
/// anew each time that the text is looked up; a mark without an argument stays. Has to outlive the rows and titles that
/// show it.
class Text : private TranslatorIfc {
public:
    using Argument = std::function<std::string()>;

    /// `translator` is not owned; without one the text is the key. Arguments are asked on the thread that looks up: for
    /// rows and titles that is the GUI thread, so they must not wait for another one.
    Text(TranslatorIfc* translator, const std::string& key, std::vector<Argument> arguments = {})
        : mTranslator(translator), mArguments(std::move(arguments)), mInfo(key, this)
    {
    }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    /// UTF-8. Looked up here, on the calling thread.
    std::string get() const { return mInfo.getString(); }

    /// What lists and rows take; lives as long as this.
    TranslationInfo* info() { return &mInfo; }

private:
    std::string translate(const std::string& key) override
    {
        const std::string text = mTranslator != nullptr ? mTranslator->translate(key) : key;
        std::string filled;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (const std::size_t argument = argumentAt(text, at); argument < mArguments.size()) {
                filled += mArguments[argument]();
                ++at;
            } else {
                filled += text[at];
            }
        }
        return filled;
    }

    /// Which argument is named there; one that there cannot be where none is.
    static std::size_t argumentAt(const std::string& text, std::size_t at)
    {
        const bool isMark = text[at] == '%' && at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9';
        return isMark ? static_cast<std::size_t>(text[at + 1] - '1') : std::string::npos;
    }

    TranslatorIfc* mTranslator;
    std::vector<Argument> mArguments;
    TranslationInfo mInfo;
};

} // namespace DisplayAPI::kit
