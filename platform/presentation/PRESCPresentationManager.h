#pragma once

#include "toolkit/PegThing.h"

/// Root of the widget tree that is on screen, and the GUI thread's loop.
///
///     until PM_EXIT:
///         wait until the main queue holds a message, a timer is due or a frame is due
///         take one message off the head, unlock, dispatch it
///         when the queue is empty, or the last frame is long enough ago: paint what is marked
///
/// Dispatching is not re-entrant: a handler that wants something done later pushes a message.
/// What is added lies on top of everything but status messages.
/// Ownership: widgets added here belong to the manager until they are removed.
class PRESCPresentationManager : public PegThing {
public:
    PRESCPresentationManager();
    ~PRESCPresentationManager() override;

    /// Runs the loop until PM_EXIT arrives. `sourceFile` names the caller in traces; may be null.
    void Execute(const char* sourceFile);

    int Message(const PegMessage& message) override;

    /// Moves the focus to `thing`: the status bit PSF_CURRENT goes from the old branch to the new one. Ignored where
    /// `thing` is null, not in this tree, or a background.
    void MoveFocusTree(PegThing* thing);

    /// The thing that receives keys; null when none has the focus.
    PegThing* Focus() const { return mFocus; }

    /// The thing that was added, removed or uncovered last and waits to be painted again; null when nothing waits.
    PegThing* Pending() const { return mPending; }

private:
    friend class PegThing;

    void childAdded(PegThing* child, bool redraw);
    void slipUnderMessages(PegThing* child);
    void lower(PegThing* child);
    void childRemoved(PegThing* child, bool redraw);
    void forget(PegThing* thing);
    static void markBranch(PegThing* thing, bool current);

    PegThing* mFocus = nullptr;
    PegThing* mPending = nullptr;
};

/// The running presentation manager; null before pegInit() and after pegCleanUp().
extern PRESCPresentationManager* gpPresent;
