#pragma once

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/TranslatedText.h"
#include "widgets/Peg_TreeListItem.h"

namespace DisplayAPI {

/// A row of a tree list on the toolkit's, whatever the panel. GUI thread only.
class ExpandingTreeListItemPrivate : public ListItemPrivateIfc {
public:
    explicit ExpandingTreeListItemPrivate(const TranslatedText& text);

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    KestrelListBoxItem* getKestrelListItem() override;

private:
    TranslatedText mTranslation; ///< empty for a plain text, which the row has
    Peg_TreeListItem mItem;
};

} // namespace DisplayAPI
