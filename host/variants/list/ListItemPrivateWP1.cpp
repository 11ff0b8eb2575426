#include "variants/list/ListItemPrivateWP1.h"

#include "host/variants/list/RowCore.h"

namespace DisplayAPI {

struct ListItemPrivateWP1::Impl : RowCore {
    using RowCore::RowCore;
};

ListItemPrivateWP1::ListItemPrivateWP1(std::string text, bool)
    : mImpl(std::make_unique<Impl>(TranslatedText(std::move(text))))
{
}

ListItemPrivateWP1::ListItemPrivateWP1(TranslationInfo* text, bool)
    : mImpl(std::make_unique<Impl>(TranslatedText(text)))
{
}

ListItemPrivateWP1::~ListItemPrivateWP1() = default;

void ListItemPrivateWP1::localeChanged(std::string)
{
    mImpl->lookUp();
}

void ListItemPrivateWP1::releaseOwnership()
{
    mImpl->ownership().releaseOwnership();
}

void ListItemPrivateWP1::gainOwnership()
{
    mImpl->ownership().gainOwnership();
}

KestrelListBoxItem* ListItemPrivateWP1::getKestrelListItem()
{
    return mImpl->item();
}

} // namespace DisplayAPI
