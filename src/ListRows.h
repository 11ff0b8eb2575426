#pragma once

#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/Sequence.h"
#include "Log.h"
#include "Survival.h"
#include "widgets/KestrelListBoxItem.h"

#include <algorithm>
#include <string>

namespace DisplayAPI {

/// What the screens of list items do with their rows: the facade keeps them in its order, and its private side, which
/// may be null, shows them. Made for one change or question. GUI thread only.
///
/// Whoever observes the screen may delete it when the side tells of a change. It deletes what is in the list then; a
/// row that is not in it yet is deleted here.
template <typename Side>
class ListRows {
public:
    /// `className` is what the log calls the screen.
    ListRows(const Log& log, const char* className, void* screen, Sequence<ListItem>& items, Side* side)
        : mLog(log), mName(className), mScreen(screen), mItems(items), mSide(side)
    {
    }

    /// A row without a GUI-thread side stays the caller's.
    void append(ListItem* item)
    {
        mLog(TRACE, 494, "DAPI::%s::privateAppend() this: %p\n", mName, mScreen);
        ListItemPrivateIfc* const row = item != nullptr ? item->getPrivateImplemetation() : nullptr;
        if (row == nullptr)
            return;
        if (lives([&] { mSide->append(row); }, item))
            mItems.append(item);
    }

    void insertAt(ListItem* item, int index)
    {
        mLog(TRACE, 508, "DAPI::%s::privateInsertAt() this: %p\n", mName, mScreen);
        if (item == nullptr)
            return;
        if (lives([&] { mSide->insertAt(item->getPrivateImplemetation(), index); }, item))
            mItems.insert(item, std::clamp(index, 0, mItems.size()));
    }

    ListItem* removeAt(int index)
    {
        mLog(TRACE, 526, "DAPI::%s::privateRemoveAt() this: %p\n", mName, mScreen);
        const int position = std::max(index, 0);
        ListItem* const item = mItems.at(position);
        if (item == nullptr) {
            mLog(REFUSED, 540, "DAPI::%s::removeAt() this %p, cannot remove item at index %d", mName, mScreen, index);
            return nullptr;
        }
        if (!lives([&] { mSide->removeAt(index, item->getPrivateImplemetation()); }))
            return nullptr;
        mItems.erase(position);
        return item;
    }

    void remove(ListItem* item)
    {
        mLog(TRACE, 552, "DAPI::%s::privateRemove() this: %p\n", mName, mScreen);
        if (item == nullptr)
            return;
        const int position = positionOf(item);
        if (lives([&] { mSide->remove(item->getPrivateImplemetation()); }) && position >= 0)
            mItems.erase(position);
    }

    void removeAll()
    {
        const Survival survival(mScreen);
        for (ListItem* item : mItems.copy()) {
            if (mSide != nullptr)
                mSide->remove(item->getPrivateImplemetation());
            if (!survival)
                return;
        }
        mItems.clear();
    }

    void replace(ListItem* oldItem, ListItem* newItem)
    {
        if (newItem == nullptr)
            return;
        if (oldItem == nullptr)
            return append(newItem);
        const int position = positionOf(oldItem);
        if (!lives([&] { mSide->remove(oldItem->getPrivateImplemetation()); }, newItem))
            return;
        if (position < 0)
            return append(newItem);
        if (lives([&] { mSide->insertAt(newItem->getPrivateImplemetation(), position); }, newItem))
            mItems.replace(newItem, position);
    }

    /// Deletes them.
    void clear()
    {
        if (lives([&] { mSide->clear(); }))
            deleteItems();
    }

    void deleteItems()
    {
        mItems.forEach([](ListItem* item) { delete item; });
        mItems.clear();
    }

    /// Null where there is none.
    ListItem* selected() const
    {
        ListItem* const item = mItems.at(mSide != nullptr ? mSide->getSelectedIndex() : -1);
        if (item == nullptr)
            mLog(TRACE, 640, "DAPI::%s::findSelectedItem() this: %p returns NULL\n", mName, mScreen);
        else
            mLog(TRACE, 648, "DAPI::%s::findSelectedItem() this: %p returns %p\n", mName, mScreen,
                 static_cast<void*>(item));
        return item;
    }

    void localeChanged(const std::string& locale)
    {
        mItems.forEach([&](ListItem* item) {
            if (ListItemPrivateIfc* const row = item->getPrivateImplemetation())
                row->localeChanged(locale);
        });
    }

private:
    /// Whether the screen does after `change`, which is left out where there is no side; otherwise deletes `newItem`.
    template <typename Change>
    bool lives(Change change, ListItem* newItem = nullptr)
    {
        const Survival survival(mScreen);
        if (mSide != nullptr)
            change();
        if (!survival)
            delete newItem;
        return static_cast<bool>(survival);
    }

    /// A row's widget knows its place, which is mostly the item's; otherwise the items are looked through.
    int positionOf(ListItem* item) const
    {
        ListItemPrivateIfc* const row = item->getPrivateImplemetation();
        const KestrelListBoxItem* const widget = row != nullptr ? row->getKestrelListItem() : nullptr;
        return mItems.find(item, widget != nullptr ? widget->row() : -1);
    }

    const Log& mLog;
    const char* mName;
    void* mScreen;
    Sequence<ListItem>& mItems;
    Side* mSide;
};

} // namespace DisplayAPI
