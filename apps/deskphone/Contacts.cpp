#include "apps/deskphone/Contacts.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/PhoneBook.h"
#include "apps/deskphone/Telephone.h"

#include <numeric>

namespace deskphone {

Contacts::Contacts(Telephone& telephone, Place* parent, CallScreen& call)
    : Screen(telephone, parent, "Contacts.title"), mCard(telephone, this, call), mCall(call),
      mEntries(static_cast<std::size_t>(PhoneBook::size()))
{
    std::iota(mEntries.begin(), mEntries.end(), 0);
    setDialer(call);
    setRowMenu(
        {{"Row.call",
          [this] { mCall.begin(*this, PhoneBook::name(entryAt(mMenuRow)), PhoneBook::number(entryAt(mMenuRow))); }},
         {"Row.details", [this] { chosen(mMenuRow); }},
         {"Row.copy", [this] { this->telephone().copy(PhoneBook::number(entryAt(mMenuRow))); }},
         {"Row.delete", [this] { forget(mMenuRow); }}});
}

void Contacts::build()
{
    for (int entry = 0; entry < PhoneBook::size(); ++entry)
        list().append(PhoneBook::name(entry) + ", " + PhoneBook::kind(entry));
}

void Contacts::chosen(int row)
{
    mCard.show(entryAt(row));
}

/// Rows are still appended behind those that the user sees.
void Contacts::forget(int row)
{
    mEntries.erase(mEntries.begin() + row);
    delete list().removeAt(row);
}

} // namespace deskphone
