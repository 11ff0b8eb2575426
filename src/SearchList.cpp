#include "DisplayAPI/SearchList.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/SearchListBoxPrivateIfc.h"
#include "GuiThread.h"
#include "ListRows.h"
#include "Log.h"
#include "OnGuiThread.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/list/SearchListBoxPrivate.h"

namespace DisplayAPI {

namespace {

constexpr Log gLog{"DisplayAPI::SearchList", "./src/SearchList.cpp"};

enum Request {
    CREATE = 0,
    CLEAN_UP = 1,
    APPEND_TEXT = 2,
    APPEND_TRANSLATED = 3,
    APPEND_ITEM = 4,
    CLEAR = 5,
    GET_SELECTED = 6,
    GET_SELECTED_INDEX = 7,
    SET_SELECTED_INDEX = 8,
    INSERT_AT = 9,
    REMOVE_AT = 10,
    REMOVE = 11,
    SIZE = 12,
    GET_SEARCH_TEXT = 13,
    SET_TITLE = 14,
    SET_TITLE_TRANSLATED = 15,
    SHOW_SEARCH_POPUP = 16,
    SET_SEARCH_TEXT = 17,
    SET_COUNT_INDICATOR = 18,
    SET_SEARCH_COUNT_INDICATOR = 19,
    DISMISS_SEARCH_POPUP = 20,
    IS_SEARCH_POPUP_VISIBLE = 21
};

using Ifc = SearchListBoxPrivateIfc;

} // namespace

struct SearchList::Ops
    : Operations<Posts<CREATE, &SearchList::create>, Waits<CLEAN_UP, &SearchList::cleanup>,
                 Posts<APPEND_TEXT, taking<const std::string&>(&SearchList::createAndAppendItem)>,
                 Posts<APPEND_TRANSLATED, taking<TranslationInfo*>(&SearchList::createAndAppendItem)>,
                 Posts<APPEND_ITEM, &SearchList::privateAppend>, Posts<CLEAR, &SearchList::privateClear>,
                 Waits<GET_SELECTED, &SearchList::findSelectedItem>,
                 Waits<GET_SELECTED_INDEX, &Ifc::getSelectedIndex, -1>,
                 Posts<SET_SELECTED_INDEX, &Ifc::setSelectedIndex>, Posts<INSERT_AT, &SearchList::privateInsertAt>,
                 Waits<REMOVE_AT, &SearchList::privateRemoveAt>, Posts<REMOVE, &SearchList::privateRemove>,
                 Waits<SIZE, &Ifc::size, -1>, Waits<GET_SEARCH_TEXT, &Ifc::getSearchText>,
                 Posts<SET_TITLE, taking<const std::string&>(&Ifc::setTitle)>,
                 Posts<SET_TITLE_TRANSLATED, taking<TranslationInfo*>(&Ifc::setTitle)>,
                 Posts<SHOW_SEARCH_POPUP, &Ifc::showSearchPopup>, Posts<SET_SEARCH_TEXT, &Ifc::setSearchText>,
                 Posts<SET_COUNT_INDICATOR, &Ifc::setCountIndicator>,
                 Posts<SET_SEARCH_COUNT_INDICATOR, &Ifc::setSearchCountIndicator>,
                 Posts<DISMISS_SEARCH_POPUP, &Ifc::dismissSearchPopup>,
                 Waits<IS_SEARCH_POPUP_VISIBLE, &Ifc::isSearchPopupVisible>> {};

SearchList::SearchList()
{
    Ops::call<CREATE>(*this, mImplementation);
}

SearchList::SearchList(SearchListBoxPrivateIfc* implementation) : mImplementation(implementation) {}

SearchList::~SearchList()
{
    Ops::call<CLEAN_UP>(*this, mImplementation);
}

/// Once: a second side would have none of the rows. The WP1 class is variant 0's alone, unlike a list's.
void SearchList::create()
{
    if (mImplementation != nullptr)
        return;
    name = "SearchList";
    if (hardwareVariant() != SMALL_PANEL)
        mImplementation = new SearchListBoxPrivate(this);
    else
        mImplementation = new SearchListBoxPrivateWP1(this);
}

void SearchList::cleanup()
{
    gLog(TRACE, 118, "DAPI::SearchList::cleanup() this: %p\n", static_cast<void*>(this));
    if (deletePrivateSide(mImplementation))
        rows().deleteItems();
}

void SearchList::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* SearchList::getPrivateImpl()
{
    return mImplementation;
}

int SearchList::size()
{
    const int rows = Ops::call<SIZE>(*this, mImplementation);
    gLog(TRACE, 146, "DAPI::SearchList::size() this: %p returns %d\n", static_cast<void*>(this), rows);
    return rows;
}

void SearchList::append(const std::string& text)
{
    gLog(TRACE, 154, "DAPI::SearchList::append() this: %p , text %s\n", static_cast<void*>(this), text.c_str());
    Ops::call<APPEND_TEXT>(*this, mImplementation, text);
}

void SearchList::append(TranslationInfo* text)
{
    gLog(TRACE, 162, "DAPI::SearchList::append() this: %p tinfo: %p\n", static_cast<void*>(this),
         static_cast<void*>(text));
    Ops::call<APPEND_TRANSLATED>(*this, mImplementation, text);
}

void SearchList::append(ListItem* item)
{
    // Asking a row for its text waits for the GUI thread: only the log is worth that.
    if (loggingOnUni())
        gLog(TRACE, 170, "DAPI::SearchList::append() this: %p listItem: %p, %s\n", static_cast<void*>(this),
             static_cast<void*>(item), item != nullptr ? item->getText().c_str() : "");
    Ops::call<APPEND_ITEM>(*this, mImplementation, item);
}

void SearchList::insertAt(ListItem* item, int index)
{
    gLog(TRACE, 180, "DAPI::SearchList::insertAt() this: %p item %p index %d\n", static_cast<void*>(this),
         static_cast<void*>(item), index);
    Ops::call<INSERT_AT>(*this, mImplementation, item, index);
}

void SearchList::remove(ListItem* item)
{
    gLog(TRACE, 188, "DAPI::SearchList::remove() this: %p item %p\n", static_cast<void*>(this),
         static_cast<void*>(item));
    Ops::call<REMOVE>(*this, mImplementation, item);
}

ListItem* SearchList::removeAt(int index)
{
    gLog(TRACE, 196, "DAPI::SearchList::removeAt() this: %p index %d\n", static_cast<void*>(this), index);
    return Ops::call<REMOVE_AT>(*this, mImplementation, index);
}

void SearchList::clear()
{
    gLog(TRACE, 204, "DAPI::SearchList::clear() this: %p\n", static_cast<void*>(this));
    Ops::call<CLEAR>(*this, mImplementation);
}

std::vector<ListItem*> SearchList::getItems() const
{
    gLog(TRACE, 212, "DAPI::SearchList::getItems() this: %p\n", static_cast<const void*>(this));
    std::vector<ListItem*> items;
    onGuiThread([&] { items = mItems.copy(); });
    return items;
}

ListItem* SearchList::getSelected()
{
    ListItem* const selected = Ops::call<GET_SELECTED>(*this, mImplementation);
    gLog(TRACE, 222, "*** DAPI::SearchList::getSelected() this: %p returns %p\n", static_cast<void*>(this),
         static_cast<void*>(selected));
    return selected;
}

int SearchList::getSelectedIndex()
{
    const int index = Ops::call<GET_SELECTED_INDEX>(*this, mImplementation);
    gLog(TRACE, 232, "*** DAPI::SearchList::getSelectedIndex() this: %p returns %d\n", static_cast<void*>(this), index);
    return index;
}

void SearchList::setSelectedIndex(int index)
{
    gLog(TRACE, 240, "DAPI::SearchList::setSelectedIndex() this: %p index %d\n", static_cast<void*>(this), index);
    Ops::call<SET_SELECTED_INDEX>(*this, mImplementation, index);
}

void SearchList::setTitle(const std::string& title)
{
    Ops::call<SET_TITLE>(*this, mImplementation, title);
}

void SearchList::setTitle(TranslationInfo* title)
{
    Ops::call<SET_TITLE_TRANSLATED>(*this, mImplementation, title);
}

void SearchList::showSearchPopup()
{
    Ops::call<SHOW_SEARCH_POPUP>(*this, mImplementation);
}

void SearchList::dismissSearchPopup()
{
    Ops::call<DISMISS_SEARCH_POPUP>(*this, mImplementation);
}

bool SearchList::isSearchPopupVisible()
{
    return Ops::call<IS_SEARCH_POPUP_VISIBLE>(*this, mImplementation);
}

void SearchList::setSearchText(std::string text)
{
    Ops::call<SET_SEARCH_TEXT>(*this, mImplementation, std::move(text));
}

std::string SearchList::getSearchText()
{
    return Ops::call<GET_SEARCH_TEXT>(*this, mImplementation);
}

void SearchList::setCountIndicator(int count)
{
    Ops::call<SET_COUNT_INDICATOR>(*this, mImplementation, count);
}

void SearchList::setSearchCountIndicator(int count)
{
    Ops::call<SET_SEARCH_COUNT_INDICATOR>(*this, mImplementation, count);
}

void SearchList::addItemStateListener(ItemStateListener* listener)
{
    onGuiThread([&] { Displayable::addItemStateListener(listener); });
}

void SearchList::addCommandListener(CommandListener* listener)
{
    onGuiThread([&] {
        if (mImplementation != nullptr)
            mImplementation->addCommandListener(listener);
    });
}

void SearchList::removeCommandListener(CommandListener* listener)
{
    onGuiThread([&] {
        if (mImplementation != nullptr)
            mImplementation->removeCommandListener(listener);
    });
}

void SearchList::localeChanged(std::string locale)
{
    onlyOnGuiThread("SearchList::localeChanged()");
    rows().localeChanged(locale);
    if (mImplementation != nullptr)
        mImplementation->localeChanged();
}

void SearchList::setSelectionHighlight(bool) {}

void SearchList::setUsedWithTab(bool, Displayable*) {}

void SearchList::setWrapAround(bool) {}

void SearchList::setWaitAnimation(bool) {}

ListRows<SearchListBoxPrivateIfc> SearchList::rows()
{
    return {gLog, "SearchList", this, mItems, mImplementation};
}

void SearchList::createAndAppendItem(const std::string& text)
{
    gLog(TRACE, 346, "DAPI::SearchList::createAndAppendItem() this: %p\n", static_cast<void*>(this));
    takeOver(new ListItem(text, true));
}

void SearchList::createAndAppendItem(TranslationInfo* text)
{
    gLog(TRACE, 352, "DAPI::SearchList::createAndAppendItem() this: %p\n", static_cast<void*>(this));
    takeOver(new ListItem(text, true));
}

/// On a thread that carries a request out without being the GUI thread, append() would post under the request's lock.
void SearchList::takeOver(ListItem* item)
{
    if (isGuiThread())
        append(item);
    else
        privateAppend(item);
}

void SearchList::privateAppend(ListItem* item)
{
    rows().append(item);
}

void SearchList::privateInsertAt(ListItem* item, int index)
{
    rows().insertAt(item, index);
}

ListItem* SearchList::privateRemoveAt(int index)
{
    return rows().removeAt(index);
}

void SearchList::privateRemove(ListItem* item)
{
    rows().remove(item);
}

void SearchList::privateClear()
{
    rows().clear();
}

ListItem* SearchList::findSelectedItem()
{
    return rows().selected();
}

Command* SearchList::SELECT_COMMAND()
{
    static Command command("", Command::OK);
    return &command;
}

Command* SearchList::RIGHT_COMMAND()
{
    static Command command("", Command::RIGHT);
    return &command;
}

Command* SearchList::BACK_COMMAND()
{
    static Command command("", Command::BACK);
    return &command;
}

} // namespace DisplayAPI
