#pragma once

#include "DisplayAPI/PopupTextField.h"
#include "DisplayAPI/PopupTextFieldPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/popup/PopupSide.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a text-field popup, whatever the panel.
class DISPLAYAPI_EXPORT PopupTextFieldSide : public PopupSide, public PopupTextFieldPrivateIfc {
public:
    ~PopupTextFieldSide() override;

    void lostFocus() override;

    std::string getText() override;
    void clear() override;
    void addCommand(MenuCommand* command) override;
    void clearCommands() override;
    void setDefaultCommand(MenuCommand* command) override;
    void dismiss() override;
    void setLabel(TranslationInfo* label) override;
    void setFieldType(TextField::FieldType type) override;
    void setTimeout(int milliseconds) override;
    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void addItemStateListener(ItemStateListener* listener) override;
    void removeItemStateListener(ItemStateListener* listener) override;

protected:
    PopupTextFieldSide(PopupTextField* owner, TextField* field, bool leftGoesBack, Panel panel);

private:
    Popup& popup() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The text-field popup of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT PopupTextFieldPrivate : public PopupTextFieldSide {
public:
    /// `owner` is the facade; neither it nor the field, which may be null, is owned.
    PopupTextFieldPrivate(PopupTextField* owner, TextField* field);
};

/// The text-field popup of the 208 x 42 panel.
class DISPLAYAPI_EXPORT PopupTextFieldPrivateWP1 : public PopupTextFieldSide {
public:
    /// `owner` is the facade; neither it nor the field, which may be null, is owned.
    PopupTextFieldPrivateWP1(PopupTextField* owner, TextField* field, bool leftGoesBack);
};

} // namespace DisplayAPI
