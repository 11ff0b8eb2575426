#pragma once

#include "DisplayAPI/Displayable.h"

#include <memory>
#include <string>
#include <vector>

class CallPartyIdentifier;
class Semaphore;
class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class IdleDisplayPrivateIfc;
class MenuCommand;
class PopupDialer;

/// The screen of a telephone that nobody uses: time, date and who it is, a logo, what waits, where calls are forwarded,
/// messages in turn, a menu of commands, and a dialer for who begins to dial.
///
/// Threads: safe from any thread. Off the GUI thread addCommand(), getDialer() and the destructor wait, and
/// setCommands() for each command; everything else posts and returns at once, but for what says "here". A setter
/// discards what is still queued of itself: the last call counts. Calls from one thread keep their order otherwise.
/// Ownership: an idle display owns its GUI-thread side, and a dialer that it has made itself. Commands, listeners,
/// other dialers and translations are not owned and have to live until the display has let go of them; a command that
/// is gone keeps its place in the menu and raises nothing. Texts are UTF-8; empty ones and null translations take what
/// they say off the screen.
class DISPLAYAPI_EXPORT IdleDisplay : public Displayable {
public:
    /// `logo` is the path of a PNG file, as for changeLogo(); empty is none.
    explicit IdleDisplay(std::string logo);

    /// Adopts a GUI-thread side made elsewhere, or starts without one; here.
    explicit IdleDisplay(IdleDisplayPrivateIfc* implementation);

    IdleDisplay(const IdleDisplay&) = delete;
    IdleDisplay& operator=(const IdleDisplay&) = delete;
    ~IdleDisplay() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Deletes the GUI-thread side, and a dialer of its own. GUI thread only; the destructor sees to it.
    void cleanUp();

    /// How many wait; nothing is shown of 0 and less.
    void setMessages(int count);
    void setMissedCalls(int count);

    /// Where calls are forwarded to, by the telephone and by the server. The text and the translation of one take the
    /// place of each other. With a party its name or number stands behind the translation; where neither is known it
    /// says so. The party is read while the call is carried out.
    void setForwardingAddress(const std::string& address);
    void setForwardingAddress(TranslationInfo* address);
    void setForwardingAddress(TranslationInfo* address, CallPartyIdentifier* party);
    void clearForwardingAddress();
    void setServerBasedForwardingAddress(const std::string& address);
    void setServerBasedForwardingAddress(TranslationInfo* address);
    void clearServerBasedForwardingAddress();

    /// Does nothing.
    void setServerBasedForwardingAddress(TranslationInfo* address, CallPartyIdentifier* party);

    /// Whether an arrow tells that calls are forwarded, with an address or without. Before the first call it stands in
    /// front of each address.
    void setForwardingIconVisible(bool on);

    /// Appends a command to the menu; null and a deleted one are ignored.
    void addCommand(Command* command);
    void clearCommands();

    /// clearCommands(), then addCommand() for each.
    void setCommands(const std::vector<MenuCommand*>& commands);

    /// The command that is selected when the menu opens. One that is not in the menu is appended; null means the last
    /// one there.
    void setDefaultMenuCommand(MenuCommand* command);

    /// Takes it off the screen; on its display's stack it stays.
    void hide();

    /// Messages are shown in turn, in the order in which they were added.
    void addSystemMessage(std::string message);
    void addSystemMessage(TranslationInfo* message);
    void clearSystemMessages();

    /// The path of a PNG file, shown in the panel's greys. It is read when it is painted first, and again whenever its
    /// room changes. One that is missing or broken shows nothing.
    void changeLogo(std::string path);

    /// Stands with the logo.
    void setBrandingText(const std::string& text);

    /// Status lines of its own: 0 to 6, others are cut to that; lines outside 0 to 5 are ignored. Line 0 takes the
    /// place of the telephone's name. A queued text is discarded by the next, whatever its line: from another thread
    /// set one line, and wait. Forgotten, as any displayable's, when another one becomes current: say it again. Without
    /// effect on the 208 x 42 panel.
    void setSystemWindowSize(int lines);
    void setSystemWindowText(int line, const std::string& text);

    /// Whether a digit opens the dialer, with the digit in its line.
    void showDiallerOnInitialKeyEvent(bool on);

    /// Takes the place of the present dialer, which is deleted where this display has made it; null takes it away.
    void addDialer(PopupDialer* dialer);

    /// The present dialer. Where there is none this display makes one.
    PopupDialer* getDialer();

    /// What the telephone is called: the number, or the name where that is to be used.
    void setCurrentPhoneNumber(std::string number);
    void setDisplayIdUnicode(std::string identity);
    void setUseDisplayId(bool on);

    /// Whether a symbol tells that a mobile user is logged on. Off the GUI thread the kind does not travel: 0 does.
    void displayMobileUserIcon(bool on, int kind);

    /// These do nothing.
    void setUsedWithTab(bool used, Displayable* tab);
    void setAsListenerForUnhandledKeypadEvents();

    /// Hands the locale on, and the commands' texts in the new language. GUI thread only.
    void localeChanged(std::string locale);

    /// A listener that is added twice is called twice; null is ignored. Removing takes one of them away, and does not
    /// wait for what is being delivered. Here.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// Queue the notification of a command for every listener, in order: that of going back, or that at `index` in the
    /// menu; nothing where there is none or it has been deleted. GUI thread only.
    void fireBackCommand();
    void fireMenuCommand(int index);

    /// One object per process, recognised by its address and never destroyed. Here.
    static Command* BACK_COMMAND();

private:
    struct Ops;
    class ListenerLock;

    void create(const std::string& logo);
    void addCommandImpl(Command* command);
    void clearCommandsImpl();
    void setDefaultMenuCommandImpl(MenuCommand* command);
    void addDialerImpl(PopupDialer* dialer);
    PopupDialer* dialer();
    void connectDialer();
    void deleteDiallerIfNecessary();
    void fire(Command* command);

    IdleDisplayPrivateIfc* mImplementation = nullptr;
    std::vector<CommandListener*> mListeners;
    std::vector<Command*> mCommands;
    std::unique_ptr<Semaphore> mListenerLock;
    PopupDialer* mDialer = nullptr;
    bool mHasMadeDialer = false;
};

} // namespace DisplayAPI
