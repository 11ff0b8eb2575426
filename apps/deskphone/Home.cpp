#include "apps/deskphone/Home.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/ShortDials.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

Home::Home(Telephone& telephone, CallScreen& call, CallHistory& history)
    : mTelephone(telephone), mDialer(telephone, [this, &call](const std::string& typed) { dial(call, *this, typed); }),
      mIdle(telephone, mDialer), mDesktop(telephone, mDialer, [this] { open(); }), mScreensaver([this] { begin(); })
{
    telephone.addScreenListener([this](const DisplayAPI::Displayable* current) { shown(current); });
    history.addMissedListener([this](int count) { setMissedCalls(count); });
}

void Home::open()
{
    mDesktop.stopScreensaver();
    if (mKind == Kind::DESKTOP)
        mDesktop.open();
    else
        mIdle.open();
    mScreensaver.wait();
    mTelephone.arriveAt(*this);
}

void Home::stopListening()
{
    mDialer.stopListening();
    mIdle.stopListening();
    mDesktop.stopListening();
}

void Home::setMenu(const std::vector<MainMenu::Entry>& entries)
{
    mMenu = std::make_unique<MainMenu>(mTelephone, entries);
    mIdle.setMenu(*mMenu);
    mDesktop.setMenu(*mMenu);
}

void Home::use(Kind kind)
{
    mKind = kind;
}

void Home::shown(const DisplayAPI::Displayable* current)
{
    if (isHome(current))
        mScreensaver.wait();
    else
        mScreensaver.stop();
}

/// The user may have gone elsewhere at the last moment.
void Home::begin()
{
    if (isHome(mTelephone.display().getCurrent()))
        mDesktop.startScreensaver();
}

bool Home::isHome(const DisplayAPI::Displayable* screen)
{
    return screen == (mKind == Kind::DESKTOP ? &mDesktop.screen() : &mIdle.screen());
}

void Home::show(const LineSigns& signs)
{
    mIdle.show(signs);
    mDesktop.show(signs);
}

void Home::setMissedCalls(int count)
{
    mIdle.setMissedCalls(count);
    mDesktop.setMissedCalls(count);
}

} // namespace deskphone
