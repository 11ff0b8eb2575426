#include "variants/list/ListItemPrivate.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "widgets/KestrelListBoxItem.h"

#include <utility>

namespace DisplayAPI {

struct ListItemSide::Impl {
    TranslatedText text;
    KestrelListBoxItem* item = new KestrelListBoxItem(text.shown());
    OwnershipDelegate<KestrelListBoxItem> ownership{&item, true};
};

/// Text rows look alike on both panels; what differs is the list's.
ListItemSide::ListItemSide(TranslatedText text, Panel) : mImpl(new Impl{.text = std::move(text)}) {}

ListItemSide::~ListItemSide() = default;

ListItemPrivate::ListItemPrivate(std::string text, bool) : ListItemSide(TranslatedText(std::move(text)), Panel::FULL) {}

ListItemPrivate::ListItemPrivate(TranslationInfo* text, bool) : ListItemSide(TranslatedText(text), Panel::FULL) {}

ListItemPrivateWP1::ListItemPrivateWP1(std::string text, bool)
    : ListItemSide(TranslatedText(std::move(text)), Panel::SMALL)
{
}

ListItemPrivateWP1::ListItemPrivateWP1(TranslationInfo* text, bool) : ListItemSide(TranslatedText(text), Panel::SMALL)
{
}

void ListItemSide::localeChanged(std::string)
{
    if (mImpl->text.isTranslated())
        mImpl->item->DataSet(mImpl->text.shown());
}

void ListItemSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void ListItemSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

KestrelListBoxItem* ListItemSide::getKestrelListItem()
{
    return mImpl->item;
}

} // namespace DisplayAPI
