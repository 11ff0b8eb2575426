#include "apps/deskphone/ContactSearch.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/ListItem.h"
#include "apps/deskphone/ContactBook.h"
#include "apps/deskphone/ContactText.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"

#include <utility>

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::ListItem;
using DisplayAPI::SearchList;
using DisplayAPI::kit::onGuiThread;

namespace {

/// More than anybody looks through: he types on.
constexpr std::size_t MOST_ROWS = 50;

} // namespace

ContactSearch::ContactSearch(const ContactDeeds& deeds, Place& parent)
    : mTelephone(deeds.telephone), mBook(deeds.book), mParent(parent),
      mTitle(&deeds.telephone.languages(), "Contacts.title"), mCard(deeds.telephone, this, deeds.call),
      mMenu(deeds.telephone, deeds.actions(mMenuContact, *this, [this] { mCard.show(mMenuContact); })),
      mCommands([this](Command* command) { answer(command); }), mTyping([this] { find(); })
{
    mList.addCommandListener(&mCommands);
    mList.addItemStateListener(&mTyping);
    mList.setTitle(mTitle.info());
    mBook.addListener([this](ContactId) { note(); });
}

void ContactSearch::open()
{
    find();
    mList.showSearchPopup();
    mTelephone.arriveAt(*this);
    mTelephone.show(mList);
}

void ContactSearch::stopListening()
{
    mCommands.stop();
    mTyping.stop();
    mMenu.stopListening();
}

bool ContactSearch::isShown()
{
    return mTelephone.display().getCurrent() == &mList;
}

/// Commands arrive later than they are raised: what the user did to a screen that has been left meanwhile is void. Who
/// types and chooses at once has the best of what he has typed.
void ContactSearch::answer(Command* command)
{
    if (!isShown())
        return;
    if (command == SearchList::BACK_COMMAND())
        return leave();
    const int row = mList.getSelectedIndex();
    if (row < 0 || row >= static_cast<int>(mFound.size()))
        return;
    const Contact& contact = mFound[static_cast<std::size_t>(row)];
    if (command == SearchList::SELECT_COMMAND())
        return mCard.show(contact);
    mMenuContact = contact;
    mMenu.open();
}

/// The next search begins with nothing.
void ContactSearch::leave()
{
    mList.setSearchText({});
    mParent.open();
}

void ContactSearch::find()
{
    const std::string typed = mList.getSearchText();
    ContactBook::Found found = mBook.search(typed, MOST_ROWS);
    mFound = std::move(found.best);
    onGuiThread([&] {
        mList.clear();
        for (const Contact& contact : mFound)
            mList.append(new ListItem(textOf(contact), false));
        mList.setSelectedIndex(0);
        mList.setCountIndicator(static_cast<int>(mBook.size()));
        mList.setSearchCountIndicator(typed.empty() ? -1 : static_cast<int>(found.count));
    });
}

/// Somebody has come, changed or gone.
void ContactSearch::note()
{
    if (isShown())
        find();
}

} // namespace deskphone
