#include "variants/menu/ContextMenuPrivate.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/MenuCommand.h"
#include "doubles/Answers.h"
#include "doubles/PopupSide.h"

namespace DisplayAPI {

/// The recording context menu.
struct ContextMenuSide::Impl : PopupSide::Popup {
    using Popup::Popup;

    Command* added = nullptr; ///< the last one: what is selected
};

ContextMenuSide::ContextMenuSide(ContextMenu* owner, bool wayBack, Panel panel)
    : mImpl(new Impl(*this, "ContextMenuPrivate", panel))
{
    if (panel == Panel::FULL)
        mImpl->made(owner);
    else
        mImpl->made(owner, wayBack);
}

ContextMenuSide::~ContextMenuSide() = default;

ContextMenuPrivate::ContextMenuPrivate(ContextMenu* owner) : ContextMenuSide(owner, false, Panel::FULL) {}

ContextMenuPrivateWP1::ContextMenuPrivateWP1(ContextMenu* owner, bool wayBack)
    : ContextMenuSide(owner, wayBack, Panel::SMALL)
{
}

PopupSide::Popup& ContextMenuSide::popup()
{
    return *mImpl;
}

void ContextMenuSide::open()
{
    mImpl->note("open");
}

void ContextMenuSide::dismiss()
{
    mImpl->note("dismiss");
}

void ContextMenuSide::addCommand(Command* command, Command* second, bool marked)
{
    mImpl->note("addCommand", command, second, marked);
    mImpl->added = command;
}

void ContextMenuSide::addCommandWithIcon(MenuCommand* command)
{
    mImpl->note("addCommandWithIcon", command);
    mImpl->added = command;
}

void ContextMenuSide::clearCommands()
{
    mImpl->note("clearCommands");
}

void ContextMenuSide::setDefaultCommand(MenuCommand* command)
{
    mImpl->note("setDefaultCommand", command);
}

Command* ContextMenuSide::getSelectedCommand()
{
    mImpl->note("getSelectedCommand");
    return mImpl->added;
}

int ContextMenuSide::getSelectedIndex()
{
    mImpl->note("getSelectedIndex");
    return doubles::Answers::instance().selectedIndex;
}

bool ContextMenuSide::selectionHasChanged()
{
    mImpl->note("selectionHasChanged");
    return doubles::Answers::instance().isSelected;
}

void ContextMenuSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void ContextMenuSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
}

void ContextMenuSide::setBackTranslator(TranslatorIfc* translator)
{
    mImpl->note("setBackTranslator", translator);
}

void ContextMenuSide::setRightArrowEqualsOK(bool on)
{
    mImpl->note("setRightArrowEqualsOK", on);
}

void ContextMenuSide::setAutoHideTimeout(int milliseconds)
{
    mImpl->note("setAutoHideTimeout", milliseconds);
}

void ContextMenuSide::setSysWindowSize(int lines)
{
    mImpl->note("setSysWindowSize", lines);
}

} // namespace DisplayAPI
