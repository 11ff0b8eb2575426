#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/PopupCall.h"

#include <memory>
#include <string>

class CallPartyIdentifier;
class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class Image;
class MenuCommand;

/// The GUI-thread side of a call popup. GUI thread only. Texts are UTF-8; translations become its own, and a null one
/// is an empty text.
class DISPLAYAPI_EXPORT PopupCallPrivateIfc : public virtual DisplayablePrivateIfc {
public:
    /// Deletes it. Displayable::deletePrivateSide() alone calls it.
    virtual void destroy() = 0;

    /// `redirecting` and `translation` may be null.
    virtual void setPopupCallDetails(std::unique_ptr<CallPartyIdentifier> party,
                                     std::unique_ptr<CallPartyIdentifier> redirecting, ForwardedCallType type,
                                     std::string text, std::unique_ptr<TranslationInfo> translation) = 0;

    virtual void setLine1PrefixText(std::string text) = 0;
    virtual void setLine1PrefixText(TranslationInfo* text) = 0;
    virtual void setText(std::string text) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setLine2PrefixText(std::string text) = 0;
    virtual void setLine2PrefixText(TranslationInfo* text) = 0;
    virtual void setLine2Text(std::string text) = 0;
    virtual void setLine2Text(TranslationInfo* text) = 0;
    virtual void setAuxText(std::string text) = 0;
    virtual void setState(PopupCall::CallState state, PopupCall::CallPriority priority) = 0;

    /// Not owned; null is none.
    virtual void setPictureClip(Image* picture) = 0;

    /// Commands are not owned and may be gone: Command::exists() tells. Null is ignored.
    virtual void addCommand(MenuCommand* command) = 0;

    /// Null is the first one. It may be added later.
    virtual void setDefaultCommand(MenuCommand* command) = 0;
    virtual void clearCommands() = 0;

    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;

    virtual void dismiss() = 0;

    /// -1 where no command is selected.
    virtual int getSelectedIndex() = 0;
    virtual bool selectionHasChanged() = 0;

protected:
    ~PopupCallPrivateIfc() = default;
};

} // namespace DisplayAPI
