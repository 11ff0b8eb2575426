#pragma once

#include "DisplayAPI/CommandListener.h"
#include "utilities/Wait.h"

/// Lets a thread wait until every notification that was queued before has been delivered. Not from a notification.
class Fence : public DisplayAPI::CommandListener {
public:
    void wait()
    {
        postCommandAction(nullptr, nullptr);
        mReached.wait();
    }

private:
    void commandAction(DisplayAPI::Command*, DisplayAPI::Displayable*) override { mReached.wakeUp(); }

    Wait mReached;
};
