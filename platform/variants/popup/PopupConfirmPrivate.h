#pragma once

#include "DisplayAPI/PopupConfirmPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/popup/PopupSide.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a popup that asks, whatever the panel.
class DISPLAYAPI_EXPORT PopupConfirmSide : public PopupSide, public PopupConfirmPrivateIfc {
public:
    ~PopupConfirmSide() override;

    void setLine1PrefixText(std::string text) override;
    void setLine1PrefixText(std::unique_ptr<TranslationInfo> text) override;
    void setText(std::string text) override;
    void setText(std::unique_ptr<TranslationInfo> text) override;
    void setLine2PrefixText(std::string text) override;
    void setLine2PrefixText(std::unique_ptr<TranslationInfo> text) override;
    void setLine2Text(std::string text) override;
    void setLine2Text(std::unique_ptr<TranslationInfo> text) override;
    void setState(PopupConfirm::PopupState state) override;
    void open() override;
    void dismiss() override;
    void addCommand(Command* command) override;
    void removeCommand(Command* command) override;
    void setDefaultCommand(Command* command) override;
    void clearCommands() override;
    int getSelectedIndex() override;
    bool selectionHasChanged() override;
    void setTimeout(int milliseconds) override;
    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;

protected:
    PopupConfirmSide(PopupConfirm* owner, bool wayBack, Panel panel);

private:
    Popup& popup() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The popup that asks of the 240 x 128 panel and its narrow form. The left key goes back.
class DISPLAYAPI_EXPORT PopupConfirmPrivate : public PopupConfirmSide {
public:
    /// `owner` is the facade, not owned.
    explicit PopupConfirmPrivate(PopupConfirm* owner);
};

/// The popup that asks of the 208 x 42 panel.
class DISPLAYAPI_EXPORT PopupConfirmPrivateWP1 : public PopupConfirmSide {
public:
    /// `owner` is the facade, not owned. `wayBack`: the left key goes back.
    PopupConfirmPrivateWP1(PopupConfirm* owner, bool wayBack);
};

} // namespace DisplayAPI
