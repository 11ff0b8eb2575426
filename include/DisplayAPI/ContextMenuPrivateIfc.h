#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

class TranslatorIfc;

namespace DisplayAPI {

class Command;
class CommandListener;
class MenuCommand;

/// The GUI-thread side of a context menu. GUI thread only. Deleted by Displayable::deletePrivateSide() alone.
class DISPLAYAPI_EXPORT ContextMenuPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~ContextMenuPrivateIfc() = default;

public:
    /// Comes to the top of a display by itself; show() is what the display says when it has happened.
    virtual void open() = 0;
    virtual void dismiss() = 0;

    /// Commands are not owned and may be gone: Command::exists() tells. Null is ignored; `second` may be null.
    virtual void addCommand(Command* command, Command* second, bool marked) = 0;
    virtual void addCommandWithIcon(MenuCommand* command) = 0;
    virtual void clearCommands() = 0;

    /// Null is the first one. It may be added later.
    virtual void setDefaultCommand(MenuCommand* command) = 0;

    /// Null where no command is selected.
    virtual Command* getSelectedCommand() = 0;

    /// -1 where no command is selected.
    virtual int getSelectedIndex() = 0;
    virtual bool selectionHasChanged() = 0;

    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;

    /// Not owned; null is none.
    virtual void setBackTranslator(TranslatorIfc* translator) = 0;
    virtual void setRightArrowEqualsOK(bool on) = 0;

    /// 0 and less is none.
    virtual void setAutoHideTimeout(int milliseconds) = 0;

    /// Any number: as many as leave room for a row stay free. The display sets 0 when another displayable is current.
    virtual void setSysWindowSize(int lines) = 0;
};

} // namespace DisplayAPI
