#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/ListItem.h"

#include <algorithm>
#include <mutex>
#include <set>

namespace test {

/// A row of which one can ask whether it has been deleted.
class LiveRow : public DisplayAPI::ListItem {
public:
    explicit LiveRow(DisplayAPI::ListItemPrivateIfc* implementation) : ListItem(implementation) { note(true); }

    // The base's constructor would post: the GUI thread must not meet the object before it is complete.
    explicit LiveRow(const std::string& text = "row") : LiveRow(static_cast<DisplayAPI::ListItemPrivateIfc*>(nullptr))
    {
        auto* const create = new DisplayAPI::GuiRequestEvent(this, 0);
        create->stringParam1 = text;
        if (!isGuiThread()) {
            postEventAsync(create);
        } else {
            processGuiRequest(*create);
            delete create;
        }
    }

    ~LiveRow() override { note(false); }

    static bool isAlive(const ListItem* row)
    {
        std::lock_guard lock(gMutex);
        return gLive.count(row) != 0;
    }

    /// Deletes the row if it lives and does not stand in the list.
    template <typename Screen>
    static void deleteUnlessIn(Screen& list, const ListItem* row)
    {
        const auto rows = list.getItems();
        if (isAlive(row) && std::find(rows.begin(), rows.end(), row) == rows.end())
            delete row;
    }

private:
    void note(bool alive)
    {
        std::lock_guard lock(gMutex);
        alive ? static_cast<void>(gLive.insert(this)) : static_cast<void>(gLive.erase(this));
    }

    inline static std::mutex gMutex;
    inline static std::set<const ListItem*> gLive;
};

} // namespace test
