#include "variants/popup/PopupConfirmPrivate.h"

#include "DisplayAPI/Command.h"
#include "doubles/Answers.h"
#include "doubles/PopupSide.h"

namespace DisplayAPI {

/// The recording popup that asks.
struct PopupConfirmSide::Impl : PopupSide::Popup {
    using Popup::Popup;
};

PopupConfirmSide::PopupConfirmSide(PopupConfirm* owner, bool wayBack, Panel panel)
    : mImpl(new Impl(*this, "PopupConfirmPrivate", panel))
{
    if (panel == Panel::FULL)
        mImpl->made(owner);
    else
        mImpl->made(owner, wayBack);
}

PopupConfirmSide::~PopupConfirmSide() = default;

PopupConfirmPrivate::PopupConfirmPrivate(PopupConfirm* owner) : PopupConfirmSide(owner, true, Panel::FULL) {}

PopupConfirmPrivateWP1::PopupConfirmPrivateWP1(PopupConfirm* owner, bool wayBack)
    : PopupConfirmSide(owner, wayBack, Panel::SMALL)
{
}

PopupSide::Popup& PopupConfirmSide::popup()
{
    return *mImpl;
}

void PopupConfirmSide::setLine1PrefixText(std::string text)
{
    mImpl->note("setLine1PrefixText", text);
}

void PopupConfirmSide::setLine1PrefixText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setLine1PrefixText", text.release());
}

void PopupConfirmSide::setText(std::string text)
{
    mImpl->note("setText", text);
}

void PopupConfirmSide::setText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setText", text.release());
}

void PopupConfirmSide::setLine2PrefixText(std::string text)
{
    mImpl->note("setLine2PrefixText", text);
}

void PopupConfirmSide::setLine2PrefixText(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setLine2PrefixText", text.release());
}

void PopupConfirmSide::setLine2Text(std::string text)
{
    mImpl->note("setLine2Text", text);
}

void PopupConfirmSide::setLine2Text(std::unique_ptr<TranslationInfo> text)
{
    mImpl->take("setLine2Text", text.release());
}

void PopupConfirmSide::setState(PopupConfirm::PopupState state)
{
    mImpl->note("setState", static_cast<int>(state));
}

void PopupConfirmSide::open()
{
    mImpl->note("open");
}

void PopupConfirmSide::dismiss()
{
    mImpl->note("dismiss");
}

void PopupConfirmSide::addCommand(Command* command)
{
    mImpl->note("addCommand", command);
}

void PopupConfirmSide::removeCommand(Command* command)
{
    mImpl->note("removeCommand", command);
}

void PopupConfirmSide::setDefaultCommand(Command* command)
{
    mImpl->note("setDefaultCommand", command);
}

void PopupConfirmSide::clearCommands()
{
    mImpl->note("clearCommands");
}

int PopupConfirmSide::getSelectedIndex()
{
    mImpl->note("getSelectedIndex");
    return doubles::Answers::instance().selectedIndex;
}

bool PopupConfirmSide::selectionHasChanged()
{
    mImpl->note("selectionHasChanged");
    return doubles::Answers::instance().isSelected;
}

void PopupConfirmSide::setTimeout(int milliseconds)
{
    mImpl->note("setTimeout", milliseconds);
}

void PopupConfirmSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void PopupConfirmSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
}

} // namespace DisplayAPI
