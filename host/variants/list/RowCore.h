#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "widgets/KestrelListBoxItem.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

/// What the rows of all panels are: a toolkit row with a text that may have to be looked up. GUI thread only.
class RowCore {
public:
    /// The text is UTF-8.
    explicit RowCore(const std::string& text);

    /// The translation is not owned; null is an empty text.
    explicit RowCore(TranslationInfo* text);

    RowCore(const RowCore&) = delete;
    RowCore& operator=(const RowCore&) = delete;

    KestrelListBoxItem* item() const { return mItem; }
    OwnershipIfc& ownership() { return mOwnership; }

    /// Looks a translated text up again; any other stays.
    void lookUp();

private:
    KestrelListBoxItem* mItem;
    OwnershipDelegate<KestrelListBoxItem> mOwnership;
    TranslationInfo* mTranslation = nullptr;
};

} // namespace DisplayAPI
