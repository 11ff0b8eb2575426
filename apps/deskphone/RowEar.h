#pragma once

#include "DisplayAPI/CommandListener.h"

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>

namespace DisplayAPI {
class List;
class ListItem;
} // namespace DisplayAPI

namespace deskphone {

/// Hears what the user does in a list, and with which row: the one that was selected then, whatever has become of the
/// rows by the time that it is heard. Declare it before the list, which keeps it as long as it lives.
class RowEar : public DisplayAPI::CommandListener {
public:
    /// `heard` runs on a thread of the library's. The row is null where none was selected.
    using Heard = std::function<void(DisplayAPI::Command*, const DisplayAPI::ListItem* row)>;

    explicit RowEar(Heard heard) : mHeard(std::move(heard)) {}

    void listenTo(DisplayAPI::List& list);

    /// `heard` is not called after this. Not on the GUI thread.
    void stop();

    /// Called on the GUI thread as the user does it.
    void postCommandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;
    const DisplayAPI::ListItem* selectedRow() const;
    const DisplayAPI::ListItem* takeRow();

    Heard mHeard;
    DisplayAPI::List* mList = nullptr;
    std::atomic<bool> mIsDeaf{false};
    std::mutex mMutex;                             ///< guards what follows; a leaf
    std::deque<const DisplayAPI::ListItem*> mRows; ///< of what has not been heard yet
};

} // namespace deskphone
