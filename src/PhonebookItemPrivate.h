#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/PhonebookItem.h"
#include "DisplayAPI/PhonebookItemPrivateIfc.h"
#include "DisplayAPI/TranslatedText.h"
#include "widgets/PhonebookListItem.h"

namespace DisplayAPI {

/// A phonebook entry's row on the toolkit's, whatever the panel. GUI thread only.
class PhonebookItemPrivate : public PhonebookItemPrivateIfc {
public:
    /// The text is UTF-8. The flag comes from the application as it is.
    PhonebookItemPrivate(PhonebookItem::IconType icon, bool isPreferred, std::string text, bool flag);

    /// The translation is not owned and has to outlive the row; null is an empty text.
    PhonebookItemPrivate(PhonebookItem::IconType icon, bool isPreferred, TranslationInfo* text, bool flag);

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    KestrelListBoxItem* getKestrelListItem() override;

private:
    PhonebookItemPrivate(PhonebookItem::IconType icon, bool isPreferred, TranslatedText text);

    TranslatedText mText;
    PhonebookListItem* mItem;
    OwnershipDelegate<PhonebookListItem> mOwnership{&mItem, true};
};

} // namespace DisplayAPI
