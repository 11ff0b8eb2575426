#include "variants/list/ListItemPrivate.h"

#include "widgets/KestrelListBoxItem.h"

#include <utility>

namespace DisplayAPI {

/// The toolkit row itself, so that there is one thing less for each row. Where somebody else deletes it, the side does
/// not know it any more.
struct ListItemSide::Impl final : KestrelListBoxItem {
    Impl(ListItemSide& itsSide, const TranslatedText& text)
        : KestrelListBoxItem(text.shown()), side(&itsSide), translation(text.translation())
    {
    }

    ~Impl() override
    {
        if (!isOwned && side != nullptr)
            static_cast<void>(side->mImpl.release());
    }

    bool isOwned = true;
    ListItemSide* side;
    const TranslationInfo* translation; ///< null where there is none
};

/// Text rows look alike on both panels; what differs is the list's.
ListItemSide::ListItemSide(TranslatedText text, Panel) : mImpl(new Impl(*this, text)) {}

ListItemSide::~ListItemSide()
{
    if (mImpl != nullptr && !mImpl->isOwned)
        mImpl.release()->side = nullptr;
}

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
    if (mImpl != nullptr && mImpl->translation != nullptr)
        mImpl->DataSet(TranslatedText(mImpl->translation).shown());
}

void ListItemSide::releaseOwnership()
{
    if (mImpl != nullptr)
        mImpl->isOwned = false;
}

void ListItemSide::gainOwnership()
{
    if (mImpl != nullptr)
        mImpl->isOwned = true;
}

KestrelListBoxItem* ListItemSide::getKestrelListItem()
{
    return mImpl.get();
}

} // namespace DisplayAPI
