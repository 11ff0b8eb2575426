#include "variants/desktop/DesktopPrivate.h"

#include "DisplayAPI/Desktop.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayPrivateIfc.h"
#include "DisplayAPI/Rectangles.h"
#include "host/variants/desktop/DesktopImpl.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

using host::DesktopIcon;

DesktopSide::DesktopSide(Desktop* owner, Panel panel) : mImpl(std::make_unique<Impl>(*this, owner, panel)) {}

DesktopSide::~DesktopSide() = default;

DesktopPrivate::DesktopPrivate(Desktop* owner) : DesktopSide(owner, Panel::FULL) {}

DesktopPrivateWP1::DesktopPrivateWP1(Desktop* owner) : DesktopSide(owner, Panel::SMALL) {}

PegThing* DesktopSide::getWidget()
{
    return mImpl->widget.get();
}

void DesktopSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void DesktopSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

/// Also when what lay above has gone: an observer learns of it here.
void DesktopSide::show()
{
    generateDisplayChangedEvent();
}

/// Something else has the user; clock and screensaver go on while they can be seen.
void DesktopSide::lostFocus() {}

std::string DesktopSide::serialise()
{
    const PegThing* const widget = getWidget();
    return widget != nullptr ? mImpl->asText({toRect(widget->Area())}) : std::string();
}

std::string DesktopSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return mImpl->asText(visible);
}

void DesktopSide::setLogoText(const std::string& text)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setLogo(ICC::fromUTF8toUNICODE(text));
}

void DesktopSide::setExtLabelText(const std::string& text)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setExtension(ICC::fromUTF8toUNICODE(text));
}

void DesktopSide::setExtensionNumberAndArrowState(bool arrow)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setArrow(arrow);
}

void DesktopSide::displayKeyLockIcon(bool on)
{
    mImpl->setIcon(DesktopIcon::KEY_LOCK, on);
}

void DesktopSide::displayDNDIcon(bool on)
{
    mImpl->setIcon(DesktopIcon::DO_NOT_DISTURB, on);
}

void DesktopSide::displayRingerOffIcon(bool on)
{
    mImpl->setIcon(DesktopIcon::RINGER_OFF, on);
}

void DesktopSide::displayMobileUserIcon(bool on, int)
{
    mImpl->setIcon(DesktopIcon::MOBILE_USER, on);
}

void DesktopSide::displayMaintenanceIcon(bool on)
{
    mImpl->setIcon(DesktopIcon::MAINTENANCE, on);
}

void DesktopSide::displayCallbacksIcon(bool on)
{
    mImpl->setIcon(DesktopIcon::CALLBACKS, on);
}

void DesktopSide::setSBPostTimeIcon(int icon, bool on)
{
    mImpl->setPostTimeIcon(icon, on);
}

void DesktopSide::setStatusBarMode(const std::string& mode, const std::string& detail)
{
    mImpl->setMode(mode, detail);
}

void DesktopSide::setStatusBarModePrev(const std::string& mode)
{
    mImpl->setPreviousMode(mode);
}

std::string DesktopSide::getSBModeText()
{
    return mImpl->mode.text;
}

void DesktopSide::set12HourClockMode(bool on)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setClock([=](auto& clock) { clock.setTwelveHours(on); });
}

void DesktopSide::setTimeZoneOffset(int minutes)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setClock([=](auto& clock) { clock.setZone(minutes); });
}

void DesktopSide::setTime(int hours, int minutes, int seconds)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setClock([=](auto& clock) { clock.setTime(hours, minutes, seconds); });
}

void DesktopSide::setDate(int day, int month, int year)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setClock([=](auto& clock) { clock.setDate(day, month, year); });
}

void DesktopSide::setDayLabelText(TranslatorIfc* translator)
{
    mImpl->dayTranslator = translator;
    mImpl->readDayNames();
}

void DesktopSide::setStatusBarDayLabels()
{
    mImpl->readDayNames();
}

int DesktopSide::getNumberOfFPKLabels()
{
    return mImpl->lamps.keys();
}

void DesktopSide::setFPKEnabled(int key, bool enabled, bool shifted)
{
    if (mImpl->widget != nullptr && mImpl->isKey(key))
        mImpl->widget->setLabel(key, shifted, {mImpl->label(key, shifted).text, enabled});
}

bool DesktopSide::getFPKEnabled(int key, bool shifted)
{
    return mImpl->widget != nullptr && mImpl->isKey(key) && mImpl->label(key, shifted).enabled;
}

void DesktopSide::setFPKLabel(int key, const std::string& label, bool enabled, bool shifted)
{
    if (mImpl->widget != nullptr && mImpl->isKey(key))
        mImpl->widget->setLabel(key, shifted, {ICC::fromUTF8toUNICODE(label), enabled});
}

std::string DesktopSide::getFPKLabel(int key)
{
    if (mImpl->widget == nullptr || !mImpl->isKey(key))
        return {};
    return ICC::fromUNICODEtoUTF8(mImpl->label(key, mImpl->widget->state().isShifted).text);
}

void DesktopSide::setFPKHighlight(int key, bool on)
{
    if (!mImpl->isKey(key))
        return;
    mImpl->lamps.light(key, on);
    if (mImpl->widget != nullptr)
        mImpl->widget->setLit(key, on);
}

void DesktopSide::setShifted(bool on)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setShifted(on);
}

void DesktopSide::open()
{
    if (DisplayPrivateIfc* const attachedTo = display())
        attachedTo->setCurrent(mImpl->owner);
    else if (Display* const latest = Display::latest())
        latest->setCurrent(mImpl->owner);
}

void DesktopSide::screensaverStart()
{
    if (mImpl->widget != nullptr)
        mImpl->widget->startScreensaver();
}

void DesktopSide::screensaverStop()
{
    if (mImpl->widget != nullptr)
        mImpl->widget->stopScreensaver();
}

void DesktopSide::screensaverSetImages(const std::list<std::string>* paths)
{
    if (mImpl->widget != nullptr)
        mImpl->widget->setPictures(paths != nullptr ? *paths : std::list<std::string>());
}

void DesktopSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

} // namespace DisplayAPI
