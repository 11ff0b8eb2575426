#include "variants/menu/ContextMenuPrivate.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"

namespace DisplayAPI {

/// The recording context menu. Its widget is a real one, so that a display can show it.
struct ContextMenuSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, std::string(name) + "::" + call, args...);
    }

    const ContextMenuSide* self;
    const char* name;
    Command* added = nullptr; ///< the last one: what is selected
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

ContextMenuSide::ContextMenuSide(ContextMenu* owner, bool wayBack, Panel panel)
    : mImpl(new Impl{this, panel == Panel::FULL ? "ContextMenuPrivate" : "ContextMenuPrivateWP1"})
{
    if (panel == Panel::FULL)
        doubles::Recorder::instance().note(this, mImpl->name, owner);
    else
        doubles::Recorder::instance().note(this, mImpl->name, owner, wayBack);
}

ContextMenuSide::~ContextMenuSide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

ContextMenuPrivate::ContextMenuPrivate(ContextMenu* owner) : ContextMenuSide(owner, false, Panel::FULL) {}

ContextMenuPrivateWP1::ContextMenuPrivateWP1(ContextMenu* owner, bool wayBack)
    : ContextMenuSide(owner, wayBack, Panel::SMALL)
{
}

PegThing* ContextMenuSide::getWidget()
{
    return mImpl->widget;
}

void ContextMenuSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void ContextMenuSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void ContextMenuSide::show() {}

void ContextMenuSide::lostFocus() {}

bool ContextMenuSide::hideOldWidgetOnFocusGained()
{
    return false;
}

void ContextMenuSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
}

std::string ContextMenuSide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string ContextMenuSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
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

void ContextMenuSide::setSysWindowText(std::string text, int line)
{
    mImpl->note("setSysWindowText", text, line);
}

bool ContextMenuSide::hasSystemWindow()
{
    mImpl->note("hasSystemWindow");
    return false;
}

} // namespace DisplayAPI
