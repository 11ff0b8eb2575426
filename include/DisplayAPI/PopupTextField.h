#pragma once

#include "DisplayAPI/Dialog.h"
#include "DisplayAPI/TextField.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class ItemStateListener;
class MenuCommand;
class PopupTextFieldPrivateIfc;

/// A popup in which the user edits a text field over the current screen: a label, a line of text, and commands. It
/// comes up with the text of the field, and what the user types is the field's at once. Display::setCurrent() shows it.
///
/// Threads: safe from any thread but for those of command listeners, which are the GUI thread's. The listeners'
/// operations run where they are called; off the GUI thread everything else waits. A request that nobody knows is
/// completed without effect. Ownership: a popup owns its GUI-thread side. Neither the field, which may go before it,
/// nor commands and listeners are owned. A translation is not owned and has to live while it is shown; null is an empty
/// text.
class DISPLAYAPI_EXPORT PopupTextField : public Dialog {
public:
    /// The flag says whether the left key at the text's beginning takes it off the screen on the panel of two lines; on
    /// the others it always does. A null field makes it one without a field.
    PopupTextField(TextField* field, bool leftGoesBack);

    /// Without a field, for a text of its own. Off the GUI thread alone: there it has no GUI-thread side, and every
    /// operation is ignored.
    explicit PopupTextField(bool leftGoesBack);

    /// Adopts a GUI-thread side made elsewhere, or starts without one.
    explicit PopupTextField(PopupTextFieldPrivateIfc* implementation);

    PopupTextField(const PopupTextField&) = delete;
    PopupTextField& operator=(const PopupTextField&) = delete;
    ~PopupTextField() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Raised once each time that the popup has taken itself off its display: by the left key, when its time is up, and
    /// by dismiss(). Not where another screen has taken its place, or it is deleted. Recognised by its address.
    static MenuCommand* HIDDEN_COMMAND();

    /// What the popup shows, or will show: of the field's text what its type takes. What the application sets in the
    /// field while it is on the screen comes with the next time, unless the user has typed there meanwhile.
    std::string getText();

    /// Empties the field, too.
    void clearText();

    /// Takes it off the screen; nothing where it is on none.
    void dismiss();

    /// Raised when the user chooses it; the popup stays. Null is ignored.
    void addCommand(MenuCommand* command);

    /// Forgets the default one, too.
    void clearCommands();

    /// Selected where the user has not moved, now or when it is added; null is the first one.
    void setDefaultCommand(MenuCommand* command);

    /// The label of its field at first.
    void setLabel(TranslationInfo* label);

    /// Any value travels through; an unknown one is TEXT. The type of its field at first.
    void setFieldType(const TextField::FieldType& type);

    /// The milliseconds without a key after which the popup leaves the screen; 0 and less is never.
    void setTimeout(int milliseconds);

    /// Not carried to the GUI thread, and its own; nothing where there is no GUI-thread side. A listener is added once;
    /// null is ignored. It has to outlive the popup, or else be removed before.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

    /// The same, but for any thread, as long as the popup is there. Told of the field, or of null where there is none,
    /// when the user has changed the text. What is queued with null when the popup is deleted is still told.
    void addItemStateListener(ItemStateListener* listener);
    void removeItemStateListener(ItemStateListener* listener);

private:
    struct Ops;

    void create(TextField* field, bool leftGoesBack);
    void destroy();

    PopupTextFieldPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
