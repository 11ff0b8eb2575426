#include "apps/deskphone/ContactCard.h"

#include "DisplayAPI/List.h"
#include "apps/deskphone/CallScreen.h"

namespace deskphone {

namespace {

constexpr std::size_t ROWS_OF_A_NUMBER = 2;

} // namespace

ContactCard::ContactCard(Telephone& telephone, Place* parent, CallScreen& call)
    : Screen(telephone, parent, "Contacts.title"), mCall(call)
{
}

void ContactCard::show(const Contact& contact)
{
    mContact = contact;
    list().clear();
    list().setTitle(contact.name);
    for (const ContactNumber& number : contact.numbers) {
        list().append(number.number);
        list().append(number.kind);
    }
    open();
}

void ContactCard::chosen(int row)
{
    mCall.begin(*this, mContact.name, mContact.numbers.at(static_cast<std::size_t>(row) / ROWS_OF_A_NUMBER).number);
}

} // namespace deskphone
