#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

#include <memory>

namespace DisplayAPI {

/// A row of a list on the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT ListItemPrivate : public ListItemPrivateIfc {
public:
    /// The text is UTF-8. The flag comes from the application as it is.
    ListItemPrivate(std::string text, bool flag);

    /// The translation is not owned and has to outlive the row; null is an empty text.
    ListItemPrivate(TranslationInfo* text, bool flag);
    ~ListItemPrivate() override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    KestrelListBoxItem* getKestrelListItem() override;

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

} // namespace DisplayAPI
