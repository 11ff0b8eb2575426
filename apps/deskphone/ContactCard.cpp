#include "apps/deskphone/ContactCard.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/PhoneBook.h"

namespace deskphone {

ContactCard::ContactCard(DisplayAPI::Display& display, Screen* parent) : Screen(display, parent, "Contact") {}

void ContactCard::show(int entry)
{
    list().clear();
    list().setTitle(PhoneBook::name(entry));
    list().append(PhoneBook::number(entry));
    list().append(PhoneBook::kind(entry));
    open();
}

} // namespace deskphone
