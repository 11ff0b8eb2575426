#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/PopupDialer.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class DisplayablePrivate;
class ItemStateListener;
class MenuCommand;

/// The GUI-thread side of a dialer. GUI thread only. show() is both what the facade asks for and what the display says
/// when it has happened. Texts are UTF-8; translations become its own.
class DISPLAYAPI_EXPORT PopupDialerPrivateIfc : public virtual DisplayablePrivateIfc {
public:
    /// Deletes it. Displayable::deletePrivateSide() alone calls it.
    virtual void destroy() = 0;

    virtual void addCommandListener(CommandListener* listener) = 0;

    virtual void setLine1PrefixText(std::string text) = 0;
    virtual void setLine1PrefixText(TranslationInfo* text) = 0;
    virtual void setText(std::string text) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setLine2Text(std::string text) = 0;
    virtual void setLine2Text(TranslationInfo* text) = 0;

    virtual std::string getLineEditText() = 0;
    virtual void setLineEditText(std::string text) = 0;
    virtual void setLineEditText(TranslationInfo* text) = 0;

    virtual void addItemStateListener(ItemStateListener* listener) = 0;
    virtual void removeItemStateListener(ItemStateListener* listener) = 0;

    /// Commands are not owned and may be gone: Command::exists() tells. Null is ignored.
    virtual void addCommand(MenuCommand* command) = 0;

    /// Null is the first one. It may be added later.
    virtual void setDefaultCommand(MenuCommand* command) = 0;
    virtual void removeCommand(MenuCommand* command) = 0;

    virtual void setMode(PopupDialer::eMode mode) = 0;
    virtual void setEditMode() = 0;
    virtual void setIgnoreKeypadEvents(bool on) = 0;
    virtual void clearCommands() = 0;

    /// The screen that lies below passes the key on with which the user begins to type. Comes to the top of that
    /// screen's display with this key in its line, and nothing else; false, and nothing happens, where the key types
    /// nothing.
    virtual bool openWith(int key, DisplayablePrivate& below) = 0;

    virtual void dismiss() = 0;

    /// -1 where no command is selected.
    virtual int getSelectedIndex() = 0;
    virtual bool selectionHasChanged() = 0;

    virtual void setStimulusText(std::string text) = 0;
    virtual void setStimulusText(TranslationInfo* text) = 0;
    virtual void showStimulusTextInHeader(bool on) = 0;

protected:
    ~PopupDialerPrivateIfc() = default;
};

} // namespace DisplayAPI
