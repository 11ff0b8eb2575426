#include "apps/deskphone/Contacts.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/PhoneBook.h"

namespace deskphone {

Contacts::Contacts(Telephone& telephone, Screen* parent, Call& call)
    : Screen(telephone, parent, "Contacts.title"), mCard(telephone, this, call)
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
