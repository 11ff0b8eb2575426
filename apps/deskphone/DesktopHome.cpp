#include "apps/deskphone/DesktopHome.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/MenuCommand.h"
#include "apps/deskphone/Dialer.h"
#include "apps/deskphone/LineSigns.h"
#include "apps/deskphone/MainMenu.h"
#include "apps/deskphone/Telephone.h"
#include "host/clock/WallClock.h"

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::Desktop;
using DisplayAPI::MenuCommand;
using host::WallClock;

namespace {

/// Of the icons behind the time.
enum Icon { LETTER = 1, ARROW = 2 };

} // namespace

DesktopHome::DesktopHome(Telephone& telephone, Dialer& dialer, std::function<void()> woken)
    : mTelephone(telephone), mDialer(dialer), mWoken(std::move(woken)),
      mTitle(&telephone.languages(), "Menu.title"), mPictures{APP_PICTURES "/sea.png", APP_PICTURES "/hills.png"},
      mKeys([this](Command* command) { pressed(static_cast<MenuCommand*>(command)->getId()); }),
      mMenuOnTop(HAS_WAY_BACK), mChoice(mMenuOnTop, [this](Command* command) { mMenu->choose(command); })
{
    mDesktop.addCommandListener(&mKeys);
    mDesktop.setDayLabelText(&telephone.languages());
    mDesktop.screensaverSetImages(&mPictures);
    mMenuOnTop.setBackTranslator(&telephone.languages());
    mMenuOnTop.setRightArrowEqualsOK(true);
    telephone.addLanguageListener([this] { renewTexts(); });
}

void DesktopHome::open()
{
    setClock();
    mTelephone.show(mDesktop, Telephone::Lines::NONE);
}

void DesktopHome::setClock()
{
    const std::tm now = WallClock::local(WallClock::now());
    mDesktop.setDate(now.tm_mday, now.tm_mon + 1, now.tm_year + 1900);
    mDesktop.setTime(now.tm_hour, now.tm_min, now.tm_sec);
}

void DesktopHome::stopListening()
{
    mKeys.stop();
    mChoice.end();
}

void DesktopHome::setMenu(MainMenu& menu)
{
    mMenu = &menu;
    for (MenuCommand* command : menu.commands())
        mMenuOnTop.addCommandWithIcon(command, nullptr, false);
    renewTexts();
}

void DesktopHome::show(const LineSigns& signs)
{
    mDesktop.setExtLabelText(signs.name);
    mDesktop.setExtensionNumberAndArrowState(!signs.forwardedTo.empty());
    mDesktop.setStatusBarMode(signs.state, {});
    mDesktop.displayDNDIcon(signs.isQuiet);
    mDesktop.setSBPostTimeIcon(LETTER, signs.messages > 0);
    mDesktop.setSBPostTimeIcon(ARROW, signs.forwards);
}

void DesktopHome::startScreensaver()
{
    setClock();
    mTelephone.show(mDesktop, Telephone::Lines::NONE);
    mDesktop.screensaverStart();
}

void DesktopHome::renewTexts()
{
    mDesktop.setLogoText(mTitle.get());
    int key = 0;
    for (const std::string& label : mMenu->shortTexts())
        mDesktop.setFPKLabel(key++, label, true, false);
}

void DesktopHome::pressed(unsigned int key)
{
    const bool isDigit = key >= '#' && key < Desktop::FPK;
    if (isDigit && mDialer.isUp())
        return mDialer.type(static_cast<char>(key));
    if (mTelephone.display().getCurrent() != &mDesktop)
        return;
    if (key == Desktop::SCREENSAVER_ENDED)
        mWoken();
    else if (key == Desktop::OK_KEY || key == Desktop::DOWN_KEY)
        mMenuOnTop.show();
    else if (key >= Desktop::FPK)
        mMenu->chooseAt(key - Desktop::FPK);
    else if (isDigit)
        mDialer.open(static_cast<char>(key));
}

} // namespace deskphone
