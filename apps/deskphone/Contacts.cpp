#include "apps/deskphone/Contacts.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/PhoneBook.h"

namespace deskphone {

Contacts::Contacts(DisplayAPI::Display& display, Screen* parent)
    : Screen(display, parent, "Contacts"), mCard(display, this)
{
}

void Contacts::build()
{
    for (int entry = 0; entry < PhoneBook::size(); ++entry)
        list().append(PhoneBook::name(entry) + ", " + PhoneBook::kind(entry));
}

void Contacts::chosen(int row)
{
    mCard.show(row);
}

} // namespace deskphone
