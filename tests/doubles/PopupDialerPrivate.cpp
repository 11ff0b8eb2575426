#include "variants/popup/PopupDialerPrivate.h"

#include "DisplayAPI/MenuCommand.h"
#include "doubles/Answers.h"
#include "doubles/PopupSide.h"

namespace DisplayAPI {

/// The recording dialer.
struct PopupDialerSide::Impl : PopupSide::Popup {
    using Popup::Popup;
};

PopupDialerSide::PopupDialerSide(PopupDialer* owner, bool wayBack, Panel panel)
    : mImpl(new Impl(*this, "PopupDialerPrivate", panel))
{
    if (panel == Panel::FULL)
        mImpl->made(owner);
    else
        mImpl->made(owner, wayBack);
}

PopupDialerSide::~PopupDialerSide() = default;

PopupDialerPrivate::PopupDialerPrivate(PopupDialer* owner) : PopupDialerSide(owner, true, Panel::FULL) {}

PopupDialerPrivateWP1::PopupDialerPrivateWP1(PopupDialer* owner, bool wayBack)
    : PopupDialerSide(owner, wayBack, Panel::SMALL)
{
}

PopupSide::Popup& PopupDialerSide::popup()
{
    return *mImpl;
}

void PopupDialerSide::show()
{
    PopupSide::show();
}

void PopupDialerSide::lostFocus() {}

void PopupDialerSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    PopupSide::connectDisplayChangedSignal(display);
}

void PopupDialerSide::destroy()
{
    delete this;
}

void PopupDialerSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void PopupDialerSide::setLine1PrefixText(std::string text)
{
    mImpl->note("setLine1PrefixText", text);
}

void PopupDialerSide::setLine1PrefixText(TranslationInfo* text)
{
    mImpl->take("setLine1PrefixText", text);
}

void PopupDialerSide::setText(std::string text)
{
    mImpl->note("setText", text);
}

void PopupDialerSide::setText(TranslationInfo* text)
{
    mImpl->take("setText", text);
}

void PopupDialerSide::setLine2Text(std::string text)
{
    mImpl->note("setLine2Text", text);
}

void PopupDialerSide::setLine2Text(TranslationInfo* text)
{
    mImpl->take("setLine2Text", text);
}

std::string PopupDialerSide::getLineEditText()
{
    mImpl->note("getLineEditText");
    return "110";
}

void PopupDialerSide::setLineEditText(std::string text)
{
    mImpl->note("setLineEditText", text);
}

void PopupDialerSide::setLineEditText(TranslationInfo* text)
{
    mImpl->take("setLineEditText", text);
}

void PopupDialerSide::addItemStateListener(ItemStateListener* listener)
{
    mImpl->note("addItemStateListener", listener);
}

void PopupDialerSide::removeItemStateListener(ItemStateListener* listener)
{
    mImpl->note("removeItemStateListener", listener);
}

void PopupDialerSide::addCommand(MenuCommand* command)
{
    mImpl->note("addCommand", command);
}

void PopupDialerSide::setDefaultCommand(MenuCommand* command)
{
    mImpl->note("setDefaultCommand", command);
}

void PopupDialerSide::removeCommand(MenuCommand* command)
{
    mImpl->note("removeCommand", command);
}

void PopupDialerSide::setMode(PopupDialer::eMode mode)
{
    mImpl->note("setMode", static_cast<int>(mode));
}

void PopupDialerSide::setEditMode()
{
    mImpl->note("setEditMode");
}

void PopupDialerSide::setIgnoreKeypadEvents(bool on)
{
    mImpl->note("setIgnoreKeypadEvents", on);
}

void PopupDialerSide::clearCommands()
{
    mImpl->note("clearCommands");
}

bool PopupDialerSide::openWith(int key, DisplayablePrivate& below)
{
    mImpl->note("openWith", key, &below);
    return true;
}

void PopupDialerSide::dismiss()
{
    mImpl->note("dismiss");
}

int PopupDialerSide::getSelectedIndex()
{
    mImpl->note("getSelectedIndex");
    return doubles::Answers::instance().selectedIndex;
}

bool PopupDialerSide::selectionHasChanged()
{
    mImpl->note("selectionHasChanged");
    return doubles::Answers::instance().isSelected;
}

void PopupDialerSide::setStimulusText(std::string text)
{
    mImpl->note("setStimulusText", text);
}

void PopupDialerSide::setStimulusText(TranslationInfo* text)
{
    mImpl->take("setStimulusText", text);
}

void PopupDialerSide::showStimulusTextInHeader(bool on)
{
    mImpl->note("showStimulusTextInHeader", on);
}

} // namespace DisplayAPI
