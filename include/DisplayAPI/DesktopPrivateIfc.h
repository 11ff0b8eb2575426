#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

#include <list>
#include <string>

class TranslatorIfc;

namespace DisplayAPI {

class CommandListener;

/// The GUI-thread side of a desktop. GUI thread only. Deleted by Displayable::deletePrivateSide() alone.
class DISPLAYAPI_EXPORT DesktopPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~DesktopPrivateIfc() = default;

public:
    virtual void setLogoText(const std::string& text) = 0;
    virtual void setExtLabelText(const std::string& text) = 0;
    virtual void displayKeyLockIcon(bool on) = 0;
    virtual void displayDNDIcon(bool on) = 0;
    virtual void displayRingerOffIcon(bool on) = 0;
    virtual void displayMobileUserIcon(bool on, int kind) = 0;
    virtual void set12HourClockMode(bool on) = 0;
    virtual void setStatusBarMode(const std::string& mode, const std::string& detail) = 0;
    virtual void setStatusBarModePrev(const std::string& mode) = 0;
    virtual std::string getSBModeText() = 0;
    virtual void setSBPostTimeIcon(int icon, bool on) = 0;
    virtual void setTimeZoneOffset(int minutes) = 0;

    /// Any number may come as a key's.
    virtual void setFPKEnabled(int key, bool enabled, bool shifted) = 0;
    virtual bool getFPKEnabled(int key, bool shifted) = 0;
    virtual void setFPKLabel(int key, const std::string& label, bool enabled, bool shifted) = 0;
    virtual std::string getFPKLabel(int key) = 0;
    virtual void setFPKHighlight(int key, bool on) = 0;
    virtual void setShifted(bool on) = 0;
    virtual int getNumberOfFPKLabels() = 0;

    /// Comes to the top of a display by itself; show() is what the display says when it has happened.
    virtual void open() = 0;

    virtual void screensaverStart() = 0;
    virtual void screensaverStop() = 0;

    /// The list is the caller's: copy it. Null is none.
    virtual void screensaverSetImages(const std::list<std::string>* paths) = 0;

    virtual void setStatusBarDayLabels() = 0;

    /// Not owned; null is none.
    virtual void setDayLabelText(TranslatorIfc* translator) = 0;
    virtual void setTime(int hours, int minutes, int seconds) = 0;
    virtual void setDate(int day, int month, int year) = 0;
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void setExtensionNumberAndArrowState(bool arrow) = 0;
    virtual void displayMaintenanceIcon(bool on) = 0;
    virtual void displayCallbacksIcon(bool on) = 0;
};

} // namespace DisplayAPI
