#pragma once

#include "DisplayAPI/ItemStateListener.h"
#include "support/Gate.h"

#include <mutex>
#include <utility>
#include <vector>

namespace test {

/// Notes the items of whose changes it is told, on a thread of the pool.
class ItemChanges : public DisplayAPI::ItemStateListener {
public:
    void itemStateChanged(DisplayAPI::Item* item) override
    {
        const std::lock_guard lock(mMutex);
        mItems.push_back(item);
    }

    /// Those since the last time, in order. Whatever has been raised by now has arrived, or never will: notifications
    /// keep their order, and the last one has.
    std::vector<DisplayAPI::Item*> take()
    {
        Last last;
        last.postItemStateChange(nullptr);
        last.arrived.wait();
        const std::lock_guard lock(mMutex);
        return std::exchange(mItems, {});
    }

private:
    struct Last : DisplayAPI::ItemStateListener {
        void itemStateChanged(DisplayAPI::Item*) override { arrived.open(); }

        Gate arrived;
    };

    std::mutex mMutex;
    std::vector<DisplayAPI::Item*> mItems;
};

} // namespace test
