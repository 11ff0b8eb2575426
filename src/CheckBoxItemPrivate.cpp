#include "CheckBoxItemPrivate.h"

#include <utility>

namespace DisplayAPI {

CheckBoxItemPrivate::CheckBoxItemPrivate(TranslatedText text)
    : mText(std::move(text)), mItem(new CheckBoxListItem(mText.shown()))
{
}

CheckBoxItemPrivate::CheckBoxItemPrivate(std::string text) : CheckBoxItemPrivate(TranslatedText(std::move(text))) {}

CheckBoxItemPrivate::CheckBoxItemPrivate(TranslationInfo* text, Image*) : CheckBoxItemPrivate(TranslatedText(text)) {}

int CheckBoxItemPrivate::Message(const PegMessage& message)
{
    if (message.wType == PM_APPLICATION_CHANGED)
        updateText();
    return 0;
}

void CheckBoxItemPrivate::localeChanged(std::string)
{
    updateText();
}

void CheckBoxItemPrivate::updateText()
{
    if (mText.isTranslated())
        mItem->DataSet(mText.shown());
}

void CheckBoxItemPrivate::releaseOwnership()
{
    mOwnership.releaseOwnership();
}

void CheckBoxItemPrivate::gainOwnership()
{
    mOwnership.gainOwnership();
}

bool CheckBoxItemPrivate::hasOwnership() const
{
    return mOwnership.hasOwnership();
}

KestrelListBoxItem* CheckBoxItemPrivate::getKestrelListItem()
{
    return mItem;
}

bool CheckBoxItemPrivate::isChecked()
{
    return mItem->isChecked();
}

void CheckBoxItemPrivate::swapChecked()
{
    mItem->swapChecked();
}

void CheckBoxItemPrivate::setChecked(bool on)
{
    mItem->setChecked(on);
}

} // namespace DisplayAPI
