#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/TextField.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class ItemStateListener;
class MenuCommand;

/// The GUI-thread side of a text-field popup. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Texts
/// are UTF-8; a null translation is an empty text.
class DISPLAYAPI_EXPORT PopupTextFieldPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~PopupTextFieldPrivateIfc() = default;

public:
    virtual std::string getText() = 0;
    virtual void clear() = 0;

    /// Commands are not owned and may be gone: Command::exists() tells. Null is ignored.
    virtual void addCommand(MenuCommand* command) = 0;
    virtual void clearCommands() = 0;

    /// Null is the first one. It may be added later.
    virtual void setDefaultCommand(MenuCommand* command) = 0;

    /// Raises HIDDEN_COMMAND() where it has been on a display, after it has left it; so do the left key and the
    /// time-out.
    virtual void dismiss() = 0;

    virtual void setLabel(TranslationInfo* label) = 0;
    virtual void setFieldType(TextField::FieldType type) = 0;

    /// 0 and less is none.
    virtual void setTimeout(int milliseconds) = 0;

    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
    virtual void addItemStateListener(ItemStateListener* listener) = 0;
    virtual void removeItemStateListener(ItemStateListener* listener) = 0;
};

} // namespace DisplayAPI
