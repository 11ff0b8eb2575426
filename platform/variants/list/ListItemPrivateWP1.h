#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"

#include <memory>

namespace DisplayAPI {

/// A row of a list on the 208 x 42 panel.
class DISPLAYAPI_EXPORT ListItemPrivateWP1 : public ListItemPrivateIfc {
public:
    /// The text is UTF-8. The flag comes from the application as it is.
    ListItemPrivateWP1(std::string text, bool flag);

    /// The translation is not owned and has to outlive the row; null is an empty text.
    ListItemPrivateWP1(TranslationInfo* text, bool flag);
    ~ListItemPrivateWP1() override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    KestrelListBoxItem* getKestrelListItem() override;

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

} // namespace DisplayAPI
