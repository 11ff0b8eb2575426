#include "apps/deskphone/ContactCard.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/PhoneBook.h"

namespace deskphone {

ContactCard::ContactCard(Telephone& telephone, Place* parent, CallScreen& call)
    : Screen(telephone, parent, "Contacts.title"), mCall(call)
{
}

void ContactCard::show(int entry)
{
    mEntry = entry;
    list().clear();
    list().setTitle(PhoneBook::name(entry));
    list().append(PhoneBook::number(entry));
    list().append(PhoneBook::kind(entry));
    open();
}

void ContactCard::chosen(int)
{
    mCall.begin(*this, PhoneBook::name(mEntry), PhoneBook::number(mEntry));
}

} // namespace deskphone
