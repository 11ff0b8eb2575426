#pragma once

#include "apps/deskphone/DesktopHome.h"
#include "apps/deskphone/Dialer.h"
#include "apps/deskphone/IdleHome.h"
#include "apps/deskphone/MainMenu.h"
#include "apps/deskphone/Screensaver.h"

#include <atomic>
#include <memory>
#include <vector>

namespace deskphone {

class CallScreen;
class CallHistory;
struct LineSigns;

/// Where the telephone is when nobody uses it: the idle screen, or the desktop. A digit dials, OK leads everywhere
/// else.
class Home : public Place {
public:
    enum class Kind { IDLE_SCREEN, DESKTOP };

    Home(Telephone& telephone, CallScreen& call, CallHistory& history);

    void open() override;
    void stopListening() override;

    /// What OK offers. Once, before the first open().
    void setMenu(const std::vector<MainMenu::Entry>& entries);

    /// Takes effect when it is opened the next time.
    void use(Kind kind);

    /// Tells how the lines stand, wherever home is. On the GUI thread.
    void show(const LineSigns& signs);

    /// 0 is never.
    void setScreensaverMinutes(int minutes) { mScreensaver.setMinutes(minutes); }

private:
    /// What is on the screen has changed. On the GUI thread.
    void shown(const DisplayAPI::Displayable* current);
    void begin();
    bool isHome(const DisplayAPI::Displayable* screen);
    void setMissedCalls(int count);

    Telephone& mTelephone;
    Dialer mDialer;
    std::unique_ptr<MainMenu> mMenu; ///< before the screens that show it
    IdleHome mIdle;
    DesktopHome mDesktop;
    std::atomic<Kind> mKind{Kind::IDLE_SCREEN};
    Screensaver mScreensaver;
};

} // namespace deskphone
