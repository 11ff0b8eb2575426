#pragma once

#include "DisplayAPI/PopupDialerPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/popup/PopupSide.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a dialer, whatever the panel.
class DISPLAYAPI_EXPORT PopupDialerSide : public PopupSide, public PopupDialerPrivateIfc {
public:
    ~PopupDialerSide() override;

    void show() override;
    void lostFocus() override;
    void connectDisplayChangedSignal(DisplayPrivateIfc* display) override;

    void destroy() override;
    void addCommandListener(CommandListener* listener) override;
    void setLine1PrefixText(std::string text) override;
    void setLine1PrefixText(TranslationInfo* text) override;
    void setText(std::string text) override;
    void setText(TranslationInfo* text) override;
    void setLine2Text(std::string text) override;
    void setLine2Text(TranslationInfo* text) override;
    std::string getLineEditText() override;
    void setLineEditText(std::string text) override;
    void setLineEditText(TranslationInfo* text) override;
    void addItemStateListener(ItemStateListener* listener) override;
    void removeItemStateListener(ItemStateListener* listener) override;
    void addCommand(MenuCommand* command) override;
    void setDefaultCommand(MenuCommand* command) override;
    void removeCommand(MenuCommand* command) override;
    void setMode(PopupDialer::eMode mode) override;
    void setEditMode() override;
    void setIgnoreKeypadEvents(bool on) override;
    void clearCommands() override;
    bool openWith(int key, DisplayablePrivate& below) override;
    void dismiss() override;
    int getSelectedIndex() override;
    bool selectionHasChanged() override;
    void setStimulusText(std::string text) override;
    void setStimulusText(TranslationInfo* text) override;
    void showStimulusTextInHeader(bool on) override;

protected:
    PopupDialerSide(PopupDialer* owner, bool wayBack, Panel panel);

private:
    Popup& popup() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The dialer of the 240 x 128 panel and its narrow form. The left key goes back.
class DISPLAYAPI_EXPORT PopupDialerPrivate : public PopupDialerSide {
public:
    /// `owner` is the facade, not owned.
    explicit PopupDialerPrivate(PopupDialer* owner);
};

/// The dialer of the 208 x 42 panel.
class DISPLAYAPI_EXPORT PopupDialerPrivateWP1 : public PopupDialerSide {
public:
    /// `owner` is the facade, not owned. `wayBack`: the left key goes back.
    PopupDialerPrivateWP1(PopupDialer* owner, bool wayBack);
};

} // namespace DisplayAPI
