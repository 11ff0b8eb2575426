#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/PopupConfirm.h"

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;

/// The GUI-thread side of a popup that asks. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Texts
/// are UTF-8; a null translation is an empty text.
class DISPLAYAPI_EXPORT PopupConfirmPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~PopupConfirmPrivateIfc() = default;

public:
    virtual void setLine1PrefixText(std::string text) = 0;
    virtual void setLine1PrefixText(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setText(std::string text) = 0;
    virtual void setText(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setLine2PrefixText(std::string text) = 0;
    virtual void setLine2PrefixText(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setLine2Text(std::string text) = 0;
    virtual void setLine2Text(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setState(PopupConfirm::PopupState state) = 0;

    /// Comes to the top of a display by itself; show() is what the display says when it has happened.
    virtual void open() = 0;

    /// Raises HIDDEN_COMMAND() where it has been on a display, after it has left it; so do an answer and the time-out.
    virtual void dismiss() = 0;

    /// Commands are not owned and may be gone: Command::exists() tells. Null is ignored.
    virtual void addCommand(Command* command) = 0;
    virtual void removeCommand(Command* command) = 0;

    /// Null is the first one. It may be added later.
    virtual void setDefaultCommand(Command* command) = 0;
    virtual void clearCommands() = 0;

    /// -1 where no command is selected.
    virtual int getSelectedIndex() = 0;
    virtual bool selectionHasChanged() = 0;

    /// 0 and less is none.
    virtual void setTimeout(int milliseconds) = 0;

    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
};

} // namespace DisplayAPI
