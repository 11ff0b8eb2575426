#include "ExpandingTreeListItemPrivate.h"

namespace DisplayAPI {

ExpandingTreeListItemPrivate::ExpandingTreeListItemPrivate(const TranslatedText& text) : mItem(text.shown())
{
    if (text.isTranslated())
        mTranslation = text;
}

void ExpandingTreeListItemPrivate::localeChanged(std::string)
{
    if (mTranslation.isTranslated())
        mItem.DataSet(mTranslation.shown());
}

/// The row is a part of this side.
void ExpandingTreeListItemPrivate::releaseOwnership() {}

KestrelListBoxItem* ExpandingTreeListItemPrivate::getKestrelListItem()
{
    return &mItem;
}

} // namespace DisplayAPI
