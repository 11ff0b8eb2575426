#include "variants/idle/IdleDisplayPrivate.h"

#include "DisplayAPI/IdleDisplay.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/PopupDialer.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"

namespace DisplayAPI {

/// The recording idle display. Its widget is a real one, so that a display can show it.
struct IdleDisplaySide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, std::string(name) + "::" + call, args...);
    }

    const IdleDisplaySide* self;
    const char* name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

IdleDisplaySide::IdleDisplaySide(IdleDisplay* owner, const std::string& logo, Panel panel)
    : mImpl(new Impl{this, panel == Panel::FULL ? "IdleDisplayPrivate" : "IdleDisplayPrivateWP1"})
{
    doubles::Recorder::instance().note(this, mImpl->name, owner, logo);
}

IdleDisplaySide::~IdleDisplaySide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

IdleDisplayPrivate::IdleDisplayPrivate(IdleDisplay* owner, const std::string& logo)
    : IdleDisplaySide(owner, logo, Panel::FULL)
{
}

IdleDisplayPrivateWP1::IdleDisplayPrivateWP1(IdleDisplay* owner, const std::string& logo)
    : IdleDisplaySide(owner, logo, Panel::SMALL)
{
}

PegThing* IdleDisplaySide::getWidget()
{
    return mImpl->widget;
}

void IdleDisplaySide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void IdleDisplaySide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void IdleDisplaySide::show() {}

void IdleDisplaySide::lostFocus() {}

std::string IdleDisplaySide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string IdleDisplaySide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
}

void IdleDisplaySide::setSysWindowSize(int) {}

void IdleDisplaySide::setSysWindowText(std::string, int) {}

bool IdleDisplaySide::hasSystemWindow()
{
    return false;
}

void IdleDisplaySide::localeChanged(const std::string& locale)
{
    mImpl->note("localeChanged", locale);
}

void IdleDisplaySide::setMessages(int count)
{
    mImpl->note("setMessages", count);
}

void IdleDisplaySide::setMissedCalls(int count)
{
    mImpl->note("setMissedCalls", count);
}

void IdleDisplaySide::setForwardingAddress(const std::string& address)
{
    mImpl->note("setForwardingAddress", address);
}

void IdleDisplaySide::setForwardingAddress(TranslationInfo* address)
{
    mImpl->note("setForwardingAddress", static_cast<const void*>(address));
}

void IdleDisplaySide::setForwardingAddress(TranslationInfo* address, CallPartyIdentifier* party)
{
    mImpl->note("setForwardingAddress", static_cast<const void*>(address), static_cast<const void*>(party));
}

void IdleDisplaySide::setServerBasedForwardingAddress(const std::string& address)
{
    mImpl->note("setServerBasedForwardingAddress", address);
}

void IdleDisplaySide::setServerBasedForwardingAddress(TranslationInfo* address)
{
    mImpl->note("setServerBasedForwardingAddress", static_cast<const void*>(address));
}

void IdleDisplaySide::addCommand(const std::string& text)
{
    mImpl->note("addCommand", text);
}

void IdleDisplaySide::setCommandText(int index, const std::string& text)
{
    mImpl->note("setCommandText", index, text);
}

void IdleDisplaySide::clearCommands()
{
    mImpl->note("clearCommands");
}

void IdleDisplaySide::setDefaultMenuCommand(int index)
{
    mImpl->note("setDefaultMenuCommand", index);
}

void IdleDisplaySide::hide()
{
    mImpl->note("hide");
}

void IdleDisplaySide::addSystemMessage(const std::string& message)
{
    mImpl->note("addSystemMessage", message);
}

void IdleDisplaySide::addSystemMessage(TranslationInfo* message)
{
    mImpl->note("addSystemMessage", static_cast<const void*>(message));
}

void IdleDisplaySide::clearSystemMessages()
{
    mImpl->note("clearSystemMessages");
}

void IdleDisplaySide::changeLogo(const std::string& path)
{
    mImpl->note("changeLogo", path);
}

void IdleDisplaySide::setBrandingText(const std::string& text)
{
    mImpl->note("setBrandingText", text);
}

void IdleDisplaySide::setSystemWindowSize(int lines)
{
    mImpl->note("setSystemWindowSize", lines);
}

void IdleDisplaySide::setSystemWindowText(int line, const std::string& text)
{
    mImpl->note("setSystemWindowText", line, text);
}

void IdleDisplaySide::showDialer(bool on)
{
    mImpl->note("showDialer", on);
}

void IdleDisplaySide::setDialler(PopupDialer* dialler)
{
    mImpl->note("setDialler", static_cast<const void*>(dialler));
}

void IdleDisplaySide::setForwardingIconVisible(bool on)
{
    mImpl->note("setForwardingIconVisible", on);
}

void IdleDisplaySide::setCurrentPhoneNumber(const std::string& number)
{
    mImpl->note("setCurrentPhoneNumber", number);
}

void IdleDisplaySide::setDisplayIdUnicode(const std::string& name)
{
    mImpl->note("setDisplayIdUnicode", name);
}

void IdleDisplaySide::setUseDisplayId(bool on)
{
    mImpl->note("setUseDisplayId", on);
}

void IdleDisplaySide::displayMobileUserIcon(bool on, int kind)
{
    mImpl->note("displayMobileUserIcon", on, kind);
}

} // namespace DisplayAPI
