#include "variants/list/ListItemPrivate.h"

#include "host/variants/list/RowCore.h"

namespace DisplayAPI {

struct ListItemPrivate::Impl : RowCore {
    using RowCore::RowCore;
};

ListItemPrivate::ListItemPrivate(std::string text, bool)
    : mImpl(std::make_unique<Impl>(TranslatedText(std::move(text))))
{
}

ListItemPrivate::ListItemPrivate(TranslationInfo* text, bool) : mImpl(std::make_unique<Impl>(TranslatedText(text))) {}

ListItemPrivate::~ListItemPrivate() = default;

void ListItemPrivate::localeChanged(std::string)
{
    mImpl->lookUp();
}

void ListItemPrivate::releaseOwnership()
{
    mImpl->ownership().releaseOwnership();
}

void ListItemPrivate::gainOwnership()
{
    mImpl->ownership().gainOwnership();
}

KestrelListBoxItem* ListItemPrivate::getKestrelListItem()
{
    return mImpl->item();
}

} // namespace DisplayAPI
