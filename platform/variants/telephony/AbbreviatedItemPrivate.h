#pragma once

#include "DisplayAPI/AbbreviatedItem.h"
#include "DisplayAPI/AbbreviatedItemPrivateIfc.h"
#include "DisplayAPI/TranslatedText.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a short dial entry's row, whatever the panel.
class DISPLAYAPI_EXPORT AbbreviatedItemSide : public AbbreviatedItemPrivateIfc {
public:
    ~AbbreviatedItemSide() override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    KestrelListBoxItem* getKestrelListItem() override;

protected:
    AbbreviatedItemSide(int number, AbbreviatedItem::IconType icon, TranslatedText text, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// A short dial entry on the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT AbbreviatedItemPrivate : public AbbreviatedItemSide {
public:
    /// The text is UTF-8. The flag comes from the application as it is.
    AbbreviatedItemPrivate(int number, AbbreviatedItem::IconType icon, std::string text, bool flag);

    /// The translation is not owned and has to outlive the row; null is an empty text.
    AbbreviatedItemPrivate(int number, AbbreviatedItem::IconType icon, TranslationInfo* text, bool flag);
};

/// A short dial entry on the 208 x 42 panel. Text and flag are as for AbbreviatedItemPrivate.
class DISPLAYAPI_EXPORT AbbreviatedItemPrivateWP1 : public AbbreviatedItemSide {
public:
    AbbreviatedItemPrivateWP1(int number, AbbreviatedItem::IconType icon, std::string text, bool flag);
    AbbreviatedItemPrivateWP1(int number, AbbreviatedItem::IconType icon, TranslationInfo* text, bool flag);
};

} // namespace DisplayAPI
