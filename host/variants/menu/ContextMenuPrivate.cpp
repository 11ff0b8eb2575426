#include "variants/menu/ContextMenuPrivate.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/MenuCommand.h"
#include "host/variants/menu/ContextMenuImpl.h"

namespace DisplayAPI {

ContextMenuSide::ContextMenuSide(ContextMenu* owner, bool wayBack, Panel panel)
    : mImpl(std::make_unique<Impl>(*this, owner, wayBack, panel))
{
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
    mImpl->comeUp();
}

void ContextMenuSide::dismiss()
{
    mImpl->leave();
}

void ContextMenuSide::addCommand(Command* command, Command* second, bool marked)
{
    mImpl->add(command, second, marked);
}

void ContextMenuSide::addCommandWithIcon(MenuCommand* command)
{
    mImpl->add(command, nullptr, false);
}

void ContextMenuSide::clearCommands()
{
    mImpl->clear();
}

void ContextMenuSide::setDefaultCommand(MenuCommand* command)
{
    mImpl->setDefault(command);
}

Command* ContextMenuSide::getSelectedCommand()
{
    Command* const command = mImpl->box != nullptr ? mImpl->commandAt(mImpl->column->current()) : nullptr;
    return Command::exists(command) ? command : nullptr;
}

int ContextMenuSide::getSelectedIndex()
{
    const int row = mImpl->box != nullptr ? mImpl->column->current() : -1;
    return row < mImpl->size() ? row : -1;
}

bool ContextMenuSide::selectionHasChanged()
{
    return mImpl->userHasMoved;
}

void ContextMenuSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void ContextMenuSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

void ContextMenuSide::setBackTranslator(TranslatorIfc* translator)
{
    mImpl->backTranslator = translator;
    mImpl->showWayBack();
}

void ContextMenuSide::setRightArrowEqualsOK(bool on)
{
    mImpl->rightEqualsOk = on;
}

void ContextMenuSide::setAutoHideTimeout(int milliseconds)
{
    mImpl->setTimeout(milliseconds);
}

void ContextMenuSide::setSysWindowSize(int lines)
{
    mImpl->setStatusLines(lines);
}

} // namespace DisplayAPI
