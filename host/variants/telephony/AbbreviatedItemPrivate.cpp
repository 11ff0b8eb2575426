#include "variants/telephony/AbbreviatedItemPrivate.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "host/widgets/telephony/LinesRow.h"
#include "host/widgets/telephony/PhonebookIcons.h"
#include "utilities/ICC.h"

#include <utility>

namespace DisplayAPI {

struct AbbreviatedItemSide::Impl {
    void show();

    int number;
    AbbreviatedItem::IconType icon;
    TranslatedText text;
    host::LinesRow* row = new host::LinesRow("AbbreviatedItem");
    OwnershipDelegate<host::LinesRow> ownership{&row, true};
};

/// The number is no part of the row's text: who asks for that wants the entry's.
void AbbreviatedItemSide::Impl::show()
{
    const bool isNumbered = icon == AbbreviatedItem::ICON_NUMBER;
    const std::string shown = (isNumbered ? std::to_string(number) + ' ' : std::string()) + text.text();
    host::LinesLook look;
    look.lines.front() = {.text = ICC::fromUTF8toUNICODE(shown), .icon = host::phonebookIcon(icon)};
    look.hasIcons = !isNumbered;
    row->show(std::move(look), text.shown());
}

/// Short dial entries look alike on both panels; what differs is the list's.
AbbreviatedItemSide::AbbreviatedItemSide(int number, AbbreviatedItem::IconType icon, TranslatedText text, Panel)
    : mImpl(new Impl{.number = number, .icon = icon, .text = std::move(text)})
{
    mImpl->show();
}

AbbreviatedItemSide::~AbbreviatedItemSide() = default;

AbbreviatedItemPrivate::AbbreviatedItemPrivate(int number, AbbreviatedItem::IconType icon, std::string text, bool)
    : AbbreviatedItemSide(number, icon, TranslatedText(std::move(text)), Panel::FULL)
{
}

AbbreviatedItemPrivate::AbbreviatedItemPrivate(int number, AbbreviatedItem::IconType icon, TranslationInfo* text, bool)
    : AbbreviatedItemSide(number, icon, TranslatedText(text), Panel::FULL)
{
}

AbbreviatedItemPrivateWP1::AbbreviatedItemPrivateWP1(int number, AbbreviatedItem::IconType icon, std::string text, bool)
    : AbbreviatedItemSide(number, icon, TranslatedText(std::move(text)), Panel::SMALL)
{
}

AbbreviatedItemPrivateWP1::AbbreviatedItemPrivateWP1(int number, AbbreviatedItem::IconType icon, TranslationInfo* text,
                                                     bool)
    : AbbreviatedItemSide(number, icon, TranslatedText(text), Panel::SMALL)
{
}

void AbbreviatedItemSide::localeChanged(std::string)
{
    mImpl->show();
}

void AbbreviatedItemSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void AbbreviatedItemSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

KestrelListBoxItem* AbbreviatedItemSide::getKestrelListItem()
{
    return mImpl->row;
}

} // namespace DisplayAPI
