#include "variants/popup/PopupNotificationPrivate.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/popup/LinesPopup.h"
#include "host/variants/popup/PopupIcons.h"
#include "utilities/CallPartyIdentifier.h"

namespace DisplayAPI {

/// A notification's data, and what hears the keys that close it.
struct PopupNotificationSide::Impl : public LinesPopup {
    Impl(PopupNotificationSide& popup, PopupNotification* facade)
        : LinesPopup(popup, facade, PopupNotification::HIDDEN_COMMAND())
    {
    }

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const override
    {
        return screen::object("PopupNotification", linesAsText(visible));
    }

    bool isDismissible = false;

protected:
    void hear(const PegMessage& message) override;
};

void PopupNotificationSide::Impl::hear(const PegMessage& message)
{
    const bool closes = message.iData == PK_OK || message.iData == PK_LEFT;
    if (isDismissible && message.wType == PM_KEY && closes)
        leave();
}

PopupNotificationSide::PopupNotificationSide(PopupNotification* owner, Panel)
    : mImpl(std::make_unique<Impl>(*this, owner))
{
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
    mImpl->set(mImpl->lines[0].prefix, OwnedText(std::move(text)));
}

void PopupNotificationSide::setLine1PrefixText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[0].prefix, OwnedText(std::move(text)));
}

void PopupNotificationSide::setText(std::string text)
{
    mImpl->set(mImpl->lines[0].text, OwnedText(std::move(text)));
}

void PopupNotificationSide::setText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[0].text, OwnedText(std::move(text)));
}

void PopupNotificationSide::setLine2PrefixText(std::string text)
{
    mImpl->set(mImpl->lines[1].prefix, OwnedText(std::move(text)));
}

void PopupNotificationSide::setLine2PrefixText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[1].prefix, OwnedText(std::move(text)));
}

void PopupNotificationSide::setLine2Text(std::string text)
{
    mImpl->set(mImpl->lines[1].text, OwnedText(std::move(text)));
}

void PopupNotificationSide::setLine2Text(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[1].text, OwnedText(std::move(text)));
}

void PopupNotificationSide::setLine3Text(std::string text)
{
    mImpl->set(mImpl->lines[2].text, OwnedText(std::move(text)));
}

void PopupNotificationSide::setLine3Text(std::unique_ptr<TranslationInfo> text)
{
    mImpl->set(mImpl->lines[2].text, OwnedText(std::move(text)));
}

void PopupNotificationSide::setForwardNotification(std::unique_ptr<CallPartyIdentifier> caller,
                                                   std::unique_ptr<CallPartyIdentifier> called, ForwardedCallType type)
{
    mImpl->lines[0].text = OwnedText(*called);
    mImpl->lines[1].text = OwnedText(*caller);
    mImpl->setIcon(mImpl->lines[1], iconOf(type));
}

void PopupNotificationSide::setLine2Icon(PopupNotification::IconElemType icon)
{
    mImpl->setIcon(mImpl->lines[1], iconOf(icon));
}

void PopupNotificationSide::setTimeout(int milliseconds)
{
    mImpl->setTimeout(milliseconds);
}

void PopupNotificationSide::setDismissible(bool on)
{
    mImpl->isDismissible = on;
    mImpl->setMark(on ? &host::icons::BACK : nullptr);
}

void PopupNotificationSide::setType(PopupNotification::InfoType type)
{
    mImpl->setIcon(mImpl->lines[0], iconOf(type));
}

void PopupNotificationSide::open()
{
    mImpl->comeUp();
}

void PopupNotificationSide::dismiss()
{
    mImpl->leave();
}

void PopupNotificationSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void PopupNotificationSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

} // namespace DisplayAPI
