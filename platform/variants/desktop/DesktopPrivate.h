#pragma once

#include "DisplayAPI/DesktopPrivateIfc.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

class Desktop;

/// The GUI-thread side of a desktop, whatever the panel.
class DISPLAYAPI_EXPORT DesktopSide : public DisplayablePrivate, public DesktopPrivateIfc {
public:
    ~DesktopSide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    void setLogoText(const std::string& text) override;
    void setExtLabelText(const std::string& text) override;
    void displayKeyLockIcon(bool on) override;
    void displayDNDIcon(bool on) override;
    void displayRingerOffIcon(bool on) override;
    void displayMobileUserIcon(bool on, int kind) override;
    void set12HourClockMode(bool on) override;
    void setStatusBarMode(const std::string& mode, const std::string& detail) override;
    void setStatusBarModePrev(const std::string& mode) override;
    std::string getSBModeText() override;
    void setSBPostTimeIcon(int icon, bool on) override;
    void setTimeZoneOffset(int minutes) override;
    void setFPKEnabled(int key, bool enabled, bool shifted) override;
    bool getFPKEnabled(int key, bool shifted) override;
    void setFPKLabel(int key, const std::string& label, bool enabled, bool shifted) override;
    std::string getFPKLabel(int key) override;
    void setFPKHighlight(int key, bool on) override;
    void setShifted(bool on) override;
    int getNumberOfFPKLabels() override;
    void open() override;
    void screensaverStart() override;
    void screensaverStop() override;
    void screensaverSetImages(const std::list<std::string>* paths) override;
    void setStatusBarDayLabels() override;
    void setDayLabelText(TranslatorIfc* translator) override;
    void setTime(int hours, int minutes, int seconds) override;
    void setDate(int day, int month, int year) override;
    void addCommandListener(CommandListener* listener) override;
    void setExtensionNumberAndArrowState(bool arrow) override;
    void displayMaintenanceIcon(bool on) override;
    void displayCallbacksIcon(bool on) override;

protected:
    DesktopSide(Desktop* owner, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The desktop of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT DesktopPrivate : public DesktopSide {
public:
    /// `owner` is the facade, not owned.
    explicit DesktopPrivate(Desktop* owner);
};

/// The desktop of the 208 x 42 panel.
class DISPLAYAPI_EXPORT DesktopPrivateWP1 : public DesktopSide {
public:
    /// `owner` is the facade, not owned.
    explicit DesktopPrivateWP1(Desktop* owner);
};

} // namespace DisplayAPI
