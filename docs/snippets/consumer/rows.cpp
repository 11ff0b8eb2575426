#include "variants/list/ListItemPrivate.h"
#include "widgets/KestrelListBoxItem.h"

#include <string>

// A row of another telephone: the library's header says what it has to be.

namespace DisplayAPI {

struct ListItemPrivate::Impl {
    KestrelListBoxItem item{PegString()};
};

ListItemPrivate::ListItemPrivate(std::string, bool) : mImpl(std::make_unique<Impl>()) {}

ListItemPrivate::ListItemPrivate(TranslationInfo*, bool) : mImpl(std::make_unique<Impl>()) {}

ListItemPrivate::~ListItemPrivate() = default;

void ListItemPrivate::localeChanged(std::string) {}

void ListItemPrivate::releaseOwnership() {}

void ListItemPrivate::gainOwnership()
{
    ListItemPrivateIfc::gainOwnership();
}

KestrelListBoxItem* ListItemPrivate::getKestrelListItem()
{
    return &mImpl->item;
}

} // namespace DisplayAPI
