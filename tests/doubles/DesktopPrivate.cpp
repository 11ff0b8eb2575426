#include "variants/desktop/DesktopPrivate.h"

#include "DisplayAPI/Desktop.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"

namespace DisplayAPI {

/// The recording desktop. Its widget is a real one, so that a display can show it.
struct DesktopSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, std::string(name) + "::" + call, args...);
    }

    const DesktopSide* self;
    const char* name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

DesktopSide::DesktopSide(Desktop* owner, Panel panel)
    : mImpl(new Impl{this, panel == Panel::FULL ? "DesktopPrivate" : "DesktopPrivateWP1"})
{
    doubles::Recorder::instance().note(this, mImpl->name, owner);
}

DesktopSide::~DesktopSide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

DesktopPrivate::DesktopPrivate(Desktop* owner) : DesktopSide(owner, Panel::FULL) {}

DesktopPrivateWP1::DesktopPrivateWP1(Desktop* owner) : DesktopSide(owner, Panel::SMALL) {}

PegThing* DesktopSide::getWidget()
{
    return mImpl->widget;
}

void DesktopSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void DesktopSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void DesktopSide::show() {}

void DesktopSide::lostFocus() {}

std::string DesktopSide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string DesktopSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
}

void DesktopSide::setLogoText(const std::string& text)
{
    mImpl->note("setLogoText", text);
}

void DesktopSide::setExtLabelText(const std::string& text)
{
    mImpl->note("setExtLabelText", text);
}

void DesktopSide::displayKeyLockIcon(bool on)
{
    mImpl->note("displayKeyLockIcon", on);
}

void DesktopSide::displayDNDIcon(bool on)
{
    mImpl->note("displayDNDIcon", on);
}

void DesktopSide::displayRingerOffIcon(bool on)
{
    mImpl->note("displayRingerOffIcon", on);
}

void DesktopSide::displayMobileUserIcon(bool on, int kind)
{
    mImpl->note("displayMobileUserIcon", on, kind);
}

void DesktopSide::set12HourClockMode(bool on)
{
    mImpl->note("set12HourClockMode", on);
}

void DesktopSide::setStatusBarMode(const std::string& mode, const std::string& detail)
{
    mImpl->note("setStatusBarMode", mode, detail);
}

void DesktopSide::setStatusBarModePrev(const std::string& mode)
{
    mImpl->note("setStatusBarModePrev", mode);
}

std::string DesktopSide::getSBModeText()
{
    mImpl->note("getSBModeText");
    return "Busy";
}

void DesktopSide::setSBPostTimeIcon(int icon, bool on)
{
    mImpl->note("setSBPostTimeIcon", icon, on);
}

void DesktopSide::setTimeZoneOffset(int minutes)
{
    mImpl->note("setTimeZoneOffset", minutes);
}

void DesktopSide::setFPKEnabled(int key, bool enabled, bool shifted)
{
    mImpl->note("setFPKEnabled", key, enabled, shifted);
}

bool DesktopSide::getFPKEnabled(int key, bool shifted)
{
    mImpl->note("getFPKEnabled", key, shifted);
    return true;
}

void DesktopSide::setFPKLabel(int key, const std::string& label, bool enabled, bool shifted)
{
    mImpl->note("setFPKLabel", key, label, enabled, shifted);
}

std::string DesktopSide::getFPKLabel(int key)
{
    mImpl->note("getFPKLabel", key);
    return "Ada";
}

void DesktopSide::setFPKHighlight(int key, bool on)
{
    mImpl->note("setFPKHighlight", key, on);
}

void DesktopSide::setShifted(bool on)
{
    mImpl->note("setShifted", on);
}

int DesktopSide::getNumberOfFPKLabels()
{
    mImpl->note("getNumberOfFPKLabels");
    return 6;
}

void DesktopSide::open()
{
    mImpl->note("open");
}

void DesktopSide::screensaverStart()
{
    mImpl->note("screensaverStart");
}

void DesktopSide::screensaverStop()
{
    mImpl->note("screensaverStop");
}

void DesktopSide::screensaverSetImages(const std::list<std::string>* paths)
{
    mImpl->note("screensaverSetImages", paths);
}

void DesktopSide::setStatusBarDayLabels()
{
    mImpl->note("setStatusBarDayLabels");
}

void DesktopSide::setDayLabelText(TranslatorIfc* translator)
{
    mImpl->note("setDayLabelText", translator);
}

void DesktopSide::setTime(int hours, int minutes, int seconds)
{
    mImpl->note("setTime", hours, minutes, seconds);
}

void DesktopSide::setDate(int day, int month, int year)
{
    mImpl->note("setDate", day, month, year);
}

void DesktopSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void DesktopSide::setExtensionNumberAndArrowState(bool arrow)
{
    mImpl->note("setExtensionNumberAndArrowState", arrow);
}

void DesktopSide::displayMaintenanceIcon(bool on)
{
    mImpl->note("displayMaintenanceIcon", on);
}

void DesktopSide::displayCallbacksIcon(bool on)
{
    mImpl->note("displayCallbacksIcon", on);
}

} // namespace DisplayAPI
