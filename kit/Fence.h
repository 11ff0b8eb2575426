#pragma once

#include "DisplayAPI/CommandListener.h"
#include "utilities/Wait.h"

namespace DisplayAPI::kit {

/// Lets a thread wait until every notification that was queued before has been delivered: they come one by one, in the
/// order in which they were raised. Not from a notification, which would wait for itself, and not on the GUI thread,
/// which a listener may be waiting for.
class Fence : private CommandListener {
public:
    /// No time limit: a listener may take its time.
    void wait()
    {
        postCommandAction(nullptr, nullptr);
        mReached.wait();
    }

private:
    void commandAction(Command*, Displayable*) override { mReached.wakeUp(); }

    Wait mReached;
};

} // namespace DisplayAPI::kit
