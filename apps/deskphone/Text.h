#pragma once

#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"

#include <functional>
#include <string>
#include <vector>

namespace deskphone {

/// A text with arguments in the language of the moment: %1, %2 ... of the translated text become what the arguments
/// say, anew each time that the text is looked up. Has to outlive the rows that show it.
class Text : private TranslatorIfc {
public:
    using Argument = std::function<std::string()>;

    /// `translator` is not owned; without one the text is the key. Arguments are asked on the thread that looks up:
    /// for rows and titles that is the GUI thread.
    Text(TranslatorIfc* translator, const std::string& key, std::vector<Argument> arguments = {});
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    std::string get() const { return mInfo.getString(); }
    TranslationInfo* info() { return &mInfo; }

private:
    std::string translate(const std::string& key) override;

    TranslatorIfc* mTranslator;
    std::vector<Argument> mArguments;
    TranslationInfo mInfo;
};

} // namespace deskphone
