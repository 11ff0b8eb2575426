#include "ExpandingTreeListItemPrivate.h"

#include <utility>

namespace DisplayAPI {

ExpandingTreeListItemPrivate::ExpandingTreeListItemPrivate(TranslatedText text) : mText(std::move(text)) {}

void ExpandingTreeListItemPrivate::localeChanged(std::string)
{
    if (mText.isTranslated())
        mItem.DataSet(mText.shown());
}

/// The row is a part of this side.
void ExpandingTreeListItemPrivate::releaseOwnership() {}

KestrelListBoxItem* ExpandingTreeListItemPrivate::getKestrelListItem()
{
    return &mItem;
}

} // namespace DisplayAPI
