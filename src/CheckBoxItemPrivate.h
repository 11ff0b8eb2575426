#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "toolkit/PegThing.h"
#include "widgets/ApplicationWatch.h"
#include "widgets/CheckBoxListItem.h"

namespace DisplayAPI {

class Image;

/// A check box's row on the toolkit's, whatever the panel. GUI thread only.
class CheckBoxItemPrivate : public PegThing, public ListItemPrivateIfc {
public:
    /// UTF-8.
    explicit CheckBoxItemPrivate(std::string text);

    /// The translation is not owned and has to outlive the row; null is an empty text. The image is not shown.
    CheckBoxItemPrivate(TranslationInfo* text, Image* image);

    /// Follows the language of the application.
    int Message(const PegMessage& message) override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    bool hasOwnership() const;
    KestrelListBoxItem* getKestrelListItem() override;

    bool isChecked();
    void swapChecked();
    void setChecked(bool on);

private:
    explicit CheckBoxItemPrivate(TranslatedText text);
    void updateText();

    TranslatedText mText;
    CheckBoxListItem* mItem;
    OwnershipDelegate<CheckBoxListItem> mOwnership{&mItem, true};
    const ApplicationWatch mApplication{*this};
};

} // namespace DisplayAPI
