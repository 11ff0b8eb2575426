#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "widgets/KestrelListBoxItem.h"

namespace DisplayAPI {

/// What the rows of all panels are: a toolkit row with a text that may have to be looked up. GUI thread only.
class RowCore {
public:
    explicit RowCore(TranslatedText text);
    RowCore(const RowCore&) = delete;
    RowCore& operator=(const RowCore&) = delete;

    KestrelListBoxItem* item() const { return mItem; }
    OwnershipIfc& ownership() { return mOwnership; }

    /// Looks a translated text up again; any other stays.
    void lookUp();

private:
    TranslatedText mText;
    KestrelListBoxItem* mItem;
    OwnershipDelegate<KestrelListBoxItem> mOwnership{&mItem, true};
};

} // namespace DisplayAPI
