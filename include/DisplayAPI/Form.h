#pragma once

#include "DisplayAPI/Displayable.h"

#include <string>
#include <vector>

class TranslationInfo;
class TranslatorIfc;

namespace DisplayAPI {

class Command;
class CommandListener;
class FormPrivateIfc;
class SelectionField;

/// A screen of items to fill in, one below the other, of which one is the current one: up and down move. Soft keys
/// stand at its foot.
///
/// Threads: off the GUI thread everything waits that is carried there. clear(), addCommandListener(),
/// setAlternativeCommandHandling(), getItems() and getCommands() are not: they are the GUI thread's. A request that
/// nobody knows is completed without effect.
/// Ownership: a form owns its GUI-thread side and the items in it, which live until clear() or its end and leave it in
/// no other way. Commands, listeners and translators are not owned, nor are translations, which have to live while the
/// form shows them; null is an empty text.
class DISPLAYAPI_EXPORT Form : public Displayable {
public:
    /// How labels and values share a line; any value travels through, and an unknown one is HALF_AND_HALF. On two lines
    /// of text labels do not stand above.
    enum FormProportionType : int { HALF_AND_HALF = 0, SHORT_LABELS = 1, LONG_LABELS = 2, LABELS_ABOVE = 3 };

    explicit Form(FormProportionType proportion);

    /// Adopts a GUI-thread side made elsewhere, or starts without one.
    explicit Form(FormPrivateIfc* implementation);

    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// What the form raises: one object each per process, recognised by its address. Here.
    static Command* CURRENT_ITEM_CHANGED_COMMAND(); ///< the user has gone to another item
    static Command* CLIPBOARD_CHANGED_COMMAND();    ///< another text is on the clipboard
    static Command* SELECTION_CHANGED_COMMAND();    ///< the user has changed the value of the current item
    static Command* SELECTION_DISPLAY_COMMAND();    ///< the user sees the choices of the current item
    static Command* SAVE_COMMAND(); ///< OK on an item that has no use for it, see setAlternativeCommandHandling();
                                    ///< where there are soft keys when it goes up, as OK leads to them while it is held
    static Command* OK_COMMAND();   ///< the same, otherwise
    static Command* BACK_COMMAND(); ///< the left key on an item that has no use for it

    /// Puts the item at the form's end; one that is in it already goes there. The first that the user can work with
    /// becomes the current one. One that is in another form leaves that. Null is ignored.
    void append(Item* item);

    /// The same.
    void setFormOptions(SelectionField* field);

    /// Items stay where they are: these do nothing, and remove nothing.
    void insertItem(Item* item, int index);
    int removeItem(unsigned int index);

    /// Deletes the items, from the last to the first, and forgets the commands. GUI thread only.
    void clear();

    /// Null where there is no current item.
    Item* getSelected();

    /// Ignored where the item is not in the form, or cannot be the current one.
    void setSelected(Item* item);

    /// In order, each once. GUI thread only.
    const std::vector<Item*>& getItems() const { return items; }
    const std::vector<Command*>& getCommands() const { return commands; }

    void setTitle(const std::string& title);

    /// Goes through the queue where no GUI thread is recorded, too; on a recorded one its record is carried out in the
    /// call.
    void setTitle(TranslationInfo* title);

    /// In the language of the moment.
    std::string title();

    /// Whether the user can only read, whatever the items say.
    void setReadonly(bool on);
    bool isReadonly();

    /// What the form's text fields share.
    void setClipboard(const std::string& text);
    std::string getClipboard();

    /// The language in which the user types while he works on the form; null is the display's. Not owned, and has to
    /// live as long as the form, or until it has another.
    void setSpellerLanguage(TranslatorIfc* translator);

    /// The language stays: does nothing.
    void setCurrentLanguageFixed();

    /// A soft key, which is raised when it is chosen. Null is ignored by the screen.
    void addCommand(Command* command);
    void clearCommands();

    /// GUI thread only; nothing where there is no GUI-thread side. A listener is added once; null is ignored.
    void addCommandListener(CommandListener* listener);

    /// Whether OK raises SAVE_COMMAND() in the place of OK_COMMAND(). GUI thread only.
    void setAlternativeCommandHandling(bool on);

private:
    struct Ops;

    void create(FormProportionType proportion);
    void destroy();
    void appendItem(Item* item);
    bool showItem(Item* item);
    void takeFromFormer(Item* item);
    void appendCommand(Command* command);
    void forgetCommands();

    FormPrivateIfc* mImplementation = nullptr;
    std::vector<Item*> items;       // NOLINT(readability-identifier-naming)
    std::vector<Command*> commands; // NOLINT(readability-identifier-naming)
};

} // namespace DisplayAPI
