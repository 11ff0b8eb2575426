#pragma once

#include "host/toolkit/MessagePool.h"

namespace host {

/// One run of the GUI thread's loop; Execute() puts the pieces together. GUI thread only.
class MainLoop {
public:
    MainLoop();
    MainLoop(const MainLoop&) = delete;
    MainLoop& operator=(const MainLoop&) = delete;
    ~MainLoop();

    bool hasEnded() const { return mEnded; }

    /// Ends the present run, if there is one, after what it is doing now.
    static void end();

    /// The next message, the caller's until done(); null where none waits.
    PegMessage* take();
    void done(PegMessage* message) { mDone.add(message); }

    /// Whether timers and frames have their turn: when no message waits, and now and then while many do.
    bool isTurnOfOthers() const { return mMessagesInARow % MESSAGES_IN_A_ROW == 0; }

    void paintIfDue();
    static bool isPainted();

    /// Sleeps until a message waits, a timer is due or a frame is due.
    void waitForWork();

private:
    static constexpr int MESSAGES_IN_A_ROW = 32;

    void sleep();

    static MainLoop* gRun;

    bool mEnded = false;
    int mMessagesInARow = 0;
    DoneMessages mDone;
};

} // namespace host
