#pragma once

#include "DisplayAPI/Dialog.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class MenuCommand;
class PopupProgressPrivateIfc;

/// A popup that shows how far something is: what is under way, its stage, what is being done, and a bar. The user
/// cannot work with it, and it stays until the application dismisses it.
///
/// Threads: safe from any thread. Off the GUI thread everything waits; what does nothing runs here. A request that
/// nobody knows is completed without effect.
/// Ownership: a popup owns its GUI-thread side and the translations that it is given.
class DISPLAYAPI_EXPORT PopupProgress : public Dialog {
public:
    /// What tells how far it is; any value travels through, and an unknown one shows nothing of it.
    enum ProgressType : int { NO_BAR = 0, BAR = 1, PERCENT = 2, STEPS = 3, BAR_AND_PERCENT = 4 };

    /// What kind of work it is, which an icon tells; any value travels through, and an unknown one has no icon.
    enum InfoType : int { PLAIN = 0, INFORMATION = 1, WARNING = 2, FAILURE = 3, SUCCESS = 4 };

    /// Where there is no current application the popup has no GUI-thread side, and shows nothing.
    explicit PopupProgress(ProgressType type);

    /// The same as PopupProgress(BAR_AND_PERCENT).
    PopupProgress();
    PopupProgress(const PopupProgress&) = delete;
    PopupProgress& operator=(const PopupProgress&) = delete;
    ~PopupProgress() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// What is under way, the stage that it has come to, and what is being done. On two lines there is room for the
    /// first one and the bar.
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setCurrentStageText(const std::string& text);
    void setCurrentStageText(TranslationInfo* text);
    void setCurrentActivityText(const std::string& text);
    void setCurrentActivityText(TranslationInfo* text);

    /// From 0 to 100; what lies beyond is the nearer of the two.
    void updateProgressBar(int percent);

    void setType(InfoType type);

    /// Puts it on top of its display: the one it was on, as long as no full screen has replaced it there, or else the
    /// one made last; nothing where there is none. Display::setCurrent() shows it as well.
    void show();

    /// Takes it off the screen; nothing where it is on none.
    void dismiss();

    /// These do nothing: there is nothing to choose, and nothing is raised.
    void addCommand(MenuCommand* command);
    void clearCommands();
    void addCommandListener(CommandListener* listener);
    void displayProgressBar(bool on);

private:
    struct Ops;

    void create(ProgressType type);
    void destroy();

    PopupProgressPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
