#include "PhonebookItemPrivate.h"

#include <utility>

namespace DisplayAPI {

PhonebookItemPrivate::PhonebookItemPrivate(PhonebookItem::IconType icon, bool isPreferred, TranslatedText text)
    : mText(std::move(text)), mItem(new PhonebookListItem(mText.shown(), icon, isPreferred))
{
}

PhonebookItemPrivate::PhonebookItemPrivate(PhonebookItem::IconType icon, bool isPreferred, std::string text, bool)
    : PhonebookItemPrivate(icon, isPreferred, TranslatedText(std::move(text)))
{
}

PhonebookItemPrivate::PhonebookItemPrivate(PhonebookItem::IconType icon, bool isPreferred, TranslationInfo* text, bool)
    : PhonebookItemPrivate(icon, isPreferred, TranslatedText(text))
{
}

void PhonebookItemPrivate::localeChanged(std::string)
{
    if (mText.isTranslated())
        mItem->DataSet(mText.shown());
}

void PhonebookItemPrivate::releaseOwnership()
{
    mOwnership.releaseOwnership();
}

void PhonebookItemPrivate::gainOwnership()
{
    mOwnership.gainOwnership();
}

KestrelListBoxItem* PhonebookItemPrivate::getKestrelListItem()
{
    return mItem;
}

} // namespace DisplayAPI
