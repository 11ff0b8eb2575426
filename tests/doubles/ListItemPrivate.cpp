#include "variants/list/ListItemPrivate.h"

#include "doubles/Recorder.h"
#include "widgets/KestrelListBoxItem.h"

#include <utility>

namespace DisplayAPI {

using doubles::Recorder;

/// The recording row.
struct ListItemSide::Impl {
    std::string name;
    KestrelListBoxItem item;
};

ListItemSide::ListItemSide(TranslatedText text, Panel panel)
    : mImpl(new Impl{panel == Panel::FULL ? "ListItemPrivate" : "ListItemPrivateWP1", KestrelListBoxItem(text.shown())})
{
}

ListItemSide::~ListItemSide()
{
    Recorder::instance().note(this, "~" + mImpl->name);
}

ListItemPrivate::ListItemPrivate(std::string text, bool flag) : ListItemSide(TranslatedText(text), Panel::FULL)
{
    Recorder::instance().note(this, "ListItemPrivate", text, flag);
}

ListItemPrivate::ListItemPrivate(TranslationInfo* text, bool flag) : ListItemSide(TranslatedText(text), Panel::FULL)
{
    Recorder::instance().note(this, "ListItemPrivate", text, flag);
}

ListItemPrivateWP1::ListItemPrivateWP1(std::string text, bool flag) : ListItemSide(TranslatedText(text), Panel::SMALL)
{
    Recorder::instance().note(this, "ListItemPrivateWP1", text, flag);
}

ListItemPrivateWP1::ListItemPrivateWP1(TranslationInfo* text, bool flag)
    : ListItemSide(TranslatedText(text), Panel::SMALL)
{
    Recorder::instance().note(this, "ListItemPrivateWP1", text, flag);
}

void ListItemSide::localeChanged(std::string locale)
{
    Recorder::instance().note(this, mImpl->name + "::localeChanged", locale);
}

void ListItemSide::releaseOwnership()
{
    Recorder::instance().note(this, mImpl->name + "::releaseOwnership");
}

void ListItemSide::gainOwnership()
{
    Recorder::instance().note(this, mImpl->name + "::gainOwnership");
}

KestrelListBoxItem* ListItemSide::getKestrelListItem()
{
    return &mImpl->item;
}

} // namespace DisplayAPI
