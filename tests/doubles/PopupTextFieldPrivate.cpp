#include "variants/popup/PopupTextFieldPrivate.h"

#include "DisplayAPI/TextField.h"
#include "doubles/PopupSide.h"

namespace DisplayAPI {

/// The recording text-field popup.
struct PopupTextFieldSide::Impl : PopupSide::Popup {
    using Popup::Popup;
};

PopupTextFieldSide::PopupTextFieldSide(PopupTextField* owner, TextField* field, bool leftGoesBack, Panel panel)
    : mImpl(new Impl(*this, "PopupTextFieldPrivate", panel))
{
    mImpl->made(owner, static_cast<const void*>(field), leftGoesBack);
}

PopupTextFieldSide::~PopupTextFieldSide() = default;

PopupTextFieldPrivate::PopupTextFieldPrivate(PopupTextField* owner, TextField* field)
    : PopupTextFieldSide(owner, field, true, Panel::FULL)
{
}

PopupTextFieldPrivateWP1::PopupTextFieldPrivateWP1(PopupTextField* owner, TextField* field, bool leftGoesBack)
    : PopupTextFieldSide(owner, field, leftGoesBack, Panel::SMALL)
{
}

PopupSide::Popup& PopupTextFieldSide::popup()
{
    return *mImpl;
}

void PopupTextFieldSide::lostFocus() {}

std::string PopupTextFieldSide::getText()
{
    mImpl->note("getText");
    return "text";
}

void PopupTextFieldSide::clear()
{
    mImpl->note("clear");
}

void PopupTextFieldSide::addCommand(MenuCommand* command)
{
    mImpl->note("addCommand", static_cast<const void*>(command));
}

void PopupTextFieldSide::clearCommands()
{
    mImpl->note("clearCommands");
}

void PopupTextFieldSide::setDefaultCommand(MenuCommand* command)
{
    mImpl->note("setDefaultCommand", static_cast<const void*>(command));
}

void PopupTextFieldSide::dismiss()
{
    mImpl->note("dismiss");
}

void PopupTextFieldSide::setLabel(TranslationInfo* label)
{
    mImpl->note("setLabel", static_cast<const void*>(label));
}

void PopupTextFieldSide::setFieldType(TextField::FieldType type)
{
    mImpl->note("setFieldType", static_cast<int>(type));
}

void PopupTextFieldSide::setTimeout(int milliseconds)
{
    mImpl->note("setTimeout", milliseconds);
}

void PopupTextFieldSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void PopupTextFieldSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
}

void PopupTextFieldSide::addItemStateListener(ItemStateListener* listener)
{
    mImpl->note("addItemStateListener", listener);
}

void PopupTextFieldSide::removeItemStateListener(ItemStateListener* listener)
{
    mImpl->note("removeItemStateListener", listener);
}

} // namespace DisplayAPI
