#include "apps/deskphone/RowEar.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "kit/Fence.h"

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::Displayable;
using DisplayAPI::ListBoxPrivateIfc;
using DisplayAPI::ListItem;

void RowEar::listenTo(DisplayAPI::List& list)
{
    mList = &list;
    list.addCommandListener(this);
}

void RowEar::stop()
{
    mIsDeaf = true;
    DisplayAPI::kit::Fence().wait();
}

void RowEar::postCommandAction(Command* command, Displayable* displayable)
{
    {
        const ListItem* const row = selectedRow();
        const std::lock_guard lock(mMutex);
        mRows.push_back(row);
    }
    CommandListener::postCommandAction(command, displayable);
}

void RowEar::commandAction(Command* command, Displayable*)
{
    const ListItem* const row = takeRow();
    if (!mIsDeaf)
        mHeard(command, row);
}

/// Of the list's GUI-thread side: the list itself keeps a record of each question on this thread.
const ListItem* RowEar::selectedRow() const
{
    auto* const side = dynamic_cast<ListBoxPrivateIfc*>(mList->getPrivateImpl());
    const int index = side != nullptr ? side->getSelectedIndex() : -1;
    const std::vector<ListItem*> rows = mList->getItems();
    return index >= 0 && index < static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(index)] : nullptr;
}

const ListItem* RowEar::takeRow()
{
    const std::lock_guard lock(mMutex);
    const ListItem* const row = mRows.front();
    mRows.pop_front();
    return row;
}

} // namespace deskphone
