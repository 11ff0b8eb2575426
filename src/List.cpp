#include "DisplayAPI/List.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/Ticker.h"
#include "GuiThread.h"
#include "ListRows.h"
#include "Log.h"
#include "Operations.h"
#include "Variant.h"
#include "utilities/HardwareVersion.h"
#include "variants/list/ListBoxPrivate.h"

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

void select(ListBoxPrivateIfc& list, ListItem* item)
{
    if (item != nullptr)
        list.setSelected(item->getPrivateImplemetation());
}

/// The panel's sub-variant with a key that goes back.
constexpr int NO_BACK_SUB_VARIANT = 3;

} // namespace

// GET_TICKER, GET_DIALER and GET_ITEMS have no row: their round trip puts the call behind the caller's earlier
// requests.
struct List::Ops
    : HelperOperations<Posts<CREATE, &List::create>, Waits<CLEAN_UP, &List::cleanup>,
                       Posts<APPEND_TEXT, taking<const std::string&>(&List::createAndAppendItem)>,
                       Posts<APPEND_TRANSLATED, taking<TranslationInfo*>(&List::createAndAppendItem)>,
                       Posts<APPEND_ITEM, &List::privateAppend>, Waits<GET_SELECTED, &List::findSelectedItem>,
                       Posts<SET_SELECTED, &select>,
                       Waits<GET_SELECTED_INDEX, &ListBoxPrivateIfc::getSelectedIndex, -1>,
                       Posts<SET_SELECTED_INDEX, &ListBoxPrivateIfc::setSelectedIndex>,
                       Posts<INSERT_AT, &List::privateInsertAt>, Waits<REMOVE_AT, &List::privateRemoveAt>,
                       Posts<REMOVE, &List::privateRemove>, Posts<REMOVE_ALL, &List::privateRemoveAll>,
                       Posts<REPLACE, &List::privateReplace>, Waits<SIZE, &ListBoxPrivateIfc::size, -1>,
                       Posts<HIDE, &ListBoxPrivateIfc::hide>, Posts<SET_TICKER, &List::privateSetTicker>,
                       Posts<SET_TITLE, taking<const std::string&>(&ListBoxPrivateIfc::setTitle)>,
                       Posts<SET_TITLE_TRANSLATED, taking<TranslationInfo*>(&ListBoxPrivateIfc::setTitle)>,
                       Posts<SET_SYSTEM_WINDOW_SIZE, &ListBoxPrivateIfc::setSystemWindowSize>,
                       Posts<SET_SYSTEM_WINDOW_TEXT, &ListBoxPrivateIfc::setSystemWindowText>,
                       Posts<REMOVE_COMMAND_LISTENER, &ListBoxPrivateIfc::removeCommandListener>,
                       Posts<ADD_COMMAND_LISTENER, &ListBoxPrivateIfc::addCommandListener>,
                       Posts<SHOW_DIALLER_ON_INITIAL_KEY_EVENT, &ListBoxPrivateIfc::showDiallerOnInitialKeyEvent>,
                       Posts<ADD_DIALER, &List::privateAddDialer>,
                       Posts<SET_SELECTION_HIGHLIGHT, &ListBoxPrivateIfc::setSelectionHighlight>> {};

/// Clearing makes queued changes pointless, and leaves no record behind on the GUI thread.
struct List::ClearOps
    : Operations<Superseding<Posts<CLEAR, &List::privateClear>, APPEND_TEXT, APPEND_TRANSLATED, APPEND_ITEM, CLEAR,
                             SET_SELECTED, INSERT_AT, REMOVE, REMOVE_ALL, REPLACE>> {};

List::List(int listType)
{
    Ops::call<CREATE>(*this, mImplementation, backFlagFor(listType));
}

List::List(ListBoxPrivateIfc* implementation) : mImplementation(implementation) {}

List::~List()
{
    Ops::call<CLEAN_UP>(*this, mImplementation);
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
    if (!Ops::carryOut(*this, mImplementation, request))
        ClearOps::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* List::getPrivateImpl()
{
    return mImplementation;
}

void List::cleanup()
{
    onlyOnGuiThread("List::cleanup()");
    gLog(TRACE, 148, "DAPI::List::cleanup() this: %p\n", static_cast<void*>(this));
    if (deletePrivateSide(mImplementation))
        rows().deleteItems();
}

void List::align() {}

void List::align(Displayable&) {}

void List::unalign() {}

void List::append(const std::string& text)
{
    gLog(TRACE, 176, "DAPI::List::append() this: %p , text %s\n", static_cast<void*>(this), text.c_str());
    Ops::call<APPEND_TEXT>(*this, mImplementation, text);
}

void List::append(TranslationInfo* text)
{
    gLog(TRACE, 186, "DAPI::List::append() this: %p tinfo: %p\n", static_cast<void*>(this), static_cast<void*>(text));
    Ops::call<APPEND_TRANSLATED>(*this, mImplementation, text);
}

void List::append(ListItem* item)
{
    // Asking a row for its text waits for the GUI thread: only the log is worth that.
    if (loggingOnUni())
        gLog(TRACE, 196, "DAPI::List::append() this: %p listItem: %p, %s\n", static_cast<void*>(this),
             static_cast<void*>(item), item != nullptr ? item->getText().c_str() : "");
    Ops::call<APPEND_ITEM>(*this, mImplementation, item);
}

void List::appendItems(const std::string&) {}

void List::appendItems(TranslationInfo*) {}

void List::clear()
{
    gLog(TRACE, 222, "DAPI::List::clear() this: %p\n", static_cast<void*>(this));
    ClearOps::call<CLEAR>(*this, mImplementation);
}

std::vector<ListItem*> List::getItems() const
{
    gLog(TRACE, 240, "DAPI::List::getItems() this: %p\n", static_cast<const void*>(this));
    waitForEarlierRequests();
    return mItems.copy();
}

ListItem* List::getSelected()
{
    ListItem* const selected = Ops::call<GET_SELECTED>(*this, mImplementation);
    gLog(TRACE, 258, "*** DAPI::List::getSelected() this: %p returns %p\n", static_cast<void*>(this),
         static_cast<void*>(selected));
    return selected;
}

void List::setSelected(ListItem* item)
{
    gLog(TRACE, 266, "*** DAPI::List::setSelected() this: %p item %p\n", static_cast<void*>(this),
         static_cast<void*>(item));
    Ops::call<SET_SELECTED>(*this, mImplementation, item);
}

void List::setSelectedIndex(int index)
{
    gLog(TRACE, 276, "DAPI::List::setSelectedIndex() this: %p index %d\n", static_cast<void*>(this), index);
    Ops::call<SET_SELECTED_INDEX>(*this, mImplementation, index);
}

int List::getSelectedIndex()
{
    const int index = Ops::call<GET_SELECTED_INDEX>(*this, mImplementation);
    gLog(TRACE, 290, "*** DAPI::List::getSelectedIndex() this: %p returns %d\n", static_cast<void*>(this), index);
    return index;
}

void List::insertAt(ListItem* item, int index)
{
    gLog(TRACE, 298, "DAPI::List::insertAt() this: %p item %p index %d\n", static_cast<void*>(this),
         static_cast<void*>(item), index);
    Ops::call<INSERT_AT>(*this, mImplementation, item, index);
}

ListItem* List::removeAt(int index)
{
    gLog(TRACE, 308, "DAPI::List::removeAt() this: %p index %d\n", static_cast<void*>(this), index);
    return Ops::call<REMOVE_AT>(*this, mImplementation, index);
}

void List::remove(ListItem* item)
{
    gLog(TRACE, 320, "DAPI::List::remove() this: %p item %p\n", static_cast<void*>(this), static_cast<void*>(item));
    Ops::call<REMOVE>(*this, mImplementation, item);
}

void List::removeAll()
{
    Ops::call<REMOVE_ALL>(*this, mImplementation);
}

void List::replace(ListItem* oldItem, ListItem* newItem)
{
    Ops::call<REPLACE>(*this, mImplementation, oldItem, newItem);
}

int List::size()
{
    const int rows = Ops::call<SIZE>(*this, mImplementation);
    gLog(TRACE, 352, "DAPI::List::size() this: %p returns %d\n", static_cast<void*>(this), rows);
    return rows;
}

void List::setTitle(const std::string& title)
{
    Ops::call<SET_TITLE>(*this, mImplementation, title);
}

void List::setTitle(TranslationInfo* title)
{
    Ops::call<SET_TITLE_TRANSLATED>(*this, mImplementation, title);
}

void List::setSystemWindowSize(int lines)
{
    Ops::call<SET_SYSTEM_WINDOW_SIZE>(*this, mImplementation, lines);
}

void List::setSystemWindowText(int line, const std::string& text)
{
    Ops::call<SET_SYSTEM_WINDOW_TEXT>(*this, mImplementation, line, text);
}

void List::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void List::removeCommandListener(CommandListener* listener)
{
    Ops::call<REMOVE_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void List::hide()
{
    Ops::call<HIDE>(*this, mImplementation);
}

void List::localeChanged(std::string locale)
{
    onlyOnGuiThread("List::localeChanged()");
    rows().localeChanged(locale);
}

void List::setTicker(Ticker* ticker)
{
    Ops::call<SET_TICKER>(*this, mImplementation, ticker);
}

Ticker* List::getTicker()
{
    waitForEarlierRequests(GET_TICKER);
    return mTicker;
}

void List::showDiallerOnInitialKeyEvent(bool on)
{
    Ops::call<SHOW_DIALLER_ON_INITIAL_KEY_EVENT>(*this, mImplementation, on);
}

void List::setSelectionHighlight(bool on)
{
    Ops::call<SET_SELECTION_HIGHLIGHT>(*this, mImplementation, on);
}

void List::addDialer(PopupDialer* dialer)
{
    Ops::call<ADD_DIALER>(*this, mImplementation, dialer);
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

ListRows<ListBoxPrivateIfc> List::rows()
{
    return {gLog, "List", this, mItems, mImplementation};
}

void List::privateAppend(ListItem* item)
{
    rows().append(item);
}

void List::privateInsertAt(ListItem* item, int index)
{
    rows().insertAt(item, index);
}

ListItem* List::privateRemoveAt(int index)
{
    return rows().removeAt(index);
}

void List::privateRemove(ListItem* item)
{
    rows().remove(item);
}

void List::privateRemoveAll()
{
    rows().removeAll();
}

void List::privateReplace(ListItem* oldItem, ListItem* newItem)
{
    rows().replace(oldItem, newItem);
}

void List::privateClear()
{
    rows().clear();
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
    return rows().selected();
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
