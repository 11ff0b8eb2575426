#include "host/widgets/status/StatusTime.h"
#include "pictures/StatusScreens.h"
#include "support/VirtualTime.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslationInfo.h"
#include "variants/idle/IdleDisplayPrivate.h"

namespace {

using DisplayAPI::IdleDisplayPrivate;
using DisplayAPI::IdleDisplayPrivateWP1;
using DisplayAPI::IdleDisplaySide;

constexpr int TURN_MS = 4000;

/// Idle screens of a telephone whose clock stands at 14:05.
class IdlePictures : protected test::VirtualTime, public StatusScreens {
protected:
    IdlePictures()
    {
        if (isTwoLines())
            mIdle = std::make_unique<IdleDisplayPrivateWP1>(nullptr, std::string());
        else
            mIdle = std::make_unique<IdleDisplayPrivate>(nullptr, std::string());
        mTime.setClock(14, 5, 0);
        mTime.showClock(true);
        mIdle->setCurrentPhoneNumber("030 1234567");
        mIdle->setDisplayIdUnicode("Reception");
        mIdle->releaseOwnership();
        gpPresent->Add(mIdle->getWidget());
    }
    ~IdlePictures() override
    {
        mApplication.setDateFormat(PegString());
        mIdle->gainOwnership();
        gpPresent->Remove(mIdle->getWidget());
    }

    IdleDisplaySide& withLogo()
    {
        mIdle->changeLogo(APP_PICTURES "/logo.png");
        mIdle->setBrandingText("Two Peaks Telephony");
        return *mIdle;
    }

    void press(int key)
    {
        mIdle->getWidget()->Message({.wType = PM_KEY, .iData = key});
        host::Lcd::current()->paint();
    }

    std::unique_ptr<IdleDisplaySide> mIdle;
    host::StatusTime mTime;
};

TEST_P(IdlePictures, NumberAndTime)
{
    expectScreen("idle-plain");
}

TEST_P(IdlePictures, LogoAndBranding)
{
    withLogo().setUseDisplayId(true);
    expectScreen("idle-logo");
}

TEST_P(IdlePictures, EverythingAtOnce)
{
    withLogo().setMessages(3);
    mIdle->setMissedCalls(12);
    mIdle->setForwardingAddress("Mailbox 4711");
    mIdle->setServerBasedForwardingAddress("Ελένη Ιωάννου");
    mIdle->addSystemMessage("An update will be installed at night");
    mIdle->addSystemMessage("The canteen closes at two");
    mIdle->displayMobileUserIcon(true, 0);
    mIdle->setUseDisplayId(true);
    expectScreen("idle-all");
    host::Lcd::current()->paint();
    pass(TURN_MS);
    expectScreen("idle-turn");
}

TEST_P(IdlePictures, CountersAndForwarding)
{
    withLogo().setMessages(1);
    mIdle->setMissedCalls(2);
    mIdle->setForwardingAddress("040 7654321");
    expectScreen("idle-forwarding");
    mIdle->clearSystemMessages();
    mIdle->setForwardingAddress("");
    expectScreen("idle-counters");
}

TEST_P(IdlePictures, StatusLines)
{
    withLogo();
    mIdle->setSystemWindowSize(2);
    mIdle->setSystemWindowText(0, "Line 1");
    mIdle->setSystemWindowText(1, "Night service");
    expectScreen("idle-lines");
}

TEST_P(IdlePictures, Menu)
{
    withLogo().setMissedCalls(2);
    for (const char* command : {"Call log", "Contacts", "Settings", "About"})
        mIdle->addCommand(command);
    mIdle->setDefaultMenuCommand(1);
    press(PK_OK);
    expectScreen("idle-menu");
}

TEST_P(IdlePictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    withLogo().setMessages(3);
    mIdle->setMissedCalls(2);
    mIdle->setDisplayIdUnicode("الاستقبال");
    mIdle->setUseDisplayId(true);
    mIdle->displayMobileUserIcon(true, 0);
    mIdle->setForwardingAddress("محول إلى 4711");
    expectScreen("idle-arabic");
}

TEST_P(IdlePictures, LongTextsAndTwelveHours)
{
    mApplication.setTimeFormat(text("12h"));
    mApplication.setDateFormat(text("mm/dd/yyyy"));
    mIdle->setDisplayIdUnicode("The telephone in the corridor behind the stairs");
    mIdle->setUseDisplayId(true);
    mIdle->setBrandingText("A text that is longer than any panel has room for on one line");
    mIdle->setMissedCalls(1234);
    expectScreen("idle-long");
}

INSTANTIATE_TEST_SUITE_P(Panel, IdlePictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
