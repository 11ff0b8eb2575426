#include "apps/deskphone/Contacts.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "apps/deskphone/ContactBook.h"
#include "apps/deskphone/ContactText.h"
#include "kit/OnGuiThread.h"

#include <algorithm>
#include <memory>

namespace deskphone {

using DisplayAPI::ListItem;
using DisplayAPI::kit::onGuiThread;

Contacts::Contacts(const ContactDeeds& deeds, Place* parent)
    : Screen(deeds.telephone, parent, "Contacts.title"), mBook(deeds.book), mCard(deeds.telephone, this, deeds.call)
{
    setDialer(deeds.call);
    setRowMenu(deeds.actions(mMenuContact, *this, [this] { mCard.show(mMenuContact); }));
    mBook.addListener([this](ContactId id) { note(id); });
}

void Contacts::build()
{
    for (const Contact& contact : begin())
        list().append(textOf(contact));
    mIsComplete = true;
    mIsComplete.notify_all();
}

/// Who comes after this is noted.
std::vector<Contact> Contacts::begin()
{
    const std::lock_guard lock(mMutex);
    std::vector<Contact> all = mBook.all();
    std::ranges::transform(all, std::back_inserter(mRows), &Contact::id);
    mHasBegun = true;
    return all;
}

ContactId Contacts::contactAt(int row) const
{
    const std::lock_guard lock(mMutex);
    return mRows.at(static_cast<std::size_t>(row));
}

/// -1 where he has none.
int Contacts::rowOf(ContactId id) const
{
    const std::lock_guard lock(mMutex);
    const auto found = std::ranges::find(mRows, id);
    return found != mRows.end() ? static_cast<int>(found - mRows.begin()) : -1;
}

void Contacts::chosen(int row)
{
    if (const std::optional<Contact> contact = mBook.find(contactAt(row)); contact)
        mCard.show(*contact);
}

void Contacts::menuOpens(int row)
{
    mMenuContact = mBook.find(contactAt(row)).value_or(Contact());
}

void Contacts::note(ContactId id)
{
    {
        const std::lock_guard lock(mMutex);
        if (!mHasBegun)
            return;
    }
    mIsComplete.wait(false);
    const int row = rowOf(id);
    const std::optional<Contact> contact = mBook.find(id);
    if (!contact && row >= 0)
        remove(row);
    else if (contact && row >= 0)
        renew(row, *contact);
    else if (contact)
        insert(*contact);
}

/// The latest stands first, and the user where he has stood.
void Contacts::insert(const Contact& contact)
{
    {
        const std::lock_guard lock(mMutex);
        mRows.insert(mRows.begin(), contact.id);
    }
    onGuiThread([&] {
        ListItem* const selected = list().getSelected();
        list().insertAt(new ListItem(textOf(contact), false), 0);
        list().setSelected(selected);
    });
}

void Contacts::renew(int row, const Contact& contact)
{
    onGuiThread([&] {
        const std::unique_ptr<ListItem> former(list().getItems().at(static_cast<std::size_t>(row)));
        const bool wasSelected = list().getSelected() == former.get();
        auto* const now = new ListItem(textOf(contact), false);
        list().replace(former.get(), now);
        if (wasSelected)
            list().setSelected(now);
    });
}

void Contacts::remove(int row)
{
    {
        const std::lock_guard lock(mMutex);
        mRows.erase(mRows.begin() + row);
    }
    delete list().removeAt(row);
}

} // namespace deskphone
