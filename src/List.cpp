#include "DisplayAPI/List.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/Ticker.h"
#include "Log.h"
#include "Request.h"
#include "Variant.h"
#include "utilities/HardwareVersion.h"
#include "variants/list/ListBoxPrivate.h"
#include "variants/list/ListBoxPrivateWP1.h"

#include <algorithm>
#include <cstddef>

namespace DisplayAPI {

namespace {

constexpr Log gLog{"DisplayAPI::List", "./src/List.cpp"};

enum Request {
    CREATE = 0,
    CLEAN_UP = 1,
    APPEND_TEXT = 5,
    APPEND_TRANSLATED = 6,
    APPEND_ITEM = 7,
    CLEAR = 8,
    GET_SELECTED = 9,
    SET_SELECTED = 10,
    GET_SELECTED_INDEX = 11,
    SET_SELECTED_INDEX = 12,
    INSERT_AT = 13,
    REMOVE_AT = 14,
    REMOVE = 15,
    REMOVE_ALL = 16,
    REPLACE = 17,
    SIZE = 18,
    HIDE = 19,
    SET_TICKER = 20,
    GET_TICKER = 21,
    SET_TITLE = 22,
    SET_TITLE_TRANSLATED = 23,
    SET_SYSTEM_WINDOW_SIZE = 24,
    SET_SYSTEM_WINDOW_TEXT = 25,
    REMOVE_COMMAND_LISTENER = 26,
    ADD_COMMAND_LISTENER = 27,
    SHOW_DIALLER_ON_INITIAL_KEY_EVENT = 28,
    ADD_DIALER = 29,
    GET_DIALER = 30,
    GET_ITEMS = 31,
    SET_SELECTION_HIGHLIGHT = 32
};

constexpr bool POST = true;
constexpr bool WAIT = false;

/// What a clear makes pointless.
std::set<int>* supersededByClear()
{
    static std::set<int> codes{APPEND_TEXT, APPEND_TRANSLATED, APPEND_ITEM, CLEAR, SET_SELECTED, INSERT_AT,
                               REMOVE,      REMOVE_ALL,        REPLACE};
    return &codes;
}

/// The panel's sub-variant with a key that goes back.
constexpr int NO_BACK_SUB_VARIANT = 3;

} // namespace

List::List(int listType)
{
    postEventHelper(POST, helperRequest(this, CREATE, backFlagFor(listType)));
}

List::List(ListBoxPrivateIfc* implementation) : mImplementation(implementation) {}

List::~List()
{
    postEventHelper(WAIT, helperRequest(this, CLEAN_UP));
}

bool List::backFlagFor(int listType)
{
    if (isFullPanel())
        return listType == 2 || listType == 3;
    return (listType == 1 || listType == 3) && HardwareVersion::getHWSubVariant() != NO_BACK_SUB_VARIANT;
}

void List::create(bool backFlag)
{
    name = "List";
    if (isFullPanel()) {
        mImplementation = new ListBoxPrivate(this, backFlag);
    } else {
        mHasBackItem = backFlag;
        mImplementation = new ListBoxPrivateWP1(this, backFlag);
    }
}

void List::processGuiRequest(GuiRequestEvent& request)
{
    switch (request.getType()) {
    case CREATE: create(request.boolParam1); break;
    case CLEAN_UP: cleanup(); break;
    case APPEND_TEXT: createAndAppendItem(request.stringParam1); break;
    case APPEND_TRANSLATED: createAndAppendItem(pointer<TranslationInfo>(request.ptrParam1)); break;
    case APPEND_ITEM: privateAppend(pointer<ListItem>(request.ptrParam1)); break;
    case CLEAR: privateClear(); break;
    case GET_SELECTED: answer<ListItem*>(request, findSelectedItem()); break;
    case INSERT_AT: privateInsertAt(pointer<ListItem>(request.ptrParam1), request.intParam1); break;
    case REMOVE_AT: answer<ListItem*>(request, privateRemoveAt(request.intParam1)); break;
    case REMOVE: privateRemove(pointer<ListItem>(request.ptrParam1)); break;
    case REMOVE_ALL: privateRemoveAll(); break;
    case REPLACE: privateReplace(pointer<ListItem>(request.ptrParam1), pointer<ListItem>(request.ptrParam2)); break;
    case SET_TICKER: privateSetTicker(pointer<Ticker>(request.ptrParam1)); break;
    case ADD_DIALER: privateAddDialer(pointer<PopupDialer>(request.ptrParam1)); break;
    default:
        if (mImplementation != nullptr)
            processImplementationRequest(request);
        break;
    }
    signalComplete(request);
}

/// The requests that only the implementation has a part in. GET_TICKER, GET_DIALER and GET_ITEMS have none at all:
/// their round trip puts the call behind the caller's earlier requests.
void List::processImplementationRequest(GuiRequestEvent& request)
{
    ListBoxPrivateIfc& list = *mImplementation;
    switch (request.getType()) {
    case SET_SELECTED:
        if (auto* item = pointer<ListItem>(request.ptrParam1))
            list.setSelected(item->getPrivateImplemetation());
        break;
    case GET_SELECTED_INDEX: answer<int>(request, list.getSelectedIndex()); break;
    case SET_SELECTED_INDEX: list.setSelectedIndex(request.intParam1); break;
    case SIZE: answer<int>(request, list.size()); break;
    case HIDE: list.hide(); break;
    case SET_TITLE: list.setTitle(request.stringParam1); break;
    case SET_TITLE_TRANSLATED: list.setTitle(pointer<TranslationInfo>(request.ptrParam1)); break;
    case SET_SYSTEM_WINDOW_SIZE: list.setSystemWindowSize(request.intParam1); break;
    case SET_SYSTEM_WINDOW_TEXT: list.setSystemWindowText(request.intParam1, request.stringParam1); break;
    case REMOVE_COMMAND_LISTENER: list.removeCommandListener(pointer<CommandListener>(request.ptrParam1)); break;
    case ADD_COMMAND_LISTENER: list.addCommandListener(pointer<CommandListener>(request.ptrParam1)); break;
    case SHOW_DIALLER_ON_INITIAL_KEY_EVENT: list.showDiallerOnInitialKeyEvent(request.boolParam1); break;
    case SET_SELECTION_HIGHLIGHT: list.setSelectionHighlight(request.boolParam1); break;
    default: break;
    }
}

DisplayablePrivateIfc* List::getPrivateImpl()
{
    return mImplementation;
}

void List::cleanup()
{
    gLog(TRACE, 148, "DAPI::List::cleanup() this: %p\n", static_cast<void*>(this));
    if (mImplementation != nullptr)
        leaveDisplay();
    delete mImplementation;
    mImplementation = nullptr;
    deleteItems();
}

void List::align() {}

void List::align(Displayable&) {}

void List::unalign() {}

void List::append(const std::string& text)
{
    gLog(TRACE, 176, "DAPI::List::append() this: %p , text %s\n", static_cast<void*>(this), text.c_str());
    postEventHelper(POST, helperRequest(this, APPEND_TEXT, text));
}

void List::append(TranslationInfo* text)
{
    gLog(TRACE, 186, "DAPI::List::append() this: %p tinfo: %p\n", static_cast<void*>(this), static_cast<void*>(text));
    postEventHelper(POST, helperRequest(this, APPEND_TRANSLATED, text));
}

void List::append(ListItem* item)
{
    // Asking a row for its text waits for the GUI thread: only the log is worth that.
    if (loggingOnUni())
        gLog(TRACE, 196, "DAPI::List::append() this: %p listItem: %p, %s\n", static_cast<void*>(this),
             static_cast<void*>(item), item != nullptr ? item->getText().c_str() : "");
    postEventHelper(POST, helperRequest(this, APPEND_ITEM, item));
}

void List::appendItems(const std::string&) {}

void List::appendItems(TranslationInfo*) {}

void List::clear()
{
    gLog(TRACE, 222, "DAPI::List::clear() this: %p\n", static_cast<void*>(this));
    if (isGuiThread())
        return privateClear();
    purgeOwnMessage(supersededByClear());
    postEventAsync(CLEAR);
}

std::vector<ListItem*> List::getItems() const
{
    gLog(TRACE, 240, "DAPI::List::getItems() this: %p\n", static_cast<const void*>(this));
    waitForEarlierRequests();
    return mItems;
}

ListItem* List::getSelected()
{
    ListItem* selected = nullptr;
    postEventHelper(WAIT, helperRequest(this, GET_SELECTED, into(selected)));
    gLog(TRACE, 258, "*** DAPI::List::getSelected() this: %p returns %p\n", static_cast<void*>(this),
         static_cast<void*>(selected));
    return selected;
}

void List::setSelected(ListItem* item)
{
    gLog(TRACE, 266, "*** DAPI::List::setSelected() this: %p item %p\n", static_cast<void*>(this),
         static_cast<void*>(item));
    postEventHelper(POST, helperRequest(this, SET_SELECTED, item));
}

void List::setSelectedIndex(int index)
{
    gLog(TRACE, 276, "DAPI::List::setSelectedIndex() this: %p index %d\n", static_cast<void*>(this), index);
    postEventHelper(POST, helperRequest(this, SET_SELECTED_INDEX, index));
}

int List::getSelectedIndex()
{
    int index = -1;
    postEventHelper(WAIT, helperRequest(this, GET_SELECTED_INDEX, into(index)));
    gLog(TRACE, 290, "*** DAPI::List::getSelectedIndex() this: %p returns %d\n", static_cast<void*>(this), index);
    return index;
}

void List::insertAt(ListItem* item, int index)
{
    gLog(TRACE, 298, "DAPI::List::insertAt() this: %p item %p index %d\n", static_cast<void*>(this),
         static_cast<void*>(item), index);
    postEventHelper(POST, helperRequest(this, INSERT_AT, item, index));
}

ListItem* List::removeAt(int index)
{
    gLog(TRACE, 308, "DAPI::List::removeAt() this: %p index %d\n", static_cast<void*>(this), index);
    ListItem* removed = nullptr;
    postEventHelper(WAIT, helperRequest(this, REMOVE_AT, index, into(removed)));
    return removed;
}

void List::remove(ListItem* item)
{
    gLog(TRACE, 320, "DAPI::List::remove() this: %p item %p\n", static_cast<void*>(this), static_cast<void*>(item));
    postEventHelper(POST, helperRequest(this, REMOVE, item));
}

void List::removeAll()
{
    postEventHelper(POST, helperRequest(this, REMOVE_ALL));
}

void List::replace(ListItem* oldItem, ListItem* newItem)
{
    postEventHelper(POST, helperRequest(this, REPLACE, oldItem, newItem));
}

int List::size()
{
    int rows = -1;
    postEventHelper(WAIT, helperRequest(this, SIZE, into(rows)));
    gLog(TRACE, 352, "DAPI::List::size() this: %p returns %d\n", static_cast<void*>(this), rows);
    return rows;
}

void List::setTitle(const std::string& title)
{
    postEventHelper(POST, helperRequest(this, SET_TITLE, title));
}

void List::setTitle(TranslationInfo* title)
{
    postEventHelper(POST, helperRequest(this, SET_TITLE_TRANSLATED, title));
}

void List::setSystemWindowSize(int lines)
{
    postEventHelper(POST, helperRequest(this, SET_SYSTEM_WINDOW_SIZE, lines));
}

void List::setSystemWindowText(int line, const std::string& text)
{
    postEventHelper(POST, helperRequest(this, SET_SYSTEM_WINDOW_TEXT, line, text));
}

void List::addCommandListener(CommandListener* listener)
{
    postEventHelper(POST, helperRequest(this, ADD_COMMAND_LISTENER, listener));
}

void List::removeCommandListener(CommandListener* listener)
{
    postEventHelper(POST, helperRequest(this, REMOVE_COMMAND_LISTENER, listener));
}

void List::hide()
{
    postEventHelper(POST, helperRequest(this, HIDE));
}

void List::localeChanged(std::string locale)
{
    for (ListItem* item : mItems) {
        ListItemPrivateIfc* row = item != nullptr ? item->getPrivateImplemetation() : nullptr;
        if (row != nullptr)
            row->localeChanged(locale);
    }
}

void List::setTicker(Ticker* ticker)
{
    postEventHelper(POST, helperRequest(this, SET_TICKER, ticker));
}

Ticker* List::getTicker()
{
    waitForEarlierRequests(GET_TICKER);
    return mTicker;
}

void List::showDiallerOnInitialKeyEvent(bool on)
{
    postEventHelper(POST, helperRequest(this, SHOW_DIALLER_ON_INITIAL_KEY_EVENT, on));
}

void List::setSelectionHighlight(bool on)
{
    postEventHelper(POST, helperRequest(this, SET_SELECTION_HIGHLIGHT, on));
}

void List::addDialer(PopupDialer* dialer)
{
    postEventHelper(POST, helperRequest(this, ADD_DIALER, dialer));
}

PopupDialer* List::getDialer()
{
    waitForEarlierRequests(GET_DIALER);
    return mDialer;
}

void List::waitForEarlierRequests() const
{
    waitForEarlierRequests(GET_ITEMS);
}

void List::waitForEarlierRequests(int code) const
{
    if (!isGuiThread())
        const_cast<List*>(this)->postEvent(code);
}

void List::setUsedWithTab(bool, Displayable*) {}

void List::setWrapAround(bool) {}

void List::setEnabled(bool) {}

void List::suppressAutoRightArrowForSoftKeys() {}

void List::createAndAppendItem(const std::string& text)
{
    gLog(TRACE, 478, "DAPI::List::createAndAppendItem() this: %p\n", static_cast<void*>(this));
    takeOver(new ListItem(text, true));
}

void List::createAndAppendItem(TranslationInfo* text)
{
    gLog(TRACE, 486, "DAPI::List::createAndAppendItem() this: %p\n", static_cast<void*>(this));
    takeOver(new ListItem(text, true));
}

/// On a thread that carries a request out without being the GUI thread, append() would post under the request's lock.
void List::takeOver(ListItem* item)
{
    if (isGuiThread())
        append(item);
    else
        privateAppend(item);
}

void List::privateAppend(ListItem* item)
{
    gLog(TRACE, 494, "DAPI::List::privateAppend() this: %p\n", static_cast<void*>(this));
    ListItemPrivateIfc* row = item != nullptr ? item->getPrivateImplemetation() : nullptr;
    if (row == nullptr)
        return;
    if (mImplementation != nullptr)
        mImplementation->append(row);
    mItems.push_back(item);
}

void List::privateInsertAt(ListItem* item, int index)
{
    gLog(TRACE, 508, "DAPI::List::privateInsertAt() this: %p\n", static_cast<void*>(this));
    if (item == nullptr || mImplementation == nullptr)
        return;
    mImplementation->insertAt(item->getPrivateImplemetation(), index);
    const auto position = std::clamp<std::ptrdiff_t>(index, 0, static_cast<std::ptrdiff_t>(mItems.size()));
    mItems.insert(mItems.begin() + position, item);
}

ListItem* List::find(int index) const
{
    return static_cast<std::size_t>(index) < mItems.size() ? mItems[static_cast<std::size_t>(index)] : nullptr;
}

ListItem* List::privateRemoveAt(int index)
{
    gLog(TRACE, 526, "DAPI::List::privateRemoveAt() this: %p\n", static_cast<void*>(this));
    const int position = std::max(index, 0);
    ListItem* const item = find(position);
    if (item == nullptr) {
        gLog(REFUSED, 540, "DAPI::List::removeAt() this %p, cannot remove item at index %d", static_cast<void*>(this),
             index);
        return nullptr;
    }
    if (mImplementation != nullptr)
        mImplementation->removeAt(index, item->getPrivateImplemetation());
    mItems.erase(mItems.begin() + position);
    return item;
}

void List::privateRemove(ListItem* item)
{
    gLog(TRACE, 552, "DAPI::List::privateRemove() this: %p\n", static_cast<void*>(this));
    if (item == nullptr)
        return;
    if (mImplementation != nullptr)
        mImplementation->remove(item->getPrivateImplemetation());
    if (const auto found = std::find(mItems.begin(), mItems.end(), item); found != mItems.end())
        mItems.erase(found);
}

void List::privateRemoveAll()
{
    for (ListItem* item : mItems)
        if (mImplementation != nullptr)
            mImplementation->remove(item->getPrivateImplemetation());
    mItems.clear();
}

void List::privateReplace(ListItem* oldItem, ListItem* newItem)
{
    if (newItem == nullptr)
        return;
    if (oldItem == nullptr)
        return privateAppend(newItem);
    if (mImplementation != nullptr)
        mImplementation->remove(oldItem->getPrivateImplemetation());
    const auto found = std::find(mItems.begin(), mItems.end(), oldItem);
    if (found == mItems.end())
        return privateAppend(newItem);
    if (mImplementation != nullptr)
        mImplementation->insertAt(newItem->getPrivateImplemetation(), static_cast<int>(found - mItems.begin()));
    *found = newItem;
}

void List::privateClear()
{
    if (mImplementation != nullptr)
        mImplementation->clear();
    deleteItems();
}

void List::deleteItems()
{
    for (ListItem* item : mItems)
        delete item;
    mItems.clear();
}

void List::privateSetTicker(Ticker* ticker)
{
    mTicker = ticker;
    if (mImplementation != nullptr)
        mImplementation->setTicker(ticker != nullptr ? ticker->getPrivateImpl() : nullptr);
}

void List::privateAddDialer(PopupDialer* dialer)
{
    mDialer = dialer;
    if (mImplementation != nullptr)
        mImplementation->setDialler(dialer);
}

ListItem* List::findSelectedItem()
{
    const int index = mImplementation != nullptr ? mImplementation->getSelectedIndex() : -1;
    ListItem* const item = index >= 0 ? find(index) : nullptr;
    if (item == nullptr)
        gLog(TRACE, 640, "DAPI::List::findSelectedItem() this: %p returns NULL\n", static_cast<void*>(this));
    else
        gLog(TRACE, 648, "DAPI::List::findSelectedItem() this: %p returns %p\n", static_cast<void*>(this),
             static_cast<void*>(item));
    return item;
}

Command* List::SELECT_COMMAND()
{
    static Command command("", Command::OK);
    return &command;
}

Command* List::RIGHT_COMMAND()
{
    static Command command("", Command::RIGHT);
    return &command;
}

Command* List::BACK_COMMAND()
{
    static Command command("", Command::BACK);
    return &command;
}

Command* List::DISPLAY_CHANGED_COMMAND()
{
    static Command command("", Command::ITEM);
    return &command;
}

Command* List::TABBAR_ACTIVE_COMMAND()
{
    static Command command("", Command::ITEM);
    return &command;
}

Command* List::TABBAR_INACTIVE_COMMAND()
{
    static Command command("", Command::ITEM);
    return &command;
}

} // namespace DisplayAPI
