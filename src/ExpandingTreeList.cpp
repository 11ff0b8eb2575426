#include "DisplayAPI/ExpandingTreeList.h"

#include "DisplayAPI/ExpandingTreeListItem.h"
#include "DisplayAPI/ExpandingTreeListPrivateIfc.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "GuiThread.h"
#include "Operations.h"
#include "TellRowsChanged.h"
#include "Variant.h"
#include "variants/tree/ExpandingTreeListPrivate.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    CLEANUP = 1,
    APPEND = 2,
    GET_SELECTED = 3,
    SET_TITLE = 4,
    SET_TRANSLATED_TITLE = 5,
    CLEAR = 6,
    GET_SELECTED_INDEX = 7,
    ALIGN = 8,
    UNALIGN = 9,
    SET_READONLY = 10,
    SET_RIGHT_ARROW_EQUALS_OK = 11,
    GET_ITEMS = 12,
    ADD_COMMAND_LISTENER = 13,
    REMOVE_COMMAND_LISTENER = 14
};

using Ifc = ExpandingTreeListPrivateIfc;

} // namespace

struct ExpandingTreeList::Ops
    : Operations<Posts<CREATE, &ExpandingTreeList::create>, Waits<CLEANUP, &ExpandingTreeList::destroy>,
                 Posts<APPEND, &ExpandingTreeList::privateAppend>,
                 Waits<GET_SELECTED, &ExpandingTreeList::findSelected>,
                 Posts<SET_TITLE, taking<const std::string&>(&Ifc::setTitle)>,
                 Posts<SET_TRANSLATED_TITLE, taking<TranslationInfo*>(&Ifc::setTitle)>,
                 Posts<CLEAR, &ExpandingTreeList::privateClear>, Waits<GET_SELECTED_INDEX, &Ifc::getSelectedIndex, -1>,
                 Posts<ALIGN, &Ifc::align>, Posts<UNALIGN, &Ifc::unalign>, Posts<SET_READONLY, &Ifc::setReadonly>,
                 Posts<SET_RIGHT_ARROW_EQUALS_OK, &Ifc::setRightArrowEqualsOK>,
                 Waits<GET_ITEMS, &ExpandingTreeList::items>, Waits<ADD_COMMAND_LISTENER, &Ifc::addCommandListener>,
                 Waits<REMOVE_COMMAND_LISTENER, &Ifc::removeCommandListener>> {};

ExpandingTreeList::ExpandingTreeList(bool backItem)
{
    Ops::call<CREATE>(*this, mImplementation, backItem);
}

ExpandingTreeList::~ExpandingTreeList()
{
    Ops::call<CLEANUP>(*this, mImplementation);
    deleteQueuedItems();
}

/// Once: a second side would have none of the rows.
void ExpandingTreeList::create(bool backItem)
{
    if (mImplementation != nullptr)
        return;
    name = "ExpandingTreeList";
    if (isFullPanel())
        mImplementation = new ExpandingTreeListPrivate(this);
    else
        mImplementation = new ExpandingTreeListPrivateWP1(this, backItem);
}

void ExpandingTreeList::destroy()
{
    const std::vector<ExpandingTreeListItem*> items = std::exchange(mItems, {});
    deletePrivateSide(mImplementation);
    deleteAll(items);
}

/// Last ones first: each is taken out of the row above it from the end.
void ExpandingTreeList::deleteAll(const std::vector<ExpandingTreeListItem*>& items)
{
    std::for_each(items.rbegin(), items.rend(), [](ExpandingTreeListItem* item) { delete item; });
}

/// The list's as well, but nobody will put them into it any more.
void ExpandingTreeList::deleteQueuedItems()
{
    while (const std::unique_ptr<GuiRequestEvent> dropped{dequeueOwnMessage(APPEND)}) {
        delete static_cast<ExpandingTreeListItem*>(dropped->ptrParam1);
        signalComplete(*dropped);
    }
}

void ExpandingTreeList::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* ExpandingTreeList::getPrivateImpl()
{
    return mImplementation;
}

void ExpandingTreeList::cleanup()
{
    Ops::call<CLEANUP>(*this, mImplementation);
}

/// Whoever hears of the row finds it among the items.
void ExpandingTreeList::privateAppend(ExpandingTreeListItem* item)
{
    if (item == nullptr)
        return;
    mItems.push_back(item);
    if (mImplementation != nullptr)
        mImplementation->append(item->getPrivateImplemetation(), item->getLevel());
}

/// Whoever hears that the rows have gone may delete the list.
void ExpandingTreeList::privateClear()
{
    const std::vector<ExpandingTreeListItem*> items = std::exchange(mItems, {});
    if (mImplementation != nullptr)
        mImplementation->clear();
    deleteAll(items);
}

ExpandingTreeListItem* ExpandingTreeList::findSelected()
{
    const int index = mImplementation != nullptr ? mImplementation->getSelectedIndex() : -1;
    const auto place = static_cast<std::size_t>(index);
    return place < mItems.size() ? mItems[place] : nullptr;
}

void ExpandingTreeList::append(ExpandingTreeListItem* item)
{
    Ops::call<APPEND>(*this, mImplementation, item);
}

void ExpandingTreeList::clear()
{
    Ops::call<CLEAR>(*this, mImplementation);
}

std::vector<ExpandingTreeListItem*> ExpandingTreeList::items() const
{
    return mItems;
}

std::vector<ExpandingTreeListItem*> ExpandingTreeList::getExpandingItemsList()
{
    return Ops::call<GET_ITEMS>(*this, mImplementation);
}

void ExpandingTreeList::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void ExpandingTreeList::removeCommandListener(CommandListener* listener)
{
    Ops::call<REMOVE_COMMAND_LISTENER>(*this, mImplementation, listener);
}

ExpandingTreeListItem* ExpandingTreeList::getSelected()
{
    return Ops::call<GET_SELECTED>(*this, mImplementation);
}

int ExpandingTreeList::getSelectedIndex()
{
    return Ops::call<GET_SELECTED_INDEX>(*this, mImplementation);
}

void ExpandingTreeList::setTitle(const std::string& title)
{
    Ops::call<SET_TITLE>(*this, mImplementation, title);
}

void ExpandingTreeList::setTitle(TranslationInfo* title)
{
    Ops::call<SET_TRANSLATED_TITLE>(*this, mImplementation, title);
}

void ExpandingTreeList::align()
{
    Ops::call<ALIGN>(*this, mImplementation);
}

void ExpandingTreeList::unalign()
{
    Ops::call<UNALIGN>(*this, mImplementation);
}

void ExpandingTreeList::setReadonly(int index, bool on)
{
    Ops::call<SET_READONLY>(*this, mImplementation, index, on);
}

void ExpandingTreeList::setRightArrowEqualsOK(bool on)
{
    Ops::call<SET_RIGHT_ARROW_EQUALS_OK>(*this, mImplementation, on);
}

void ExpandingTreeList::localeChanged(std::string locale)
{
    onlyOnGuiThread("ExpandingTreeList::localeChanged()");
    for (ExpandingTreeListItem* item : mItems) {
        if (ListItemPrivateIfc* const row = item->getPrivateImplemetation())
            row->localeChanged(locale);
    }
    tellRowsChanged(mImplementation);
}

} // namespace DisplayAPI
