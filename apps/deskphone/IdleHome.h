#pragma once

#include "DisplayAPI/IdleDisplay.h"
#include "apps/deskphone/Place.h"
#include "kit/Subscription.h"
#include "kit/Text.h"

namespace deskphone {

class Dialer;
class MainMenu;
struct LineSigns;
class Telephone;

/// The idle screen: who the telephone is, what was missed, the news, and the main menu.
class IdleHome : public Place {
public:
    IdleHome(Telephone& telephone, Dialer& dialer);

    void open() override;
    void stopListening() override { mChoice.end(); }

    DisplayAPI::Displayable& screen() { return mIdle; }

    /// Not owned. Once, before the first open().
    void setMenu(MainMenu& menu);
    void setMissedCalls(int count) { mIdle.setMissedCalls(count); }
    void show(const LineSigns& signs);

private:
    void renewTexts();
    void chosen(const DisplayAPI::Command* command);

    Telephone& mTelephone;
    MainMenu* mMenu = nullptr;
    DisplayAPI::kit::Text mTitle;
    DisplayAPI::kit::Text mCanteen;
    DisplayAPI::kit::Text mLift;
    DisplayAPI::IdleDisplay mIdle;
    DisplayAPI::kit::Subscription mChoice;
};

} // namespace deskphone
