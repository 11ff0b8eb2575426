#pragma once

#include "DisplayAPI/Dialog.h"

namespace DisplayAPI {

class Command;
class CommandListener;
class PopupPlayerPrivateIfc;

/// The popup of a media player: what its commands are. This telephone plays nothing, so it shows nothing:
/// where it is made current, all other displayables leave the screen, and do not come back when it goes.
///
/// Threads: made and deleted on the GUI thread. Once a display has been made, a worker that does either waits for ever:
/// the request is carried out and never completed. Everything else runs on the calling thread.
/// Ownership: a popup owns its GUI-thread side.
class DISPLAYAPI_EXPORT PopupPlayer : public Dialog {
public:
    PopupPlayer();

    /// Adopts a GUI-thread side, which the popup deletes; null leaves it without one.
    explicit PopupPlayer(PopupPlayerPrivateIfc* implementation);
    PopupPlayer(const PopupPlayer&) = delete;
    PopupPlayer& operator=(const PopupPlayer&) = delete;
    ~PopupPlayer() override;

    /// Both are GUI thread only. No request is ever completed.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// There is no progress bar: these do nothing, and the value is 0.
    void setProgressBarValue(int value);
    void setProgressBarStepValue(unsigned int step);
    int getProgressBarValue();

    /// Nothing is raised: these do nothing.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// The player's commands, for whoever plays: each is the same for the whole process, has an empty label, and is not
    /// the caller's.
    static Command* CALL();
    static Command* SKIP_FORWARD();
    static Command* FORWARD();
    static Command* PLAY();
    static Command* STOP();
    static Command* PAUSE();
    static Command* REWIND();
    static Command* SKIP_REWIND();
    static Command* DELETE();

private:
    struct Ops;

    void create();
    void destroy();

    PopupPlayerPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
