#include "apps/deskphone/Desk.h"

#include "DisplayAPI/Command.h"

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

} // namespace

Desk::Desk(DisplayAPI::Display& display)
    : mMainMenu(display, nullptr, "Desk phone"), mCallLogs(display, &mMainMenu, "Call log"),
      mMissed(display, &mCallLogs, "Missed calls", {{"09:12", "Ελένη Ιωάννου"}, {"08:47", "030 1234567"}}),
      mReceived(display, &mCallLogs, "Received calls",
                {{"10:05", "Zoë Ångström"}, {"09:31", "Иван Орлик"}, {"08:02", "佐藤 美咲"}}),
      mDialled(display, &mCallLogs, "Dialled calls", {{"10:20", "Jürgen Müller"}, {"09:58", "משה כהן"}}),
      mContacts(display, &mMainMenu), mSettings(display, &mMainMenu), mAbout(display, &mMainMenu)
{
    mMainMenu.setEntries(
        {{"Call log", &mCallLogs}, {"Contacts", &mContacts}, {"Settings", &mSettings}, {"About", &mAbout}});
    mCallLogs.setEntries({{"Missed", &mMissed}, {"Received", &mReceived}, {"Dialled", &mDialled}});
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
                                &mContacts, &mSettings, &mContacts.card(), &mAbout};
    for (Choice* choice : mSettings.choices())
        all.push_back(choice);
    return all;
}

} // namespace deskphone
