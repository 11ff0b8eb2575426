#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/IdleDisplayPrivateIfc.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

class IdleDisplay;

/// The GUI-thread side of an idle display, whatever the panel.
class DISPLAYAPI_EXPORT IdleDisplaySide : public DisplayablePrivate, public IdleDisplayPrivateIfc {
public:
    ~IdleDisplaySide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;
    void setSysWindowSize(int lines) override;
    void setSysWindowText(std::string text, int line) override;
    bool hasSystemWindow() override;

    void localeChanged(const std::string& locale) override;
    void setMessages(int count) override;
    void setMissedCalls(int count) override;
    void setForwardingAddress(const std::string& address) override;
    void setForwardingAddress(TranslationInfo* address) override;
    void setForwardingAddress(TranslationInfo* address, CallPartyIdentifier* party) override;
    void setServerBasedForwardingAddress(const std::string& address) override;
    void setServerBasedForwardingAddress(TranslationInfo* address) override;
    void addCommand(const std::string& text) override;
    void setCommandText(int index, const std::string& text) override;
    void clearCommands() override;
    void setDefaultMenuCommand(int index) override;
    void hide() override;
    void addSystemMessage(const std::string& message) override;
    void addSystemMessage(TranslationInfo* message) override;
    void clearSystemMessages() override;
    void changeLogo(const std::string& path) override;
    void setBrandingText(const std::string& text) override;
    void setSystemWindowSize(int lines) override;
    void setSystemWindowText(int line, const std::string& text) override;
    void showDialer(bool on) override;
    void setDialler(PopupDialer* dialler) override;
    void setForwardingIconVisible(bool on) override;
    void setCurrentPhoneNumber(const std::string& number) override;
    void setDisplayIdUnicode(const std::string& name) override;
    void setUseDisplayId(bool on) override;
    void displayMobileUserIcon(bool on, int kind) override;

protected:
    IdleDisplaySide(IdleDisplay* owner, const std::string& logo, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The idle display of the 240 x 128 panel and its narrow form. It draws the status lines itself.
class DISPLAYAPI_EXPORT IdleDisplayPrivate : public IdleDisplaySide {
public:
    /// `owner` is the facade, not owned; `logo` as for changeLogo().
    IdleDisplayPrivate(IdleDisplay* owner, const std::string& logo);
};

/// The idle display of the 208 x 42 panel.
class DISPLAYAPI_EXPORT IdleDisplayPrivateWP1 : public IdleDisplaySide {
public:
    /// `owner` is the facade, not owned; `logo` as for changeLogo().
    IdleDisplayPrivateWP1(IdleDisplay* owner, const std::string& logo);
};

} // namespace DisplayAPI
