#pragma once

#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/Sequence.h"
#include "Log.h"
#include "widgets/KestrelListBoxItem.h"

#include <algorithm>
#include <string>

namespace DisplayAPI {

/// What the screens of list items do with their rows: the facade keeps them in its order, and its private side, which
/// may be null, shows them. Made for one change or question. GUI thread only.
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
        if (mSide != nullptr)
            mSide->append(row);
        mItems.append(item);
    }

    void insertAt(ListItem* item, int index)
    {
        mLog(TRACE, 508, "DAPI::%s::privateInsertAt() this: %p\n", mName, mScreen);
        if (item == nullptr)
            return;
        if (mSide != nullptr)
            mSide->insertAt(item->getPrivateImplemetation(), index);
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
        if (mSide != nullptr)
            mSide->removeAt(index, item->getPrivateImplemetation());
        mItems.erase(position);
        return item;
    }

    void remove(ListItem* item)
    {
        mLog(TRACE, 552, "DAPI::%s::privateRemove() this: %p\n", mName, mScreen);
        if (item == nullptr)
            return;
        const int position = positionOf(item);
        if (mSide != nullptr)
            mSide->remove(item->getPrivateImplemetation());
        if (position >= 0)
            mItems.erase(position);
    }

    void removeAll()
    {
        mItems.forEach([this](ListItem* item) {
            if (mSide != nullptr)
                mSide->remove(item->getPrivateImplemetation());
        });
        mItems.clear();
    }

    void replace(ListItem* oldItem, ListItem* newItem)
    {
        if (newItem == nullptr)
            return;
        if (oldItem == nullptr)
            return append(newItem);
        const int position = positionOf(oldItem);
        if (mSide != nullptr)
            mSide->remove(oldItem->getPrivateImplemetation());
        if (position < 0)
            return append(newItem);
        if (mSide != nullptr)
            mSide->insertAt(newItem->getPrivateImplemetation(), position);
        mItems.replace(newItem, position);
    }

    /// Deletes them.
    void clear()
    {
        if (mSide != nullptr)
            mSide->clear();
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
