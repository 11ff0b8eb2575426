#pragma once

#include "DisplayAPI/PartyText.h"
#include "DisplayAPI/TranslatedText.h"
#include "utilities/TranslationInfo.h"

#include <memory>
#include <utility>

namespace DisplayAPI {

/// A text whose translation belongs to it, unless it is said to be somebody else's. GUI thread only.
class OwnedText {
public:
    OwnedText() = default;
    explicit OwnedText(std::string text) : mText(std::move(text)) {}
    explicit OwnedText(TranslatedText notOwned) : mText(std::move(notOwned)) {}
    explicit OwnedText(TranslationInfo* translation) : mTranslation(translation), mText(translation) {}
    explicit OwnedText(std::unique_ptr<TranslationInfo> translation) : OwnedText(translation.release()) {}

    /// Who that is, or that nobody knows.
    explicit OwnedText(const CallPartyIdentifier& party)
    {
        showParty(party, [this](const auto& shown) { *this = OwnedText(shown); });
    }

    bool isTranslated() const { return mText.isTranslated(); }
    std::string text() const { return mText.text(); }
    PegString shown() const { return mText.shown(); }

private:
    std::unique_ptr<TranslationInfo> mTranslation;
    TranslatedText mText;
};

} // namespace DisplayAPI
