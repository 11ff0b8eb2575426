#pragma once

#include "host/inspection/BlockedCalls.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// What the GUI thread is at.
struct GuiStatus {
    enum State {
        RESTS,  ///< waits for work
        WORKS,  ///< carries out a message, a timer or a frame
        NO_LOOP ///< the toolkit is up, and no loop runs
    };

    State state = RESTS;
    int thread = 0;                         ///< 0 where the toolkit is not up
    std::int64_t busyFor = 0;               ///< nanoseconds, to some milliseconds; 0 while it rests
    const std::type_info* facade = nullptr; ///< whose request it carries out; null for none
    int code = 0;

    static GuiStatus now();
};

/// Threads that wait for each other, the first one once more at the end.
struct WaitCycle {
    std::vector<int> threads;
    bool isCertain = false; ///< else nobody knows for whom the GUI thread waits
};

/// Who waits for whom, as it is when it is made: threads for the GUI thread by their requests, any thread for another
/// one by joining it or by a mutex that it holds.
class WaitGraph {
public:
    WaitGraph();

    const GuiStatus& gui() const { return mGui; }
    const std::vector<BlockedCall>& calls() const { return mCalls; } ///< the longest first

    /// The one through the GUI thread that is certain; empty where there is none.
    const std::vector<int>& cycle() const { return mCycle; }

    /// The cycle that the caller is in, if he is in one.
    std::optional<WaitCycle> cycleOf(const BlockedCall& call) const;

private:
    int waitsFor(int thread) const;
    bool isBlockedCall(int thread) const;
    void findCycle();

    GuiStatus mGui;
    std::vector<BlockedCall> mCalls;
    std::vector<int> mCycle;
    bool mWaitsForSomebody = false; ///< the GUI thread, and nobody knows for whom
};

} // namespace host
