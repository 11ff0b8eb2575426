#pragma once

#include "apps/deskphone/Dialer.h"
#include "apps/deskphone/Place.h"
#include "apps/deskphone/RowEar.h"
#include "apps/deskphone/RowMenu.h"
#include "kit/Text.h"

#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace DisplayAPI {
class Command;
class List;
class ListItem;
class Ticker;
} // namespace DisplayAPI

namespace deskphone {

using DisplayAPI::kit::Text;

class CallScreen;
class Telephone;

/// One screen of the telephone: a list, the thread that fills it, and what happens when the user chooses a row.
///
/// Make and delete screens on the GUI thread. They answer the user on a thread of the library's.
class Screen : public Place {
public:
    /// `parent` is where left leads back to; null where it does not. `title` is the key of a text, or
    /// WITHOUT_TITLE.
    Screen(Telephone& telephone, Place* parent, const std::string& title);
    ~Screen() override;

    /// Runs above the rows; outlives the screen.
    void setTicker(DisplayAPI::Ticker& ticker);

    /// The first time a thread of its own begins to fill it.
    void open() override;
    void stopListening() override;
    void stopWorking() override;

protected:
    static inline const std::string WITHOUT_TITLE;

    /// For screens with another kind of list.
    Screen(Telephone& telephone, Place* parent, const std::string& title, std::unique_ptr<DisplayAPI::List> list);

    Telephone& telephone() { return mTelephone; }
    DisplayAPI::List& list() { return *mList; }
    Place* parent() { return mParent; }
    void setParent(Place* parent) { mParent = parent; }

    /// A text that lives as long as the screen. In the constructor, or on the thread that fills the screen.
    Text& text(const std::string& key, std::vector<Text::Argument> arguments = {});

    /// A row that follows the language; the list owns it.
    DisplayAPI::ListItem* append(Text& text);

    /// Puts a row that looks `text` up again in the place of `row`: a row's text is fixed. The selection stays. Waits.
    void renewRow(DisplayAPI::ListItem*& row, Text& text);

    /// The right key offers these for the selected row; without a menu it chooses the row. In the constructor.
    void setRowMenu(const std::vector<RowMenu::Action>& actions);

    /// Has that menu offer something else. On the threads that answer the user.
    void changeRowMenu(const std::vector<RowMenu::Action>& actions) { mRowMenu->setActions(actions); }

    /// A digit opens a dialer, which calls with `call`. In the constructor.
    void setDialer(CallScreen& call);

private:
    /// Brings it to the display, and whether the user is there. A page of a tab screen is in its tab.
    virtual void bringUp();
    virtual bool isShown();

    /// Fills the list. On the screen's own thread.
    virtual void build() = 0;

    /// The user has chosen the row.
    virtual void chosen(int row) = 0;

    /// The user asks what can be done with the row. Without a menu that is to choose it.
    virtual void openMenu(int row);

    /// It may be another row by the time that he chooses.
    virtual void menuOpens(int) {}

    /// The user goes back.
    virtual void left() {}

    void answer(DisplayAPI::Command* command, const DisplayAPI::ListItem* row);
    int placeOf(const DisplayAPI::ListItem* row) const;

    Telephone& mTelephone;
    Place* mParent;
    std::deque<Text> mTexts;         ///< before the list, whose rows show them
    std::unique_ptr<Dialer> mDialer; ///< before the list that opens it
    RowEar mEar;                     ///< before the list that it hears
    std::unique_ptr<DisplayAPI::List> mList;
    std::unique_ptr<RowMenu> mRowMenu;
    std::once_flag mIsBuilt;
    std::thread mBuilder;
};

} // namespace deskphone
