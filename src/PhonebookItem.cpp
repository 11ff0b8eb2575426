#include "DisplayAPI/PhonebookItem.h"

#include "Operations.h"
#include "PhonebookItemPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { DESTROY = 2, CREATE = 10, CREATE_TRANSLATED = 11 };

constexpr int KINDS_OF_NUMBERS = 5;

} // namespace

struct PhonebookItem::Ops
    : Operations<Waits<CREATE, taking<IconType, bool, std::string, bool>(&PhonebookItem::create)>,
                 Waits<CREATE_TRANSLATED, taking<IconType, bool, TranslationInfo*, bool>(&PhonebookItem::create)>,
                 Waits<DESTROY, &PhonebookItem::destroy>> {};

PhonebookItem::PhonebookItem(IconType icon, bool isPreferred, std::string text, bool flag) : ListItem(nullptr)
{
    Ops::call<CREATE>(*this, implementation(), icon, isPreferred, std::move(text), flag);
}

/// Both constructors send the same request, which has no translation in it.
PhonebookItem::PhonebookItem(IconType icon, bool isPreferred, TranslationInfo* text, bool flag) : ListItem(nullptr)
{
    if (isGuiThread())
        create(icon, isPreferred, text, flag);
    else
        Ops::call<CREATE>(*this, implementation(), icon, isPreferred, std::string(), flag);
}

PhonebookItem::~PhonebookItem()
{
    Ops::call<DESTROY>(*this, implementation());
}

void PhonebookItem::create(IconType icon, bool isPreferred, std::string text, bool flag)
{
    createRow(icon, isPreferred, std::move(text), flag);
}

void PhonebookItem::create(IconType icon, bool isPreferred, TranslationInfo* text, bool flag)
{
    createRow(icon, isPreferred, text, flag);
}

template <typename Text>
void PhonebookItem::createRow(IconType icon, bool isPreferred, Text text, bool flag)
{
    name = "PhonebookItem";
    destroy();
    setImplementation(new PhonebookItemPrivate(icon, isPreferred, std::move(text), flag));
}

void PhonebookItem::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

ListItemPrivateIfc* PhonebookItem::getPrivateImpl()
{
    return implementation();
}

void PhonebookItem::rewritePhonebookListItem(IconType, bool, const std::string&, bool) {}

void PhonebookItem::rewritePhonebookListItem(IconType, bool, TranslationInfo*, bool) {}

PhonebookItem::IconType PhonebookItem::callPartyIconToIconType(const CallPartyIdentifier::PhoneNumberIconType& type)
{
    return type >= 0 && type < KINDS_OF_NUMBERS ? static_cast<IconType>(type + 1) : ICON_NONE;
}

} // namespace DisplayAPI
