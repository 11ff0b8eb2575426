#include "apps/deskphone/IdleHome.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/Dialer.h"
#include "apps/deskphone/LineSigns.h"
#include "apps/deskphone/MainMenu.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

using DisplayAPI::Command;

IdleHome::IdleHome(Telephone& telephone, Dialer& dialer)
    : mTelephone(telephone), mTitle(&telephone.languages(), "Menu.title"),
      mCanteen(&telephone.languages(), "News.canteen"), mLift(&telephone.languages(), "News.lift"),
      mIdle(APP_PICTURES "/logo.png"), mChoice(mIdle, [this](Command* command) { chosen(command); })
{
    mIdle.addDialer(&dialer.popup());
    mIdle.showDiallerOnInitialKeyEvent(true);
    mIdle.setUseDisplayId(true);
    renewTexts();
    telephone.addLanguageListener([this] { renewTexts(); });
}

void IdleHome::open()
{
    mTelephone.show(mIdle, Telephone::Lines::NONE);
}

void IdleHome::setMenu(MainMenu& menu)
{
    mMenu = &menu;
    mIdle.setCommands(menu.commands());
    mIdle.setDefaultMenuCommand(menu.commands().front());
}

/// What is the matter with a line takes the place of the news.
void IdleHome::show(const LineSigns& signs)
{
    mIdle.setDisplayIdUnicode(signs.name);
    mIdle.setMessages(signs.messages);
    mIdle.setForwardingIconVisible(signs.forwards);
    mIdle.setForwardingAddress(signs.forwardedTo);
    mIdle.clearSystemMessages();
    for (const std::string& notice : signs.notices)
        mIdle.addSystemMessage(notice);
    if (!signs.notices.empty())
        return;
    mIdle.addSystemMessage(mCanteen.info());
    mIdle.addSystemMessage(mLift.info());
}

void IdleHome::renewTexts()
{
    mIdle.setBrandingText(mTitle.get());
}

void IdleHome::chosen(const Command* command)
{
    if (mTelephone.display().getCurrent() == &mIdle)
        mMenu->choose(command);
}

} // namespace deskphone
