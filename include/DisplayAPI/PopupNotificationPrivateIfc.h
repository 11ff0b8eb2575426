#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/PopupNotification.h"

#include <memory>
#include <string>

class CallPartyIdentifier;
class TranslationInfo;

namespace DisplayAPI {

class CommandListener;

/// The GUI-thread side of a notification. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Texts are
/// UTF-8; a null translation is an empty text.
class DISPLAYAPI_EXPORT PopupNotificationPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~PopupNotificationPrivateIfc() = default;

public:
    virtual void setLine1PrefixText(std::string text) = 0;
    virtual void setLine1PrefixText(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setText(std::string text) = 0;
    virtual void setText(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setLine2Icon(PopupNotification::IconElemType icon) = 0;
    virtual void setLine2PrefixText(std::string text) = 0;
    virtual void setLine2PrefixText(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setLine2Text(std::string text) = 0;
    virtual void setLine2Text(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setLine3Text(std::string text) = 0;
    virtual void setLine3Text(std::unique_ptr<TranslationInfo> text) = 0;

    /// 0 and less is none.
    virtual void setTimeout(int milliseconds) = 0;
    virtual void setDismissible(bool on) = 0;
    virtual void setType(PopupNotification::InfoType type) = 0;

    /// Comes to the top of a display by itself; show() is what the display says when it has happened.
    virtual void open() = 0;

    /// Raises HIDDEN_COMMAND() where it has been on a display, after it has left it; so do the keys and the time-out.
    virtual void dismiss() = 0;

    /// Neither is null.
    virtual void setForwardNotification(std::unique_ptr<CallPartyIdentifier> caller,
                                        std::unique_ptr<CallPartyIdentifier> called, ForwardedCallType type) = 0;

    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
};

} // namespace DisplayAPI
