#include "apps/deskphone/Desk.h"

#include "DisplayAPI/Command.h"
#include "apps/deskphone/WallClock.h"

#include <semaphore>

namespace deskphone {

namespace {

/// Waits until all commands that have been raised so far are dealt with: they are delivered one by one, in order.
class Fence : public DisplayAPI::CommandListener {
public:
    void wait()
    {
        DisplayAPI::Command anything(std::string(), DisplayAPI::Command::ITEM);
        postCommandAction(&anything, nullptr);
        mReached->acquire();
    }

private:
    void commandAction(DisplayAPI::Command*, DisplayAPI::Displayable*) override
    {
        const auto reached = mReached;
        reached->release();
    }

    std::shared_ptr<std::binary_semaphore> mReached = std::make_shared<std::binary_semaphore>(0);
};

std::time_t ago(int days, int minutes)
{
    return WallClock::now() - (days * 24 * 60 + minutes) * 60;
}

} // namespace

Desk::Desk(DisplayAPI::Display& display, const std::string& language)
    : mTelephone(display), mComplaint(mTelephone.useLanguage(language)), mStatus(mTelephone),
      mNewsText(&mTelephone.languages(), "News.ticker"), mNews(mNewsText.get()), mCall(mTelephone, mStatus),
      mMainMenu(mTelephone, nullptr, "Menu.title"), mCallLogs(mTelephone, &mMainMenu, "Call.log.title"),
      mMissed(mTelephone, &mCallLogs, "Call.log.missed.title",
              {{ago(0, 29), "Ελένη Ιωάννου"}, {ago(1, 54), "030 1234567"}}, mCall),
      mReceived(mTelephone, &mCallLogs, "Call.log.received.title",
                {{ago(0, 10), "Zoë Ångström"}, {ago(2, 80), "Иван Орлик"}, {ago(3, 0), "佐藤 美咲"}}, mCall),
      mDialled(mTelephone, &mCallLogs, "Call.log.dialled.title",
               {{ago(0, 21), "Jürgen Müller"}, {ago(7, 43), "משה כהן"}}, mCall),
      mContacts(mTelephone, &mMainMenu, mCall), mSettings(mTelephone, &mMainMenu), mAbout(mTelephone, &mMainMenu)
{
    mMainMenu.setEntries({{"Menu.call.log", &mCallLogs},
                          {"Menu.contacts", &mContacts},
                          {"Menu.settings", &mSettings},
                          {"Menu.about", &mAbout}});
    mMainMenu.setTicker(mNews);
    mCallLogs.setEntries(
        {{"Call.log.missed", &mMissed}, {"Call.log.received", &mReceived}, {"Call.log.dialled", &mDialled}});
    mTelephone.addLanguageListener([this] { mNews.setText(mNewsText.get()); });
}

void Desk::open()
{
    mMainMenu.open();
    mStatus.open();
    if (!mComplaint.empty())
        mTelephone.tell(mComplaint);
}

void Desk::close()
{
    for (Screen* screen : screens())
        screen->stopListening();
    Fence().wait();
    for (Screen* screen : screens())
        screen->stopWorking();
}

std::vector<Screen*> Desk::screens()
{
    std::vector<Screen*> all = {&mMainMenu, &mCallLogs, &mMissed,          &mReceived, &mDialled,
                                &mContacts, &mSettings, &mContacts.card(), &mAbout,    &mCall};
    for (Choice* choice : mSettings.choices())
        all.push_back(choice);
    return all;
}

} // namespace deskphone
