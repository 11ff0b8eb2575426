#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

#include <string>

class TranslationInfo;
class TranslatorIfc;

namespace DisplayAPI {

class Command;
class CommandListener;
class Item;
class ItemPrivateIfc;

/// The GUI-thread side of a form. GUI thread only. Items, commands, listeners, translations and translators are not
/// owned; texts are UTF-8.
class DISPLAYAPI_EXPORT FormPrivateIfc : public virtual DisplayablePrivateIfc {
public:
    /// Deletes it. Displayable::deletePrivateSide() alone calls it.
    virtual void destroy() = 0;

    /// The item's widget has become the form's. Null is ignored.
    virtual void own(ItemPrivateIfc* item) = 0;

    virtual void addCommandListener(CommandListener* listener) = 0;

    /// Soft keys. Null is ignored.
    virtual void addCommand(Command* command) = 0;
    virtual void clearCommands() = 0;

    /// The current item; null where none can be it.
    virtual Item* getSelected() = 0;

    /// Ignored where the item is not in the form, or cannot be the current one.
    virtual void setSelected(Item* item) = 0;

    virtual void setTitle(std::string title) = 0;
    virtual void setTitle(TranslationInfo* title) = 0;

    /// In the language of the moment.
    virtual std::string title() = 0;

    /// Whether the user can only read, whatever the items say.
    virtual void setReadonly(bool on) = 0;
    virtual bool isReadonly() = 0;

    virtual std::string getClipboard() = 0;
    virtual void setClipboard(std::string text) = 0;

    /// Puts the widget at the end of the column, also where it is in it already. A null widget takes no room.
    virtual void append(Item* item, PegThing* widget) = 0;

    /// Whether OK raises SAVE_COMMAND() in the place of OK_COMMAND().
    virtual void setAlternativeCommandHandling(bool on) = 0;

    /// Has the keypad's tables for what types in the form; null are the display's.
    virtual void setSpellerLanguage(TranslatorIfc* translator) = 0;

protected:
    ~FormPrivateIfc() = default;
};

} // namespace DisplayAPI
