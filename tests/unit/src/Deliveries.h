#pragma once

#include "DisplayAPI/CommandListener.h"
#include "support/Worker.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace test {

/// The commands that have really arrived, in order.
class Deliveries : public DisplayAPI::CommandListener {
public:
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable*) override
    {
        std::lock_guard lock(mMutex);
        mArrived.push_back(command);
    }

    std::vector<DisplayAPI::Command*> arrived() const
    {
        std::lock_guard lock(mMutex);
        return mArrived;
    }

    /// What was queued before it has arrived by then, or never will.
    void waitFor(DisplayAPI::Command* command) const
    {
        waitUntil([&] {
            const auto commands = arrived();
            return std::count(commands.begin(), commands.end(), command) > 0;
        });
    }

private:
    mutable std::mutex mMutex;
    std::vector<DisplayAPI::Command*> mArrived;
};

} // namespace test
