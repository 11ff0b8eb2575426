#include "variants/popup/PopupNotificationPrivate.h"

#include "doubles/PopupSide.h"
#include "utilities/CallPartyIdentifier.h"

namespace DisplayAPI {

/// The recording notification.
struct PopupNotificationSide::Impl : PopupSide::Popup {
    using Popup::Popup;
};

PopupNotificationSide::PopupNotificationSide(PopupNotification* owner, Panel panel)
    : mImpl(new Impl(*this, "PopupNotificationPrivate", panel))
{
    mImpl->made(owner);
}

PopupNotificationSide::~PopupNotificationSide() = default;

PopupNotificationPrivate::PopupNotificationPrivate(PopupNotification* owner) : PopupNotificationSide(owner, Panel::FULL)
{
}

PopupNotificationPrivateWP1::PopupNotificationPrivateWP1(PopupNotification* owner)
    : PopupNotificationSide(owner, Panel::SMALL)
{
}

PopupSide::Popup& PopupNotificationSide::popup()
{
    return *mImpl;
}

void PopupNotificationSide::setLine1PrefixText(std::string text)
{
    mImpl->note("setLine1PrefixText", text);
}

void PopupNotificationSide::setLine1PrefixText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setLine1PrefixText", text.release());
}

void PopupNotificationSide::setText(std::string text)
{
    mImpl->note("setText", text);
}

void PopupNotificationSide::setText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setText", text.release());
}

void PopupNotificationSide::setLine2Icon(PopupNotification::IconElemType icon)
{
    mImpl->note("setLine2Icon", static_cast<int>(icon));
}

void PopupNotificationSide::setLine2PrefixText(std::string text)
{
    mImpl->note("setLine2PrefixText", text);
}

void PopupNotificationSide::setLine2PrefixText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setLine2PrefixText", text.release());
}

void PopupNotificationSide::setLine2Text(std::string text)
{
    mImpl->note("setLine2Text", text);
}

void PopupNotificationSide::setLine2Text(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setLine2Text", text.release());
}

void PopupNotificationSide::setLine3Text(std::string text)
{
    mImpl->note("setLine3Text", text);
}

void PopupNotificationSide::setLine3Text(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setLine3Text", text.release());
}

void PopupNotificationSide::setTimeout(int milliseconds)
{
    mImpl->note("setTimeout", milliseconds);
}

void PopupNotificationSide::setDismissible(bool on)
{
    mImpl->note("setDismissible", on);
}

void PopupNotificationSide::setType(PopupNotification::InfoType type)
{
    mImpl->note("setType", static_cast<int>(type));
}

void PopupNotificationSide::open()
{
    mImpl->note("open");
}

void PopupNotificationSide::dismiss()
{
    mImpl->note("dismiss");
}

void PopupNotificationSide::setForwardNotification(std::unique_ptr<CallPartyIdentifier> caller,
                                                   std::unique_ptr<CallPartyIdentifier> called, ForwardedCallType type)
{
    mImpl->note("setForwardNotification", caller->name(), called->name(), static_cast<int>(type));
}

void PopupNotificationSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void PopupNotificationSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
}

} // namespace DisplayAPI
