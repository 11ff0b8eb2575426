#pragma once

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/Desktop.h"
#include "apps/deskphone/Ear.h"
#include "apps/deskphone/Place.h"
#include "kit/Subscription.h"
#include "kit/Text.h"

#include <functional>
#include <list>
#include <string>

namespace deskphone {

class Dialer;
class MainMenu;
struct LineSigns;
class Telephone;

/// The desktop: the date, and the main menu on the programmable keys, and whole under OK. The screensaver is its.
class DesktopHome : public Place {
public:
    /// `woken` is called on a thread of the library's when a key has ended the screensaver.
    DesktopHome(Telephone& telephone, Dialer& dialer, std::function<void()> woken);

    void open() override;
    void stopListening() override;

    DisplayAPI::Displayable& screen() { return mDesktop; }

    /// Not owned. Once, before the first open().
    void setMenu(MainMenu& menu);
    void setMissedCalls(int count) { mDesktop.displayCallbacksIcon(count > 0); }
    void show(const LineSigns& signs);

    /// Shows pictures until a key is pressed.
    void startScreensaver();
    void stopScreensaver() { mDesktop.screensaverStop(); }

private:
    void setClock();
    void renewTexts();
    void pressed(unsigned int key);

    Telephone& mTelephone;
    Dialer& mDialer;
    std::function<void()> mWoken;
    MainMenu* mMenu = nullptr;
    DisplayAPI::kit::Text mTitle;
    std::list<std::string> mPictures;
    Ear mKeys;
    DisplayAPI::Desktop mDesktop;
    DisplayAPI::ContextMenu mMenuOnTop;
    DisplayAPI::kit::Subscription mChoice;
};

} // namespace deskphone
