#pragma once

#include "DisplayAPI/Displayable.h"

#include <vector>

class TranslatorIfc;

namespace DisplayAPI {

class Command;
class CommandListener;
class ContextMenuPrivateIfc;
class MenuCommand;

/// A popup with commands, one below the other, from which the user chooses one. Choosing takes it off the screen and
/// raises the command for the listeners.
///
/// Threads: safe from any thread. Off the GUI thread the constructor, show(), addCommandListener(),
/// removeCommandListener(), setRightArrowEqualsOK() and setAutoHideTimeout() post and return at once; everything else
/// waits. A request that nobody knows is not completed: do not wait for one.
/// Ownership: a menu owns its GUI-thread side. Commands, listeners and translators are not owned. A command that has
/// been added may be deleted while the menu shows it: its row stays and, chosen, takes the menu off the screen and
/// raises nothing. A translator has to outlive the menu.
class DISPLAYAPI_EXPORT ContextMenu : public Displayable {
public:
    /// `wayBack`: on the 208 x 42 panel the menu ends with a row that goes back, and the left key goes back as well.
    /// The other panels always have the key and never the row. Hardware of sub-variant 3 has neither on the small
    /// panel.
    explicit ContextMenu(bool wayBack);
    ContextMenu(const ContextMenu&) = delete;
    ContextMenu& operator=(const ContextMenu&) = delete;
    ~ContextMenu() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Puts it on top of its display: the one it was on, as long as no full screen has replaced it there, or else the
    /// one made last; nothing where there is none. Where it is on top already, its time-out begins anew.
    /// Display::setCurrent() shows it as well.
    void show();

    /// Takes it off the screen; nothing where it is on none.
    void dismiss();

    /// Appends a command; null and a deleted one are ignored. `second` is what the right key raises on its row; null is
    /// nothing. `marked` puts a check mark behind it. A menu command shows its icon.
    void addCommand(Command* command, Command* second, bool marked);

    /// As addCommand(command, nullptr, false): the other arguments have no effect.
    void addCommandWithIcon(MenuCommand* command, Command* second, bool marked);

    /// Removes all commands, and forgets the default one. Off the GUI thread it discards what is still queued of other
    /// threads' additions, removals and defaults; their callers go on.
    void clearCommands();

    /// clearCommands(), then addCommandWithIcon() for each: a wait for each of them. Two threads that do so at once
    /// share one menu.
    void setCommands(const std::vector<MenuCommand*>& commands);

    /// The command that is selected when the menu comes to the screen, now or later added; null is the first one.
    void setDefaultCommand(MenuCommand* command);

    /// The selected one; null where there is none, on the row that goes back, and where it has been deleted.
    Command* getSelectedCommand();

    /// The selected row; -1 where there is none, and on the row that goes back. 0 where the menu has no GUI-thread
    /// side.
    int getSelectedIndex() const;

    /// Whether the user has moved the selection since the menu came to the screen or was cleared.
    bool selectionHasChanged() const;

    /// A listener is added once; null is ignored. It has to outlive the menu, or else live, off the GUI thread, until a
    /// waiting call after removeCommandListener() has returned.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// Gives the row that goes back its text, which is looked up as "Back". Without one the row is an arrow.
    void setBackTranslator(TranslatorIfc* translator);

    /// Does nothing: commands bring their own texts.
    void setTranslator(TranslatorIfc* translator);

    /// Whether the right key chooses, as OK does.
    void setRightArrowEqualsOK(bool on);

    /// The milliseconds without a key after which the menu leaves the screen, and tells no listener; 0 and less is
    /// never.
    void setAutoHideTimeout(int milliseconds);

    /// How many status lines at the top of the panel stay free; as many as leave room for a row. Forgotten, as any
    /// displayable's, when another one becomes current: say it again.
    void setSysWindowSize(int lines);

private:
    struct Ops;

    void create(bool wayBack);
    void destroy();

    ContextMenuPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
