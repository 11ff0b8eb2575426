#include "host/variants/tree/TreeCore.h"

#include "DisplayAPI/List.h"
#include "host/variants/list/PanelBox.h"
#include "widgets/Peg_TreeListItem.h"

#include <utility>

namespace DisplayAPI {

namespace {

constexpr ListBoxCore::Commands COMMANDS{&List::SELECT_COMMAND, nullptr, &List::BACK_COMMAND};

using Items = Peg_TreeListItem::Children;

Peg_TreeListItem* treeRow(KestrelListBoxItem* row)
{
    return dynamic_cast<Peg_TreeListItem*>(row);
}

Items onTop(const KestrelListBox& box)
{
    Items items;
    for (int row = 0; row < box.numItems(); ++row) {
        Peg_TreeListItem* const item = treeRow(box.itemAt(row));
        if (item != nullptr && item->parent() == nullptr)
            items.push_back(item);
    }
    return items;
}

Items below(const Items& items)
{
    Items all;
    for (const Peg_TreeListItem* item : items)
        all.insert(all.end(), item->children().begin(), item->children().end());
    return all;
}

} // namespace

TreeCore::TreeCore(DisplayablePrivate& self, Displayable* owner, Panel panel, Back back,
                   Commands::Accessor highlightChanged, LocaleChanged localeChanged)
    : ListBoxCore(self, owner, makeBox(panel), back, COMMANDS, std::move(localeChanged)),
      mHighlightChanged(highlightChanged)
{
}

/// What the tree has no use for is the list's.
int TreeCore::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: raise(mHighlightChanged); break;
    case PM_CLICKED:
        if (choose())
            return 0;
        break;
    case PM_RIGHT:
        if (mRightEqualsOK)
            return Message({.wType = PM_CLICKED, .iData = message.iData});
        if (goDeeper())
            return 0;
        break;
    case PM_LEFT:
        if (goBack())
            return 0;
        break;
    default: break;
    }
    return ListBoxCore::Message(message);
}

Peg_TreeListItem* TreeCore::current() const
{
    return box() != nullptr ? treeRow(box()->itemAt(box()->currentRow())) : nullptr;
}

bool TreeCore::choose()
{
    Peg_TreeListItem* const item = current();
    if (item == nullptr)
        return false;
    if (item->isWayBack())
        leave(*item->parent());
    else if (item->isInactive())
        return true;
    else if (item->showsChildren())
        close(*item);
    else if (item->canBeOpened())
        open(*item, false);
    else
        return false;
    return true;
}

/// The user, who is below the row, comes back to it.
void TreeCore::leave(Peg_TreeListItem& item)
{
    item.setOpen(false);
    goTo(item);
}

bool TreeCore::goDeeper()
{
    Peg_TreeListItem* const item = current();
    if (item == nullptr)
        return false;
    if (item->canBeOpened())
        open(*item, false);
    else if (item->showsChildren())
        goTo(*item->children().front());
    else
        return false;
    return true;
}

bool TreeCore::goBack()
{
    Peg_TreeListItem* const item = current();
    if (item == nullptr)
        return false;
    if (item->showsChildren())
        close(*item);
    else if (item->parent() != nullptr)
        goTo(*item->parent());
    else
        return false;
    return true;
}

/// The display is told last, when everything is where it belongs.
void TreeCore::goTo(const Peg_TreeListItem& item)
{
    box()->setCurrentRow(item.row());
    raise(mHighlightChanged);
    changed();
}

void TreeCore::open(Peg_TreeListItem& item, bool all)
{
    change([&](KestrelListBox&) {
        all ? item.setAllOpen(true) : item.setOpen(true);
        for (Peg_TreeListItem* above = item.parent(); above != nullptr; above = above->parent())
            above->setOpen(true);
    });
}

void TreeCore::close(Peg_TreeListItem& item)
{
    change([&](KestrelListBox&) { item.setOpen(false); });
}

/// Level by level from the top, until there is none above the one that is to close.
void TreeCore::closeFrom(int level)
{
    change([&](const KestrelListBox& list) {
        Items items = onTop(list);
        for (int left = level; left > 0 && !items.empty(); --left)
            items = below(items);
        for (Peg_TreeListItem* item : items)
            item->setAllOpen(false);
    });
}

} // namespace DisplayAPI
