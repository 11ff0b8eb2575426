#pragma once

#include "DisplayAPI/Displayable.h"
#include "DisplayAPI/Sequence.h"

#include <atomic>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class ListBoxPrivateIfc;
class ListItem;
class PopupDialer;
class Ticker;

template <typename Side>
class ListRows;

/// A screen of rows of which the user selects one.
///
/// Threads: safe from any thread. Off the GUI thread size(), getSelected(), getSelectedIndex(), removeAt(), getItems(),
/// getTicker() and getDialer() wait, as does the destructor; everything else posts and returns at once. Calls from one
/// thread keep their order.
/// Ownership: the list owns the rows that getItems() tells of, whether or not it has an implementation that shows them;
/// clear() and the destructor delete them. A row belongs to the list as soon as append(), insertAt() or replace() has
/// been carried out. removeAt(), remove(), removeAll() and replace() give rows back to the caller. The row pointers
/// that getItems() and getSelected() return stay the list's. Put a row into one list, once. Listeners, tickers, dialers
/// and translations are not owned and have to live until the list has let go of them: after removeCommandListener()
/// until a waiting call such as size() has returned. Memory: each call on the GUI thread that changes or asks the list,
/// but for clear(), getItems(), getTicker(), getDialer() and localeChanged(), leaves a record of 200 bytes behind for
/// good, plus a text of more than 15 bytes. Change long lists from another thread, whose records are used again. A
/// class derived from this one may meet its first request before its constructor has ended, and its last one after its
/// destructor has begun: derive on the GUI thread, or from List(ListBoxPrivateIfc*) as ExclusiveList does.
class DISPLAYAPI_EXPORT List : public Displayable {
public:
    /// A list with a way back: on the 240 x 128 panel list types 2 and 3, on the 208 x 42 panel 1 and 3.
    explicit List(int listType);

    /// Adopts an implementation made elsewhere, or starts without one.
    explicit List(ListBoxPrivateIfc* implementation);

    List(const List&) = delete;
    List& operator=(const List&) = delete;
    ~List() override;

    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Deletes the implementation and the rows. GUI thread only; the destructor sees to it.
    virtual void cleanup();

    /// A list fills the screen: these do nothing.
    virtual void align();
    virtual void align(Displayable& other);
    virtual void unalign();

    /// Appends a row with the text, or the row itself. A row without a GUI-thread side is not appended and stays the
    /// caller's, as does null.
    virtual void append(const std::string& text);
    virtual void append(TranslationInfo* text);
    virtual void append(ListItem* item);

    /// These do nothing.
    virtual void appendItems(const std::string& text);
    virtual void appendItems(TranslationInfo* text);

    /// Deletes all rows. Changes of rows and selection that are still queued when it is called off the GUI thread are
    /// dropped; a row whose append is dropped stays the caller's.
    virtual void clear();

    /// The rows in order. Copied on the calling thread after all earlier changes of the caller have been carried out:
    /// no other thread may change the rows meanwhile.
    virtual std::vector<ListItem*> getItems() const;

    /// The selected row; null where there is none.
    virtual ListItem* getSelected();

    /// Null and rows outside the list are ignored.
    virtual void setSelected(ListItem* item);
    virtual void setSelectedIndex(int index);

    /// -1 where no row is selected.
    virtual int getSelectedIndex();

    /// A negative index inserts at the front, one past the end appends. Null is ignored.
    virtual void insertAt(ListItem* item, int index);

    /// Takes a row out and returns it; a negative index takes the first one. Null, with a log line, past the end.
    virtual ListItem* removeAt(int index);

    /// Ignored where it is null or not in the list.
    virtual void remove(ListItem* item);
    virtual void removeAll();

    /// Puts `newItem` in the place of `oldItem`; appends it where `oldItem` is null or not in the list. A null
    /// `newItem` does nothing.
    virtual void replace(ListItem* oldItem, ListItem* newItem);

    /// The number of rows; -1 when the question could not be put.
    virtual int size();

    /// UTF-8; an empty text and null take the title away.
    virtual void setTitle(const std::string& title);
    virtual void setTitle(TranslationInfo* title);

    /// Status lines of its own, above the title: 0 to 6, others are cut to that. Texts are UTF-8; lines outside 0 to 5
    /// are ignored. Without effect on the 208 x 42 panel.
    virtual void setSystemWindowSize(int lines);
    virtual void setSystemWindowText(int line, const std::string& text);

    /// Adds a listener once. It hears SELECT_COMMAND(), RIGHT_COMMAND() and, on lists with a way back, BACK_COMMAND().
    /// Null is ignored.
    virtual void addCommandListener(CommandListener* listener);
    virtual void removeCommandListener(CommandListener* listener);

    /// Takes it off the screen; on its display's stack it stays.
    virtual void hide();

    /// Hands the locale to every row. Call it on the GUI thread.
    virtual void localeChanged(std::string locale);

    /// The list shows it until it is given another one or null, or the ticker is given to another list.
    void setTicker(Ticker* ticker);

    /// Null where it has none.
    Ticker* getTicker();

    /// Whether the selected row is shown inverted; it is at first.
    void setSelectionHighlight(bool on);

    /// The dialer in which the user types where that is asked for; null takes the present one away. Not owned: take it
    /// away before it is deleted.
    void addDialer(PopupDialer* dialer);

    /// Null where it has none.
    PopupDialer* getDialer();

    /// Whether a digit, star or hash on the list opens its dialer over it, with this key alone in the edit line. It
    /// does not at first.
    void showDiallerOnInitialKeyEvent(bool on);

    /// Here: whether the list carries a row that goes back: false on the 240 x 128 panel, and until the list has been
    /// made on the GUI thread.
    bool hasBackItem() const { return mHasBackItem; }

    /// These do nothing.
    void setUsedWithTab(bool used, Displayable* tab);
    void setWrapAround(bool on);
    void setEnabled(bool on);
    void suppressAutoRightArrowForSoftKeys();

    /// The commands that lists raise: one object each per process, recognised by its address. Here.
    static Command* SELECT_COMMAND();
    static Command* RIGHT_COMMAND();
    static Command* BACK_COMMAND();
    static Command* DISPLAY_CHANGED_COMMAND();
    static Command* TABBAR_ACTIVE_COMMAND();
    static Command* TABBAR_INACTIVE_COMMAND();

protected:
    /// Whether a list of this type has a way back on this hardware.
    static bool backFlagFor(int listType);

    /// Makes this class's implementation. GUI thread only.
    void create(bool backFlag);

    /// Returns when the GUI thread has carried out what the caller has posted so far; at once on the GUI thread.
    void waitForEarlierRequests() const;

    /// For derived lists with an implementation of their own. GUI thread only; elsewhere only to be named, unread, in a
    /// call.
    ListBoxPrivateIfc* const& implementation() const { return mImplementation; }
    void setImplementation(ListBoxPrivateIfc* implementation) { mImplementation = implementation; }

private:
    struct Ops;
    struct ClearOps;

    ListRows<ListBoxPrivateIfc> rows();
    void createAndAppendItem(const std::string& text);
    void createAndAppendItem(TranslationInfo* text);
    void takeOver(ListItem* item);
    void privateAppend(ListItem* item);
    void privateInsertAt(ListItem* item, int index);
    ListItem* privateRemoveAt(int index);
    void privateRemove(ListItem* item);
    void privateRemoveAll();
    void privateReplace(ListItem* oldItem, ListItem* newItem);
    void privateClear();
    void privateSetTicker(Ticker* ticker);
    void privateAddDialer(PopupDialer* dialer);
    void waitForEarlierRequests(int code) const;
    ListItem* findSelectedItem();

    ListBoxPrivateIfc* mImplementation = nullptr;
    Sequence<ListItem> mItems;
    PopupDialer* mDialer = nullptr;
    Ticker* mTicker = nullptr;
    std::atomic<bool> mHasBackItem{false};
};

} // namespace DisplayAPI
