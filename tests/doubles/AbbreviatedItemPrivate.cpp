#include "variants/telephony/AbbreviatedItemPrivate.h"

#include "doubles/Recorder.h"
#include "widgets/KestrelListBoxItem.h"

#include <utility>

namespace DisplayAPI {

using doubles::Recorder;

/// The recording short dial entry.
struct AbbreviatedItemSide::Impl {
    std::string name;
    KestrelListBoxItem item;
};

AbbreviatedItemSide::AbbreviatedItemSide(int, AbbreviatedItem::IconType, TranslatedText text, Panel panel)
    : mImpl(new Impl{panel == Panel::FULL ? "AbbreviatedItemPrivate" : "AbbreviatedItemPrivateWP1",
                     KestrelListBoxItem(text.shown())})
{
}

AbbreviatedItemSide::~AbbreviatedItemSide()
{
    Recorder::instance().note(this, "~" + mImpl->name);
}

AbbreviatedItemPrivate::AbbreviatedItemPrivate(int number, AbbreviatedItem::IconType icon, std::string text, bool flag)
    : AbbreviatedItemSide(number, icon, TranslatedText(text), Panel::FULL)
{
    Recorder::instance().note(this, "AbbreviatedItemPrivate", number, static_cast<int>(icon), text, flag);
}

AbbreviatedItemPrivate::AbbreviatedItemPrivate(int number, AbbreviatedItem::IconType icon, TranslationInfo* text,
                                               bool flag)
    : AbbreviatedItemSide(number, icon, TranslatedText(text), Panel::FULL)
{
    Recorder::instance().note(this, "AbbreviatedItemPrivate", number, static_cast<int>(icon), text, flag);
}

AbbreviatedItemPrivateWP1::AbbreviatedItemPrivateWP1(int number, AbbreviatedItem::IconType icon, std::string text,
                                                     bool flag)
    : AbbreviatedItemSide(number, icon, TranslatedText(text), Panel::SMALL)
{
    Recorder::instance().note(this, "AbbreviatedItemPrivateWP1", number, static_cast<int>(icon), text, flag);
}

AbbreviatedItemPrivateWP1::AbbreviatedItemPrivateWP1(int number, AbbreviatedItem::IconType icon, TranslationInfo* text,
                                                     bool flag)
    : AbbreviatedItemSide(number, icon, TranslatedText(text), Panel::SMALL)
{
    Recorder::instance().note(this, "AbbreviatedItemPrivateWP1", number, static_cast<int>(icon), text, flag);
}

void AbbreviatedItemSide::localeChanged(std::string locale)
{
    Recorder::instance().note(this, mImpl->name + "::localeChanged", locale);
}

void AbbreviatedItemSide::releaseOwnership()
{
    Recorder::instance().note(this, mImpl->name + "::releaseOwnership");
}

void AbbreviatedItemSide::gainOwnership()
{
    Recorder::instance().note(this, mImpl->name + "::gainOwnership");
}

KestrelListBoxItem* AbbreviatedItemSide::getKestrelListItem()
{
    return &mImpl->item;
}

} // namespace DisplayAPI
