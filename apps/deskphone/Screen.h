#pragma once

#include "DisplayAPI/CommandListener.h"

#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace DisplayAPI {
class Display;
class List;
class ListItem;
} // namespace DisplayAPI

namespace deskphone {

/// One screen of the telephone: a list, the thread that fills it, and what happens when the user chooses a row.
///
/// Make and delete screens on the GUI thread. They answer the user on a thread of the library's.
class Screen : public DisplayAPI::CommandListener {
public:
    /// `parent` is where left leads back to; null for the first screen.
    Screen(DisplayAPI::Display& display, Screen* parent, const std::string& title);
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    ~Screen() override;

    /// Shows the screen. The first time a thread of its own begins to fill it.
    void open();

    /// From here on the user's commands are not heard. Not on the GUI thread.
    void stopListening();

    /// Ends the thread that fills the screen. Not on the GUI thread, which the other one may be waiting for.
    virtual void stopWorking();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

protected:
    /// For screens with another kind of list.
    Screen(DisplayAPI::Display& display, Screen* parent, const std::string& title,
           std::unique_ptr<DisplayAPI::List> list);

    DisplayAPI::List& list() { return *mList; }
    Screen* parent() { return mParent; }

    /// Puts a row with another text in the place of `row`: a row's text is fixed. The selection stays. Waits.
    void renewRow(DisplayAPI::ListItem*& row, const std::string& text);

private:
    /// Fills the list. On the screen's own thread.
    virtual void build() = 0;

    /// The user has chosen the row.
    virtual void chosen(int row) = 0;

    /// The user goes back.
    virtual void left() {}

    DisplayAPI::Display& mDisplay;
    Screen* mParent;
    std::unique_ptr<DisplayAPI::List> mList;
    std::once_flag mIsBuilt;
    std::thread mBuilder;
};

} // namespace deskphone
