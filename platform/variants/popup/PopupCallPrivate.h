#pragma once

#include "DisplayAPI/PopupCallPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/popup/PopupSide.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a call popup, whatever the panel.
class DISPLAYAPI_EXPORT PopupCallSide : public PopupSide, public PopupCallPrivateIfc {
public:
    ~PopupCallSide() override;

    void destroy() override;
    void setPopupCallDetails(std::unique_ptr<CallPartyIdentifier> party,
                             std::unique_ptr<CallPartyIdentifier> redirecting, ForwardedCallType type, std::string text,
                             std::unique_ptr<TranslationInfo> translation) override;
    void setLine1PrefixText(std::string text) override;
    void setLine1PrefixText(TranslationInfo* text) override;
    void setText(std::string text) override;
    void setText(TranslationInfo* text) override;
    void setLine2PrefixText(std::string text) override;
    void setLine2PrefixText(TranslationInfo* text) override;
    void setLine2Text(std::string text) override;
    void setLine2Text(TranslationInfo* text) override;
    void setAuxText(std::string text) override;
    void setState(PopupCall::CallState state, PopupCall::CallPriority priority) override;
    void setPictureClip(Image* picture) override;
    void addCommand(MenuCommand* command) override;
    void setDefaultCommand(MenuCommand* command) override;
    void clearCommands() override;
    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void dismiss() override;
    int getSelectedIndex() override;
    bool selectionHasChanged() override;

protected:
    PopupCallSide(PopupCall* owner, Image* picture, Panel panel);

private:
    Popup& popup() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The call popup of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT PopupCallPrivate : public PopupCallSide {
public:
    /// `owner` is the facade, `picture` the first one, which may be null; neither is owned.
    PopupCallPrivate(PopupCall* owner, Image* picture);
};

/// The call popup of the 208 x 42 panel.
class DISPLAYAPI_EXPORT PopupCallPrivateWP1 : public PopupCallSide {
public:
    /// `owner` is the facade, `picture` the first one, which may be null; neither is owned.
    PopupCallPrivateWP1(PopupCall* owner, Image* picture);
};

} // namespace DisplayAPI
