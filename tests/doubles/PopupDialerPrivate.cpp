#include "variants/popup/PopupDialerPrivate.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"
#include "utilities/TranslationInfo.h"

namespace DisplayAPI {

/// The recording dialer. Its widget is a real one, so that a display can show it.
struct PopupDialerSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, std::string(name) + "::" + call, args...);
    }

    /// By its key: the translation goes at once, as it is this side's now.
    void take(const char* call, const TranslationInfo* text) const
    {
        const std::unique_ptr<const TranslationInfo> owned(text);
        note(call, "translated " + (owned != nullptr ? owned->key() : std::string("nothing")));
    }

    const PopupDialerSide* self;
    const char* name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

PopupDialerSide::PopupDialerSide(PopupDialer* owner, bool wayBack, Panel panel)
    : mImpl(new Impl{this, panel == Panel::FULL ? "PopupDialerPrivate" : "PopupDialerPrivateWP1"})
{
    if (panel == Panel::FULL)
        doubles::Recorder::instance().note(this, mImpl->name, owner);
    else
        doubles::Recorder::instance().note(this, mImpl->name, owner, wayBack);
}

PopupDialerSide::~PopupDialerSide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

PopupDialerPrivate::PopupDialerPrivate(PopupDialer* owner) : PopupDialerSide(owner, true, Panel::FULL) {}

PopupDialerPrivateWP1::PopupDialerPrivateWP1(PopupDialer* owner, bool wayBack)
    : PopupDialerSide(owner, wayBack, Panel::SMALL)
{
}

PegThing* PopupDialerSide::getWidget()
{
    return mImpl->widget;
}

void PopupDialerSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void PopupDialerSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void PopupDialerSide::show()
{
    mImpl->note("show");
}

void PopupDialerSide::lostFocus() {}

bool PopupDialerSide::hideOldWidgetOnFocusGained()
{
    return false;
}

void PopupDialerSide::connectDisplayChangedSignal(DisplayPrivateIfc* display)
{
    DisplayablePrivate::connectDisplayChangedSignal(display);
}

std::string PopupDialerSide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string PopupDialerSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
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

void PopupDialerSide::setSysWindowSize(int lines)
{
    mImpl->note("setSysWindowSize", lines);
}

void PopupDialerSide::setSysWindowText(std::string text, int line)
{
    mImpl->note("setSysWindowText", text, line);
}

bool PopupDialerSide::hasSystemWindow()
{
    mImpl->note("hasSystemWindow");
    return false;
}

} // namespace DisplayAPI
