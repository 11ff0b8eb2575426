#pragma once

#include "DisplayAPI/Displayable.h"

#include <list>
#include <string>

class TranslatorIfc;

namespace DisplayAPI {

class CommandListener;
class DesktopPrivateIfc;
class FpkBar;
class MenuCommand;

/// The screen of a telephone with programmable keys (FPK): a status bar with mode, icons and time, the day and date,
/// extension and logo, a label for each key beside the panel, and a screensaver. The clock runs by itself once it is
/// set.
///
/// Threads: safe from any thread. Off the GUI thread the queries, setFPKLabel() and the destructor wait; everything
/// else posts and returns at once. A request that nobody knows is completed. Ownership: a desktop owns its GUI-thread
/// side. Listeners, translators and the list of pictures are not owned. Texts are UTF-8. A number that names no key or
/// icon is ignored.
class DISPLAYAPI_EXPORT Desktop : public Displayable {
public:
    /// The ids of the menu commands that keys raise. Digits, star and hash raise their character as id; programmable
    /// key 0 FPK, the next one FPK + 1; and the key that ends the screensaver, whichever it is, SCREENSAVER_ENDED.
    enum KeyCommand : unsigned int {
        OK_KEY = 1,
        UP_KEY,
        DOWN_KEY,
        LEFT_KEY,
        RIGHT_KEY,
        SCREENSAVER_ENDED,
        FPK = 0x100
    };

    enum VolumeDevice : int { HANDSET, HEADSET, SPEAKER, RINGER };

    Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Raised for the listeners when the desktop has left the screen, not when a popup above it comes or goes. The
    /// library's; the same one each time.
    static MenuCommand* HIDDEN_COMMAND();

    // What stands on the desktop; an empty text takes no room.

    void setLogoText(const std::string& text);
    void setExtLabelText(std::string text);

    /// Whether an arrow before the extension says that its calls go elsewhere.
    void setExtensionNumberAndArrowState(bool arrow);

    // The status bar.

    void displayKeyLockIcon(bool on);
    void displayDNDIcon(bool on);
    void displayRingerOffIcon(bool on);
    void displayMaintenanceIcon(bool on);
    void displayCallbacksIcon(bool on);

    /// `kind` reaches the GUI-thread side from the GUI thread alone; from another one it is 0. All look the same here.
    void displayMobileUserIcon(bool on, int kind);

    /// Shows or hides the icon after the time: 1 message, 2 forwarding, 3 person, 4 handset.
    void setSBPostTimeIcon(int icon, bool on);

    /// The mode, and what is said about it behind it.
    void setStatusBarMode(const std::string& mode, const std::string& detail);

    /// Shows again the mode that `mode` has replaced. Nothing where another mode is shown.
    void setStatusBarModePrev(std::string mode);

    /// The mode that is shown; empty at first.
    std::string getSBModeText();

    // The clock: no time is shown before the first setTime(), no date before the first setDate().

    /// Instead of the format that the application has set.
    void set12HourClockMode(bool on);

    /// The minutes by which the time on the desktop is ahead of the one set.
    void setTimeZoneOffset(int minutes);

    /// What is out of range is cut into it. The date is shown in the application's format.
    void setTime(int hours, int minutes, int seconds);
    void setDate(int day, int month, int year);

    /// Who knows the names of the days, by the keys "Monday" to "Sunday"; shows them. Null shows none. It has to live
    /// until a waiting call after the next setDayLabelText() has returned, or the desktop is gone.
    void setDayLabelText(TranslatorIfc* translator);

    /// Looks the names of the days up again.
    void setStatusBarDayLabels();

    // The programmable keys, numbered from 0. Each has two levels: the second one is in force while it is shifted.

    /// -1 where the desktop has no GUI-thread side.
    int getNumberOfFPKLabels();

    /// A key that is not enabled raises nothing. All are at first.
    void setFPKEnabled(int key, bool enabled, bool shifted);
    bool getFPKEnabled(int key, bool shifted);

    /// Of one level. `enabled` as setFPKEnabled() does it.
    void setFPKLabel(int key, const std::string& label, bool enabled, bool shifted);

    /// Of the level in force.
    std::string getFPKLabel(int key);

    /// The key's lamp.
    void setFPKHighlight(int key, bool on);
    void setShifted(bool on);

    /// Puts it on the display that it was on, or else on the one made last; nothing where there is none.
    /// Display::setCurrent() shows it as well.
    void show();

    // The screensaver: its pictures in turn, over all of the desktop. The key that ends it does nothing else, and
    // raises SCREENSAVER_ENDED.

    void screensaverStart();
    void screensaverStop();

    /// The paths of PNG files; null and an empty list are none. Read when it is carried out: the list has to live until
    /// then, a waiting call that has returned afterwards. A file without a picture leaves the panel bare.
    void screensaverSetImages(std::list<std::string>* paths);

    /// A listener is added once; null is ignored. It has to outlive the desktop. It hears HIDDEN_COMMAND() and a menu
    /// command for each key: see KeyCommand.
    void addCommandListener(CommandListener* listener);

    // This telephone has no use for these: they do nothing, on any thread.

    void displayBluetoothIcon(bool on);
    void displayBluetoothTransferIcon(bool on);
    void displayBluetoothHeadsetIcon(bool on);
    void displayBluetoothHeadsetTransferIcon(bool on);
    void screensaverSetImagesTimeout(int seconds);
    void screensaverUsePixelSaverImages(int count);
    void setPreviewVolume(VolumeDevice device, int volume);

    /// Null.
    FpkBar* getFpkBar();

private:
    struct Ops;

    void create();
    void destroy();

    DesktopPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
