#pragma once

#include "DisplayAPI/TranslatedText.h"
#include "utilities/TranslationInfo.h"

#include <memory>
#include <utility>

namespace DisplayAPI {

/// A text whose translation belongs to it. GUI thread only.
class OwnedText {
public:
    OwnedText() = default;
    explicit OwnedText(std::string text) : mText(std::move(text)) {}
    explicit OwnedText(TranslationInfo* translation) : mTranslation(translation), mText(translation) {}

    bool isTranslated() const { return mText.isTranslated(); }
    PegString shown() const { return mText.shown(); }

private:
    std::unique_ptr<TranslationInfo> mTranslation;
    TranslatedText mText;
};

} // namespace DisplayAPI
