#pragma once

#include "DisplayAPI/Dialog.h"

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class ItemStateListener;
class MenuCommand;
class PopupDialerPrivateIfc;

/// A popup with a line that the user types a number in, a second line of text, and commands at its foot.
///
/// The left key takes the last character away; where there is none it raises BackCommand() and takes the dialer off the
/// screen. A command of the bar is raised and leaves the dialer where it is.
///
/// Threads: safe from any thread. Off the GUI thread the constructors, the texts' setters, show(), dismiss(),
/// setMode(), setEditMode(), setIgnoreKeypadEvents() and the listeners' operations post and return at once; everything
/// else waits. Calls from one thread keep their order. A request that nobody knows is completed without effect.
/// Ownership: a dialer owns its GUI-thread side and the translations that it is given. Commands and listeners are not
/// owned. A command that has been added may be deleted meanwhile: it keeps its text in the bar and raises nothing.
class DISPLAYAPI_EXPORT PopupDialer : public Dialog {
public:
    /// What the keypad types; any value travels through, and an unknown one is DIALLING.
    enum eMode : int {
        DIALLING = 0, ///< digits, star and hash, and "+" by a long zero
        EDITING = 1,  ///< a text with the letters of the keys; hash goes on to the next input mode
        HIDDEN = 2    ///< as DIALLING, with a dot for each character
    };

    /// `wayBack`: on the 208 x 42 panel the left key goes back; on the others it always does. The number has no effect.
    PopupDialer(bool wayBack, int number);

    /// Adopts a GUI-thread side that has been made already; null is none.
    explicit PopupDialer(PopupDialerPrivateIfc* implementation);
    PopupDialer(const PopupDialer&) = delete;
    PopupDialer& operator=(const PopupDialer&) = delete;
    ~PopupDialer() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Raised when the left key goes back. Recognised by its address, as the next one.
    static Command* BackCommand();

    /// Raised when the edit line has come to the screen, or has taken the place of the first line's text.
    static Command* EditFieldShownCommand();

    /// What stands before the edit line.
    void setLine1PrefixText(const std::string& text);
    void setLine1PrefixText(TranslationInfo* text);

    /// What stands in the edit line's place as long as that is empty.
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setLine1Text(const std::string& text) { setText(text); }
    void setLine1Text(TranslationInfo* text) { setText(text); }

    void setLine2Text(const std::string& text);
    void setLine2Text(TranslationInfo* text);

    /// What is in the edit line, UTF-8. Setting it tells no listener; the cursor goes behind it.
    std::string getLineEditText();
    void setLineEditText(const std::string& text);
    void setLineEditText(TranslationInfo* text);

    /// The name of the key or function that has opened the dialer, and whether it stands in the header; it does not at
    /// first.
    void setStimulusText(const std::string& text);
    void setStimulusText(TranslationInfo* text);
    void clearStimulusText();
    void showStimulusTextInHeader(bool on);

    /// These do nothing; the translation is deleted.
    void setAltEditPrefixText(const std::string& text);
    void setAltEditPrefixText(TranslationInfo* text);
    void setNoScroll();

    /// Puts it on top of its display: the one it was on, as long as no full screen has replaced it there, or else the
    /// one made last; nothing where there is none. Display::setCurrent() shows it as well.
    void show();

    /// Takes it off the screen; nothing where it is on none. Calls that are queued are one.
    void dismiss();

    void setMode(eMode mode);

    /// The same as setMode(EDITING).
    void setEditMode();

    /// While true, digits, star and hash type nothing.
    void setIgnoreKeypadEvents(bool on);

    /// Appends a command to the bar; null and a deleted one are ignored.
    void addCommand(MenuCommand* command);

    /// Ignored where it is not there.
    void removeCommand(MenuCommand* command);

    /// The command that is selected when the dialer comes to the screen, now or later added; null is the first one.
    void setDefaultCommand(MenuCommand* command);

    /// Removes all, and forgets the default one. Off the GUI thread it discards what is still queued of other threads'
    /// additions, removals and defaults; their callers go on.
    void clearCommands();

    /// The selected command of the bar; -1 where there is none, 0 where the popup has no GUI-thread side.
    int getSelectedIndex() const;

    /// Whether the user has moved the selection since the dialer came to the screen or its commands were cleared.
    bool selectionHasChanged() const;

    /// A listener is added once; null is ignored. It has to outlive the dialer.
    void addCommandListener(CommandListener* listener);

    /// Told when the user has changed the edit line; a dialer is no item, so the item is null. A listener is added
    /// once, null is ignored. It has to outlive the dialer, or else live, off the GUI thread, until a waiting call
    /// after removeItemStateListener() has returned.
    void addItemStateListener(ItemStateListener* listener);
    void removeItemStateListener(ItemStateListener* listener);

private:
    struct Ops;

    void create(bool wayBack);
    void destroy();

    PopupDialerPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
