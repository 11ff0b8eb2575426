#include "DisplayAPI/Desktop.h"

#include "DisplayAPI/DesktopPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "Log.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/desktop/DesktopPrivate.h"

#include <utility>

namespace DisplayAPI {

namespace {

constexpr Log gLog{"PegWidgets", "./src/Desktop"};

constexpr unsigned long HIDDEN_ID = 1001012345;

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SET_LOGO_TEXT = 2,
    SET_EXT_LABEL_TEXT = 3,
    DISPLAY_KEY_LOCK_ICON = 4,
    DISPLAY_DND_ICON = 5,
    DISPLAY_RINGER_OFF_ICON = 6,
    DISPLAY_MOBILE_USER_ICON = 7,
    SET_12_HOUR_CLOCK_MODE = 8,
    SET_STATUS_BAR_MODE = 9,
    SET_STATUS_BAR_MODE_PREV = 10,
    GET_SB_MODE_TEXT = 11,
    SET_SB_POST_TIME_ICON = 12,
    SET_TIME_ZONE_OFFSET = 13,
    SET_FPK_ENABLED = 14,
    GET_FPK_ENABLED = 15,
    SET_FPK_LABEL = 16,
    GET_FPK_LABEL = 17,
    SET_FPK_HIGHLIGHT = 18,
    SET_SHIFTED = 19,
    GET_NUMBER_OF_FPK_LABELS = 20,
    SHOW = 21,
    SCREENSAVER_START = 22,
    SCREENSAVER_STOP = 23,
    SCREENSAVER_SET_IMAGES = 24,
    SET_STATUS_BAR_DAY_LABELS = 25,
    SET_DAY_LABEL_TEXT = 26,
    SET_TIME = 27,
    SET_DATE = 28,
    ADD_COMMAND_LISTENER = 29,
    SET_EXTENSION_NUMBER_AND_ARROW_STATE = 30,
    DISPLAY_MAINTENANCE_ICON = 31,
    DISPLAY_CALLBACKS_ICON = 32
};

using Ifc = DesktopPrivateIfc;
using Record = GuiRequestEvent;

/// The kind does not travel.
void displayMobileUserOfNoKind(Ifc& side, bool on)
{
    side.displayMobileUserIcon(on, 0);
}

/// Some requests have a line of their own behind the one that all have.
void logRequest(int code)
{
    gLog(TRACE, 577, "Desktop::processGuiRequest %d", code);
    switch (code) {
    case CREATE: return gLog(TRACE, 584, "Desktop::processGuiRequest Create");
    case DESTROY: return gLog(TRACE, 601, "Desktop::processGuiRequest Delete");
    case SET_EXT_LABEL_TEXT: return gLog(TRACE, 613, "Desktop::processGuiRequest SET_EXTTEXT");
    case GET_NUMBER_OF_FPK_LABELS: return gLog(TRACE, 682, "Desktop::processGuiRequest GET_NUMFPK");
    case SHOW: return gLog(TRACE, 687, "Desktop::processGuiRequest show");
    default: return;
    }
}

} // namespace

struct Desktop::Ops
    : Operations<
          Posts<CREATE, &Desktop::create>, Waits<DESTROY, &Desktop::destroy>, Posts<SET_LOGO_TEXT, &Ifc::setLogoText>,
          Posts<SET_EXT_LABEL_TEXT, &Ifc::setExtLabelText>, Posts<DISPLAY_KEY_LOCK_ICON, &Ifc::displayKeyLockIcon>,
          Posts<DISPLAY_DND_ICON, &Ifc::displayDNDIcon>, Posts<DISPLAY_RINGER_OFF_ICON, &Ifc::displayRingerOffIcon>,
          Posts<DISPLAY_MOBILE_USER_ICON, &displayMobileUserOfNoKind>,
          Posts<SET_12_HOUR_CLOCK_MODE, &Ifc::set12HourClockMode>, Posts<SET_STATUS_BAR_MODE, &Ifc::setStatusBarMode>,
          Posts<SET_STATUS_BAR_MODE_PREV, &Ifc::setStatusBarModePrev>, Waits<GET_SB_MODE_TEXT, &Ifc::getSBModeText>,
          Posts<SET_SB_POST_TIME_ICON, &Ifc::setSBPostTimeIcon>, Posts<SET_TIME_ZONE_OFFSET, &Ifc::setTimeZoneOffset>,
          Posts<SET_FPK_ENABLED, &Ifc::setFPKEnabled>,
          Waits<GET_FPK_ENABLED, &Ifc::getFPKEnabled, NOTHING, &Record::returnValue4>,
          Waits<SET_FPK_LABEL, &Ifc::setFPKLabel>, Waits<GET_FPK_LABEL, &Ifc::getFPKLabel>,
          Posts<SET_FPK_HIGHLIGHT, &Ifc::setFPKHighlight>, Posts<SET_SHIFTED, &Ifc::setShifted>,
          Waits<GET_NUMBER_OF_FPK_LABELS, &Ifc::getNumberOfFPKLabels, -1, &Record::returnValue2>,
          Posts<SHOW, &Ifc::open>, Posts<SCREENSAVER_START, &Ifc::screensaverStart>,
          Posts<SCREENSAVER_STOP, &Ifc::screensaverStop>, Posts<SCREENSAVER_SET_IMAGES, &Ifc::screensaverSetImages>,
          Posts<SET_STATUS_BAR_DAY_LABELS, &Ifc::setStatusBarDayLabels>,
          Posts<SET_DAY_LABEL_TEXT, &Ifc::setDayLabelText>, Posts<SET_TIME, &Ifc::setTime>,
          Posts<SET_DATE, &Ifc::setDate>, Posts<ADD_COMMAND_LISTENER, &Ifc::addCommandListener>,
          Posts<SET_EXTENSION_NUMBER_AND_ARROW_STATE, &Ifc::setExtensionNumberAndArrowState>,
          Posts<DISPLAY_MAINTENANCE_ICON, &Ifc::displayMaintenanceIcon>,
          Posts<DISPLAY_CALLBACKS_ICON, &Ifc::displayCallbacksIcon>> {};

Desktop::Desktop()
{
    if (isGuiThread())
        gLog(TRACE, 60, "Desktop::Desktop() gui thread");
    else
        gLog(TRACE, 77, "Desktop::Desktop() non gui thread");
    Ops::call<CREATE>(*this, mImplementation);
}

Desktop::~Desktop()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

/// Without an application it is the plain one, whatever the platform says of none.
void Desktop::create()
{
    name = "Desktop";
    if (KestrelApplication::getCurrentApplication() != nullptr && !isFullPanel())
        mImplementation = new DesktopPrivateWP1(this);
    else
        mImplementation = new DesktopPrivate(this);
}

void Desktop::destroy()
{
    deletePrivateSide(mImplementation);
}

void Desktop::processGuiRequest(GuiRequestEvent& request)
{
    logRequest(request.getType());
    if (!Ops::carryOut(*this, mImplementation, request))
        gLog(TRACE, 727, "Desktop::processGuiRequest default");
    signalComplete(request);
}

DisplayablePrivateIfc* Desktop::getPrivateImpl()
{
    return mImplementation;
}

/// Never destroyed: listeners may still hear it while the process ends.
MenuCommand* Desktop::HIDDEN_COMMAND()
{
    static MenuCommand command("WIDGET_IS_HIDDEN_EVENT", HIDDEN_ID);
    return &command;
}

void Desktop::setLogoText(const std::string& text)
{
    Ops::call<SET_LOGO_TEXT>(*this, mImplementation, text);
}

void Desktop::setExtLabelText(std::string text)
{
    Ops::call<SET_EXT_LABEL_TEXT>(*this, mImplementation, std::move(text));
}

void Desktop::setExtensionNumberAndArrowState(bool arrow)
{
    Ops::call<SET_EXTENSION_NUMBER_AND_ARROW_STATE>(*this, mImplementation, arrow);
}

void Desktop::displayKeyLockIcon(bool on)
{
    Ops::call<DISPLAY_KEY_LOCK_ICON>(*this, mImplementation, on);
}

void Desktop::displayDNDIcon(bool on)
{
    Ops::call<DISPLAY_DND_ICON>(*this, mImplementation, on);
}

void Desktop::displayRingerOffIcon(bool on)
{
    Ops::call<DISPLAY_RINGER_OFF_ICON>(*this, mImplementation, on);
}

void Desktop::displayMaintenanceIcon(bool on)
{
    Ops::call<DISPLAY_MAINTENANCE_ICON>(*this, mImplementation, on);
}

void Desktop::displayCallbacksIcon(bool on)
{
    Ops::call<DISPLAY_CALLBACKS_ICON>(*this, mImplementation, on);
}

void Desktop::displayMobileUserIcon(bool on, int kind)
{
    if (!isGuiThread())
        Ops::call<DISPLAY_MOBILE_USER_ICON>(*this, mImplementation, on);
    else if (mImplementation != nullptr)
        mImplementation->displayMobileUserIcon(on, kind);
}

void Desktop::setSBPostTimeIcon(int icon, bool on)
{
    Ops::call<SET_SB_POST_TIME_ICON>(*this, mImplementation, icon, on);
}

void Desktop::setStatusBarMode(const std::string& mode, const std::string& detail)
{
    Ops::call<SET_STATUS_BAR_MODE>(*this, mImplementation, mode, detail);
}

void Desktop::setStatusBarModePrev(std::string mode)
{
    Ops::call<SET_STATUS_BAR_MODE_PREV>(*this, mImplementation, std::move(mode));
}

std::string Desktop::getSBModeText()
{
    return Ops::call<GET_SB_MODE_TEXT>(*this, mImplementation);
}

void Desktop::set12HourClockMode(bool on)
{
    Ops::call<SET_12_HOUR_CLOCK_MODE>(*this, mImplementation, on);
}

void Desktop::setTimeZoneOffset(int minutes)
{
    Ops::call<SET_TIME_ZONE_OFFSET>(*this, mImplementation, minutes);
}

void Desktop::setTime(int hours, int minutes, int seconds)
{
    Ops::call<SET_TIME>(*this, mImplementation, hours, minutes, seconds);
}

void Desktop::setDate(int day, int month, int year)
{
    Ops::call<SET_DATE>(*this, mImplementation, day, month, year);
}

void Desktop::setDayLabelText(TranslatorIfc* translator)
{
    Ops::call<SET_DAY_LABEL_TEXT>(*this, mImplementation, translator);
}

void Desktop::setStatusBarDayLabels()
{
    Ops::call<SET_STATUS_BAR_DAY_LABELS>(*this, mImplementation);
}

int Desktop::getNumberOfFPKLabels()
{
    if (isGuiThread())
        gLog(TRACE, 491, "Desktop::processGuiRequest getNumberOfFPKLabels gui thread");
    else
        gLog(TRACE, 496, "Desktop::processGuiRequest getNumberOfFPKLabels non gui thread");
    return Ops::call<GET_NUMBER_OF_FPK_LABELS>(*this, mImplementation);
}

void Desktop::setFPKEnabled(int key, bool enabled, bool shifted)
{
    Ops::call<SET_FPK_ENABLED>(*this, mImplementation, key, enabled, shifted);
}

bool Desktop::getFPKEnabled(int key, bool shifted)
{
    return Ops::call<GET_FPK_ENABLED>(*this, mImplementation, key, shifted);
}

void Desktop::setFPKLabel(int key, const std::string& label, bool enabled, bool shifted)
{
    Ops::call<SET_FPK_LABEL>(*this, mImplementation, key, label, enabled, shifted);
}

std::string Desktop::getFPKLabel(int key)
{
    return Ops::call<GET_FPK_LABEL>(*this, mImplementation, key);
}

void Desktop::setFPKHighlight(int key, bool on)
{
    Ops::call<SET_FPK_HIGHLIGHT>(*this, mImplementation, key, on);
}

void Desktop::setShifted(bool on)
{
    Ops::call<SET_SHIFTED>(*this, mImplementation, on);
}

void Desktop::show()
{
    Ops::call<SHOW>(*this, mImplementation);
}

void Desktop::screensaverStart()
{
    Ops::call<SCREENSAVER_START>(*this, mImplementation);
}

void Desktop::screensaverStop()
{
    Ops::call<SCREENSAVER_STOP>(*this, mImplementation);
}

void Desktop::screensaverSetImages(std::list<std::string>* paths)
{
    Ops::call<SCREENSAVER_SET_IMAGES>(*this, mImplementation, paths);
}

void Desktop::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void Desktop::displayBluetoothIcon(bool) {}

void Desktop::displayBluetoothTransferIcon(bool) {}

void Desktop::displayBluetoothHeadsetIcon(bool) {}

void Desktop::displayBluetoothHeadsetTransferIcon(bool) {}

void Desktop::screensaverSetImagesTimeout(int) {}

void Desktop::screensaverUsePixelSaverImages(int) {}

void Desktop::setPreviewVolume(VolumeDevice, int) {}

FpkBar* Desktop::getFpkBar()
{
    return nullptr;
}

} // namespace DisplayAPI
