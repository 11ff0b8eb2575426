#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

#include <string>

class CallPartyIdentifier;
class TranslationInfo;

namespace DisplayAPI {

class PopupDialer;

/// The GUI-thread side of an idle display. GUI thread only. Deleted by Displayable::deletePrivateSide() alone.
///
/// What the user does it tells the facade: IdleDisplay::fireBackCommand() and fireMenuCommand(). Texts are UTF-8, empty
/// ones are not shown; translations are not owned, may be null, and have to live as long as they are shown.
class DISPLAYAPI_EXPORT IdleDisplayPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~IdleDisplayPrivateIfc() = default;

public:
    /// The commands' texts follow.
    virtual void localeChanged(const std::string& locale) = 0;

    /// Nothing is shown of 0 and less.
    virtual void setMessages(int count) = 0;
    virtual void setMissedCalls(int count) = 0;

    /// Each takes the place of the others. `party` is not kept; null is none.
    virtual void setForwardingAddress(const std::string& address) = 0;
    virtual void setForwardingAddress(TranslationInfo* address) = 0;
    virtual void setForwardingAddress(TranslationInfo* address, CallPartyIdentifier* party) = 0;
    virtual void setServerBasedForwardingAddress(const std::string& address) = 0;
    virtual void setServerBasedForwardingAddress(TranslationInfo* address) = 0;

    /// Commands are known by their place, from 0; what is outside is ignored.
    virtual void addCommand(const std::string& text) = 0;
    virtual void setCommandText(int index, const std::string& text) = 0;
    virtual void clearCommands() = 0;
    virtual void setDefaultMenuCommand(int index) = 0;

    /// Takes the widget off the screen and back from the presentation manager.
    virtual void hide() = 0;

    virtual void addSystemMessage(const std::string& message) = 0;
    virtual void addSystemMessage(TranslationInfo* message) = 0;
    virtual void clearSystemMessages() = 0;

    /// The path of a PNG file; empty is none.
    virtual void changeLogo(const std::string& path) = 0;
    virtual void setBrandingText(const std::string& text) = 0;

    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, const std::string& text) = 0;

    /// Whether a digit opens the dialer.
    virtual void showDialer(bool on) = 0;

    /// The dialer that a digit opens; not owned. Null: IdleDisplay::getDialer() makes one.
    virtual void setDialler(PopupDialer* dialler) = 0;

    virtual void setForwardingIconVisible(bool on) = 0;
    virtual void setCurrentPhoneNumber(const std::string& number) = 0;
    virtual void setDisplayIdUnicode(const std::string& name) = 0;
    virtual void setUseDisplayId(bool on) = 0;
    virtual void displayMobileUserIcon(bool on, int kind) = 0;
};

} // namespace DisplayAPI
