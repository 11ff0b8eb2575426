#include "variants/menu/ContextMenuPrivate.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/DisplayPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/Rectangles.h"
#include "host/variants/menu/ContextMenuImpl.h"
#include "host/variants/popup/BringUp.h"

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

PegThing* ContextMenuSide::getWidget()
{
    return mImpl->box.get();
}

void ContextMenuSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void ContextMenuSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

/// Also when what lay above has gone: an observer learns of it here.
void ContextMenuSide::show()
{
    mImpl->restartTimeout();
    generateDisplayChangedEvent();
}

/// Something else has the user; the time-out runs on.
void ContextMenuSide::lostFocus() {}

bool ContextMenuSide::hideOldWidgetOnFocusGained()
{
    return false; // a popup leaves what is below it on screen
}

/// A display connects what comes to its stack before it shows it, and does not when it shows the same once more.
void ContextMenuSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
    if (display != nullptr && mImpl->box != nullptr && mImpl->box->Parent() == nullptr)
        mImpl->opened();
}

std::string ContextMenuSide::serialise()
{
    const PegThing* const box = getWidget();
    return box != nullptr ? mImpl->asText({toRect(box->Area())}) : std::string();
}

std::string ContextMenuSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return mImpl->asText(visible);
}

void ContextMenuSide::open()
{
    if (mImpl->isOnScreen() && display() != nullptr && display()->getCurrent() == mImpl->owner)
        show();
    else
        bringUp(mImpl->owner, display());
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
    mImpl->timeout = milliseconds;
    mImpl->restartTimeout();
}

void ContextMenuSide::setSysWindowSize(int lines)
{
    mImpl->statusLines = lines;
    mImpl->layOut();
    mImpl->changed();
}

void ContextMenuSide::setSysWindowText(std::string text, int line)
{
    if (mImpl->box != nullptr)
        mImpl->box->setStatusText(line, std::move(text));
}

/// On two lines the system window pops up instead.
bool ContextMenuSide::hasSystemWindow()
{
    return mImpl->box != nullptr && mImpl->panel == Panel::FULL;
}

} // namespace DisplayAPI
