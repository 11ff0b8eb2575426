#include "widgets/KestrelListBoxItem.h"

#include "widgets/KestrelListBox.h"

#include <utility>

KestrelListBoxItem::KestrelListBoxItem(PegString text) : mText(std::move(text)) {}

KestrelListBoxItem::~KestrelListBoxItem()
{
    if (mList != nullptr)
        mList->remove(this);
}

int KestrelListBoxItem::row() const
{
    return mList != nullptr ? mList->rowOf(this) : -1;
}

void KestrelListBoxItem::DataSet(PegString text)
{
    mText = std::move(text);
    if (mList != nullptr)
        mList->itemChanged(this);
}
