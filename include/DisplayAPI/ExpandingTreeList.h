#pragma once

#include "DisplayAPI/Displayable.h"

#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class ExpandingTreeListItem;
class ExpandingTreeListPrivateIfc;

/// A screen of rows that open and close in place: what follows a row and stands deeper is shown while the row is open.
/// Right opens, and goes to the first row below an open one; left closes, and goes to the row above where there is
/// nothing to close. OK opens and closes what has rows below it.
///
/// Threads: safe from any thread. Off the GUI thread getSelected(), getSelectedIndex(), getExpandingItemsList(), those
/// of the listeners, cleanup() and the destructor wait; everything else posts and returns at once. Calls from one
/// thread keep their order.
/// Ownership: the list owns its GUI-thread side, and the rows from append() on: clear() and the destructor delete them.
/// Listeners and translations are not owned. A translation has to live while it is shown; null is an empty text.
class DISPLAYAPI_EXPORT ExpandingTreeList : public Displayable {
public:
    /// `backItem`: on the 208 x 42 panel, whether a last row leads out of the list, as left does on every panel.
    explicit ExpandingTreeList(bool backItem);
    ExpandingTreeList(const ExpandingTreeList&) = delete;
    ExpandingTreeList& operator=(const ExpandingTreeList&) = delete;
    ~ExpandingTreeList() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Takes it off its display, and deletes its GUI-thread side and its rows; the destructor sees to it.
    void cleanup();

    /// Behind the rows that are there. A row without a GUI-thread side is one of them that is not shown. Null is
    /// ignored. Put a row into one list, once.
    void append(ExpandingTreeListItem* item);

    /// Deletes all rows.
    void clear();

    /// All rows, shown or not, in the order of append().
    std::vector<ExpandingTreeListItem*> getExpandingItemsList();

    /// The current row; null where there is none, or where the row that leads out of the list is current.
    ExpandingTreeListItem* getSelected();

    /// Its place among all rows, shown or not; -1 where getSelected() is null.
    int getSelectedIndex();

    /// UTF-8; an empty one takes no room.
    void setTitle(const std::string& title);
    void setTitle(TranslationInfo* title);

    /// Whether the texts of all rows begin in one line, or are indented by how deep the rows stand, as they are at
    /// first.
    void align();
    void unalign();

    /// A row that is only there to be read is grey: the user neither opens nor chooses it. `index` is as for
    /// getSelectedIndex(); others are ignored.
    void setReadonly(int index, bool on);

    /// Whether right does what OK does.
    void setRightArrowEqualsOK(bool on);

    /// Adds a listener once. It hears List::SELECT_COMMAND() when OK is pressed on a row that it neither opens nor
    /// closes, and List::BACK_COMMAND() when the user wants to leave the list. Null is ignored. Not owned: it has to
    /// live until removeCommandListener() has returned, or outlive the list.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// Hands the locale to every row, and tells the display then. Call it on the GUI thread.
    void localeChanged(std::string locale);

private:
    struct Ops;

    void create(bool backItem);
    void destroy();
    void privateAppend(ExpandingTreeListItem* item);
    void privateClear();
    ExpandingTreeListItem* findSelected();
    std::vector<ExpandingTreeListItem*> items() const;
    void deleteQueuedItems();
    static void deleteAll(const std::vector<ExpandingTreeListItem*>& items);

    ExpandingTreeListPrivateIfc* mImplementation = nullptr;
    std::vector<ExpandingTreeListItem*> mItems;
};

} // namespace DisplayAPI
