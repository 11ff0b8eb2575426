#pragma once

#include "DisplayAPI/CallConnectedItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"

#include <string>

class CallPartyIdentifier;
class TranslationInfo;

namespace DisplayAPI {

class ContextMenu;
class Image;

/// The GUI-thread side of a call's row. GUI thread only. Its setText() is honoured. Texts are UTF-8; translations are
/// not owned and have to live while they are shown, and a null one is an empty text.
class DISPLAYAPI_EXPORT CallConnectedItemPrivateIfc : public ListItemPrivateIfc {
public:
    virtual void setState(CallConnectedItem::CallStateIcon state) = 0;

    /// Not owned; null is none.
    virtual void setPictureClip(Image* picture) = 0;

    virtual void setSecondLineText(std::string text) = 0;
    virtual void setSecondLineText(TranslationInfo* text) = 0;
    virtual void setThirdLineIconText(ForwardedCallType type, std::string text) = 0;

    /// The parties are the caller's; the second one and the translation may be null.
    virtual void setPartyDetails(const CallPartyIdentifier& party, CallPartyIdentifier* secondParty,
                                 ForwardedCallType type, const std::string& text, TranslationInfo* translation) = 0;

    virtual void setSecurityState(CallConnectedItem::CallSecurityState state) = 0;
    virtual void setRecordingState(bool on) = 0;
    virtual void clearSecondLineText() = 0;
    virtual void setCallId(std::string id) = 0;
    virtual void setCallId(TranslationInfo* id) = 0;
    virtual std::string getCallId() = 0;

    /// Null where the row has none; goes with this side.
    virtual ContextMenu* getContextMenu() = 0;

    virtual void stopDurationTimer() = 0;
    virtual void addGPULine(std::string text) = 0;
    virtual void addGPULine(TranslationInfo* text) = 0;
    virtual void removeGPULine() = 0;
    virtual void enabled(bool on) = 0;
    virtual bool getEnabled() = 0;
    virtual void setDisplayHDIconStatus(bool on) = 0;
};

} // namespace DisplayAPI
