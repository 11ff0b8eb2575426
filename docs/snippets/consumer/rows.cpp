#include "variants/list/ListItemPrivate.h"
#include "widgets/KestrelListBoxItem.h"

#include <utility>

// A row of another telephone: the library's header says what it has to be.

namespace DisplayAPI {

struct ListItemSide::Impl {
    TranslatedText text;
    KestrelListBoxItem item{text.shown()};
};

ListItemSide::ListItemSide(TranslatedText text, Panel) : mImpl(new Impl{.text = std::move(text)}) {}

ListItemSide::~ListItemSide() = default;

void ListItemSide::localeChanged(std::string)
{
    mImpl->item.DataSet(mImpl->text.shown());
}

void ListItemSide::releaseOwnership() {}

void ListItemSide::gainOwnership()
{
    ListItemPrivateIfc::gainOwnership();
}

KestrelListBoxItem* ListItemSide::getKestrelListItem()
{
    return &mImpl->item;
}

ListItemPrivate::ListItemPrivate(std::string text, bool) : ListItemSide(TranslatedText(std::move(text)), Panel::FULL) {}

ListItemPrivate::ListItemPrivate(TranslationInfo* text, bool) : ListItemSide(TranslatedText(text), Panel::FULL) {}

} // namespace DisplayAPI
