#pragma once

#include "DisplayAPI/Displayable.h"
#include "DisplayAPI/Sequence.h"

#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class ListItem;
class SearchListBoxPrivateIfc;

template <typename Side>
class ListRows;

/// A screen of rows that the user searches: what he types stands in a search popup over the list. The list searches
/// nothing itself: it tells its item state listeners of each change of the search text, with null for the item, and the
/// application puts the matches into it.
///
/// The popup comes with showSearchPopup(), or with a key of the keypad that types a character, which is its first one
/// then. While it is there up and down move in the rows, OK chooses one, and left and right move in the text. Where the
/// cursor can go no further left closes the popup, and right is the row's. The text stays when it closes, until a key
/// opens it anew.
///
/// Threads: safe from any thread. Off the GUI thread size(), getItems(), getSelected(), getSelectedIndex(), removeAt(),
/// isSearchPopupVisible(), getSearchText(), those of the listeners and the destructor wait; everything else posts and
/// returns at once. Calls from one thread keep their order.
/// Ownership: the list owns its GUI-thread side, and its rows: clear() and the destructor delete them. A row belongs to
/// the list as soon as append() or insertAt() has been carried out; removeAt() and remove() give it back to the caller.
/// Put a row into one list, once. Listeners and translations are not owned. A translation has to live while it is
/// shown; null is an empty text.
class DISPLAYAPI_EXPORT SearchList : public Displayable {
public:
    SearchList();

    /// Adopts an implementation made elsewhere, or starts without one.
    explicit SearchList(SearchListBoxPrivateIfc* implementation);

    SearchList(const SearchList&) = delete;
    SearchList& operator=(const SearchList&) = delete;
    ~SearchList() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// The number of rows; -1 when the question could not be put.
    int size();

    /// Appends a row with the text, or the row itself. A row without a GUI-thread side is not appended and stays the
    /// caller's, as does null.
    void append(const std::string& text);
    void append(TranslationInfo* text);
    void append(ListItem* item);

    /// A negative index inserts at the front, one past the end appends. Null is ignored.
    void insertAt(ListItem* item, int index);

    /// Ignored where it is null or not in the list.
    void remove(ListItem* item);

    /// Takes a row out and returns it; a negative index takes the first one. Null, with a log line, past the end.
    ListItem* removeAt(int index);

    /// Deletes all rows. The popup stays as it is.
    void clear();

    /// The rows in order, after all earlier changes of the caller have been carried out. They stay the list's.
    std::vector<ListItem*> getItems() const;

    /// The selected row; null where there is none.
    ListItem* getSelected();

    /// -1 where no row is selected.
    int getSelectedIndex();

    /// Rows outside the list are ignored.
    void setSelectedIndex(int index);

    /// UTF-8; an empty text and null take the title away.
    void setTitle(const std::string& title);
    void setTitle(TranslationInfo* title);

    /// Shows the popup with the search text that there is, and the cursor behind it; hides it. While the list is not on
    /// the screen it is there as soon as the list is.
    void showSearchPopup();
    void dismissSearchPopup();
    bool isSearchPopupVisible();

    /// UTF-8, kept whether or not the popup is shown. The listeners are not told of what the application sets.
    void setSearchText(std::string text);
    std::string getSearchText();

    /// How many entries there are in all, and how many of them match. Shown at the end of the title, or of the search
    /// text where that has the title's place; a negative number is not shown.
    void setCountIndicator(int count);
    void setSearchCountIndicator(int count);

    /// One that is added twice is called twice; null is ignored. It has to outlive the list. A change of the search
    /// text that is queued when the list is deleted is still told.
    void addItemStateListener(ItemStateListener* listener);

    /// Adds a listener once. It hears the three commands below. Null is ignored. It has to live until
    /// removeCommandListener() has returned, or outlive the list.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// Hands the locale to every row, looks a translated title up anew, and tells the display then. Call it on the GUI
    /// thread.
    void localeChanged(std::string locale);

    /// These do nothing.
    void setSelectionHighlight(bool on);
    void setUsedWithTab(bool used, Displayable* tab);
    void setWrapAround(bool on);
    void setWaitAnimation(bool on);

    /// What search lists raise: OK and right on a row, and left where the popup is not shown. One object each per
    /// process, recognised by its address. Here.
    static Command* SELECT_COMMAND();
    static Command* RIGHT_COMMAND();
    static Command* BACK_COMMAND();

private:
    struct Ops;

    void create();
    void cleanup();
    ListRows<SearchListBoxPrivateIfc> rows();
    void createAndAppendItem(const std::string& text);
    void createAndAppendItem(TranslationInfo* text);
    void takeOver(ListItem* item);
    void privateAppend(ListItem* item);
    void privateInsertAt(ListItem* item, int index);
    ListItem* privateRemoveAt(int index);
    void privateRemove(ListItem* item);
    void privateClear();
    ListItem* findSelectedItem();

    SearchListBoxPrivateIfc* mImplementation = nullptr;
    Sequence<ListItem> mItems;
};

} // namespace DisplayAPI
