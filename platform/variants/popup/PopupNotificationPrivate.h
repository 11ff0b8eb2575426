#pragma once

#include "DisplayAPI/PopupNotificationPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/popup/PopupSide.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a notification, whatever the panel.
class DISPLAYAPI_EXPORT PopupNotificationSide : public PopupSide, public PopupNotificationPrivateIfc {
public:
    ~PopupNotificationSide() override;

    void setLine1PrefixText(std::string text) override;
    void setLine1PrefixText(std::unique_ptr<TranslationInfo> text) override;
    void setText(std::string text) override;
    void setText(std::unique_ptr<TranslationInfo> text) override;
    void setLine2Icon(PopupNotification::IconElemType icon) override;
    void setLine2PrefixText(std::string text) override;
    void setLine2PrefixText(std::unique_ptr<TranslationInfo> text) override;
    void setLine2Text(std::string text) override;
    void setLine2Text(std::unique_ptr<TranslationInfo> text) override;
    void setLine3Text(std::string text) override;
    void setLine3Text(std::unique_ptr<TranslationInfo> text) override;
    void setTimeout(int milliseconds) override;
    void setDismissible(bool on) override;
    void setType(PopupNotification::InfoType type) override;
    void open() override;
    void dismiss() override;
    void setForwardNotification(std::unique_ptr<CallPartyIdentifier> caller,
                                std::unique_ptr<CallPartyIdentifier> called, ForwardedCallType type) override;
    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;

protected:
    PopupNotificationSide(PopupNotification* owner, Panel panel);

private:
    Popup& popup() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The notification of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT PopupNotificationPrivate : public PopupNotificationSide {
public:
    /// `owner` is the facade, not owned.
    explicit PopupNotificationPrivate(PopupNotification* owner);
};

/// The notification of the 208 x 42 panel.
class DISPLAYAPI_EXPORT PopupNotificationPrivateWP1 : public PopupNotificationSide {
public:
    /// `owner` is the facade, not owned.
    explicit PopupNotificationPrivateWP1(PopupNotification* owner);
};

} // namespace DisplayAPI
