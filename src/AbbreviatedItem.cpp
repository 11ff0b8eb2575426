#include "DisplayAPI/AbbreviatedItem.h"

#include "Operations.h"
#include "Variant.h"
#include "variants/telephony/AbbreviatedItemPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { DESTROY = 2, CREATE = 10, CREATE_TRANSLATED = 11 };

} // namespace

struct AbbreviatedItem::Ops
    : Operations<Waits<CREATE, taking<int, IconType, std::string, bool>(&AbbreviatedItem::create)>,
                 Waits<CREATE_TRANSLATED, taking<int, IconType, TranslationInfo*, bool>(&AbbreviatedItem::create)>,
                 Waits<DESTROY, &AbbreviatedItem::destroy>> {};

AbbreviatedItem::AbbreviatedItem(int number, IconType icon, std::string text, bool flag) : ListItem(nullptr)
{
    Ops::call<CREATE>(*this, implementation(), number, icon, std::move(text), flag);
}

AbbreviatedItem::AbbreviatedItem(int number, IconType icon, TranslationInfo* text, bool flag) : ListItem(nullptr)
{
    Ops::call<CREATE_TRANSLATED>(*this, implementation(), number, icon, text, flag);
}

AbbreviatedItem::~AbbreviatedItem()
{
    Ops::call<DESTROY>(*this, implementation());
}

void AbbreviatedItem::create(int number, IconType icon, std::string text, bool flag)
{
    createRow(number, icon, std::move(text), flag);
}

void AbbreviatedItem::create(int number, IconType icon, TranslationInfo* text, bool flag)
{
    createRow(number, icon, text, flag);
}

template <typename Text>
void AbbreviatedItem::createRow(int number, IconType icon, Text text, bool flag)
{
    name = "AbbreviatedItem";
    destroy();
    if (isFullPanel())
        setImplementation(new AbbreviatedItemPrivate(number, icon, std::move(text), flag));
    else
        setImplementation(new AbbreviatedItemPrivateWP1(number, icon, std::move(text), flag));
}

void AbbreviatedItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

ListItemPrivateIfc* AbbreviatedItem::getPrivateImpl()
{
    return implementation();
}

} // namespace DisplayAPI
