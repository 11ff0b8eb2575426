#include "variants/popup/PopupCallPrivate.h"

#include "DisplayAPI/Image.h"
#include "DisplayAPI/MenuCommand.h"
#include "doubles/Answers.h"
#include "doubles/PopupSide.h"
#include "utilities/CallPartyIdentifier.h"

namespace DisplayAPI {

/// The recording call popup.
struct PopupCallSide::Impl : PopupSide::Popup {
    using Popup::Popup;
};

PopupCallSide::PopupCallSide(PopupCall* owner, Image* picture, Panel panel)
    : mImpl(new Impl(*this, "PopupCallPrivate", panel))
{
    mImpl->made(owner, picture);
}

PopupCallSide::~PopupCallSide() = default;

PopupCallPrivate::PopupCallPrivate(PopupCall* owner, Image* picture) : PopupCallSide(owner, picture, Panel::FULL) {}

PopupCallPrivateWP1::PopupCallPrivateWP1(PopupCall* owner, Image* picture) : PopupCallSide(owner, picture, Panel::SMALL)
{
}

PopupSide::Popup& PopupCallSide::popup()
{
    return *mImpl;
}

void PopupCallSide::destroy()
{
    delete this;
}

void PopupCallSide::setPopupCallDetails(std::unique_ptr<CallPartyIdentifier> party,
                                        std::unique_ptr<CallPartyIdentifier> redirecting, ForwardedCallType type,
                                        std::string text, std::unique_ptr<TranslationInfo> translation)
{
    mImpl->note("setPopupCallDetails", party->name(), redirecting != nullptr ? redirecting->name() : "nobody",
                static_cast<int>(type), text, translation != nullptr ? translation->key() : "nothing");
}

void PopupCallSide::setLine1PrefixText(std::string text)
{
    mImpl->note("setLine1PrefixText", text);
}

void PopupCallSide::setLine1PrefixText(TranslationInfo* text)
{
    mImpl->take("setLine1PrefixText", text);
}

void PopupCallSide::setText(std::string text)
{
    mImpl->note("setText", text);
}

void PopupCallSide::setText(TranslationInfo* text)
{
    mImpl->take("setText", text);
}

void PopupCallSide::setLine2PrefixText(std::string text)
{
    mImpl->note("setLine2PrefixText", text);
}

void PopupCallSide::setLine2PrefixText(TranslationInfo* text)
{
    mImpl->take("setLine2PrefixText", text);
}

void PopupCallSide::setLine2Text(std::string text)
{
    mImpl->note("setLine2Text", text);
}

void PopupCallSide::setLine2Text(TranslationInfo* text)
{
    mImpl->take("setLine2Text", text);
}

void PopupCallSide::setAuxText(std::string text)
{
    mImpl->note("setAuxText", text);
}

void PopupCallSide::setState(PopupCall::CallState state, PopupCall::CallPriority priority)
{
    mImpl->note("setState", static_cast<int>(state), static_cast<int>(priority));
}

void PopupCallSide::setPictureClip(Image* picture)
{
    mImpl->note("setPictureClip", picture);
}

void PopupCallSide::addCommand(MenuCommand* command)
{
    mImpl->note("addCommand", command);
}

void PopupCallSide::setDefaultCommand(MenuCommand* command)
{
    mImpl->note("setDefaultCommand", command);
}

void PopupCallSide::clearCommands()
{
    mImpl->note("clearCommands");
}

void PopupCallSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void PopupCallSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
}

void PopupCallSide::dismiss()
{
    mImpl->note("dismiss");
}

int PopupCallSide::getSelectedIndex()
{
    mImpl->note("getSelectedIndex");
    return doubles::Answers::instance().selectedIndex;
}

bool PopupCallSide::selectionHasChanged()
{
    mImpl->note("selectionHasChanged");
    return doubles::Answers::instance().isSelected;
}

} // namespace DisplayAPI
