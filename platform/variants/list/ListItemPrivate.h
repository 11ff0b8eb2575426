#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/TranslatedText.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a list row, whatever the panel.
class DISPLAYAPI_EXPORT ListItemSide : public ListItemPrivateIfc {
public:
    ~ListItemSide() override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    KestrelListBoxItem* getKestrelListItem() override;

protected:
    ListItemSide(TranslatedText text, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// A row of a list on the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT ListItemPrivate : public ListItemSide {
public:
    /// The text is UTF-8. The flag comes from the application as it is.
    ListItemPrivate(std::string text, bool flag);

    /// The translation is not owned and has to outlive the row; null is an empty text.
    ListItemPrivate(TranslationInfo* text, bool flag);
};

/// A row of a list on the 208 x 42 panel. The text and the flag are as for ListItemPrivate.
class DISPLAYAPI_EXPORT ListItemPrivateWP1 : public ListItemSide {
public:
    ListItemPrivateWP1(std::string text, bool flag);
    ListItemPrivateWP1(TranslationInfo* text, bool flag);
};

} // namespace DisplayAPI
