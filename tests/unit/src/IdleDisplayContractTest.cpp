// What an idle display promises of each of its operations.

#include "DisplayAPI/IdleDisplay.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"
#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int CLEAN_UP = 1;

struct Screens : test::WidgetSubject<IdleDisplay> {
    explicit Screens(bool hasSide)
    {
        facade = std::make_unique<IdleDisplay>("logo.png");
        facade->addCommand(&call);
        facade->addDialer(&dialer);
        if (!hasSide)
            endSide(CLEAN_UP);
    }

    static std::string arrival(const std::string& call) { return test::sideName("IdleDisplayPrivate") + "::" + call; }
    static bool isArrival(const std::string& note)
    {
        return note.find("IdleDisplayPrivate") == 0 && note.find("::") < note.find('(');
    }

    PopupDialer dialer{true, 0};
    MenuCommand call{"Call", 1};
    MenuCommand send{"Send", 2};
    Command* sending = &send;
    TranslationInfo translation{"Forwarded", nullptr};
    CallPartyIdentifier party{"Ada", "0301234567"};
};

const void* plain(const void* object)
{
    return object;
}

const bool IDLE_DISPLAY_CHECKED =
    test::Contract<Screens>("IdleDisplayContractTest")
        .posts("setMessages", 2, [](Screens& s) { s->setMessages(3); })
        .record({.int1 = 3})
        .arrives("setMessages(3)")
        .posts("setMissedCalls", 3, [](Screens& s) { s->setMissedCalls(4); })
        .record({.int1 = 4})
        .arrives("setMissedCalls(4)")
        .posts("setForwardingAddress", 4, [](Screens& s) { s->setForwardingAddress("030"); })
        .record({.text1 = "030"})
        .arrives("setForwardingAddress(\"030\")")
        .posts("clearForwardingAddress", 4, [](Screens& s) { s->clearForwardingAddress(); })
        .arrives("setForwardingAddress(\"\")")
        .posts("setForwardingTranslation", 5, [](Screens& s) { s->setForwardingAddress(&s.translation); })
        .record([](Screens& s) { return Filling{.ptr1 = &s.translation}; })
        .arrives([](Screens& s) { return callText("setForwardingAddress", plain(&s.translation)); })
        .posts("setForwardingParty", 6, [](Screens& s) { s->setForwardingAddress(&s.translation, &s.party); })
        .record([](Screens& s) { return Filling{.ptr1 = &s.translation, .ptr2 = &s.party}; })
        .arrives([](Screens& s) { return callText("setForwardingAddress", plain(&s.translation), plain(&s.party)); })
        .posts("setServerBasedForwardingAddress", 7, [](Screens& s) { s->setServerBasedForwardingAddress("040"); })
        .record({.text1 = "040"})
        .arrives("setServerBasedForwardingAddress(\"040\")")
        .posts("clearServerBasedForwardingAddress", 7, [](Screens& s) { s->clearServerBasedForwardingAddress(); })
        .arrives("setServerBasedForwardingAddress(\"\")")
        .posts("setServerBasedForwardingTranslation", 8,
               [](Screens& s) { s->setServerBasedForwardingAddress(&s.translation); })
        .record([](Screens& s) { return Filling{.ptr1 = &s.translation}; })
        .arrives([](Screens& s) { return callText("setServerBasedForwardingAddress", plain(&s.translation)); })
        .waits("addCommand", 9, [](Screens& s) { s->addCommand(&s.send); })
        .record([](Screens& s) { return Filling{.ptr1 = s.sending}; })
        .arrives("addCommand(\"Send\")")
        .posts("clearCommands", 10, [](Screens& s) { s->clearCommands(); })
        .arrives("clearCommands()")
        .posts("setDefaultMenuCommand", 11, [](Screens& s) { s->setDefaultMenuCommand(&s.call); })
        .record([](Screens& s) { return Filling{.ptr1 = &s.call}; })
        .arrives("setDefaultMenuCommand(0)")
        .posts("hide", 12, [](Screens& s) { s->hide(); })
        .arrives("hide()")
        .posts("addSystemMessage", 13, [](Screens& s) { s->addSystemMessage("Updating"); })
        .record({.text1 = "Updating"})
        .arrives("addSystemMessage(\"Updating\")")
        .posts("addSystemTranslation", 14, [](Screens& s) { s->addSystemMessage(&s.translation); })
        .record([](Screens& s) { return Filling{.ptr1 = &s.translation}; })
        .arrives([](Screens& s) { return callText("addSystemMessage", plain(&s.translation)); })
        .posts("clearSystemMessages", 15, [](Screens& s) { s->clearSystemMessages(); })
        .arrives("clearSystemMessages()")
        .posts("changeLogo", 16, [](Screens& s) { s->changeLogo("other.png"); })
        .record({.text1 = "other.png"})
        .arrives("changeLogo(\"other.png\")")
        .posts("setBrandingText", 17, [](Screens& s) { s->setBrandingText("Acme"); })
        .record({.text1 = "Acme"})
        .arrives("setBrandingText(\"Acme\")")
        .posts("setSystemWindowSize", 18, [](Screens& s) { s->setSystemWindowSize(2); })
        .record({.int1 = 2})
        .arrives("setSystemWindowSize(2)")
        .posts("setSystemWindowText", 19, [](Screens& s) { s->setSystemWindowText(1, "up"); })
        .record({.text1 = "up", .int1 = 1})
        .arrives("setSystemWindowText(1, \"up\")")
        .posts("showDiallerOnInitialKeyEvent", 20, [](Screens& s) { s->showDiallerOnInitialKeyEvent(true); })
        .record({.bool1 = true})
        .arrives("showDialer(true)")
        .posts("addDialer", 21, [](Screens& s) { s->addDialer(&s.dialer); })
        .record([](Screens& s) { return Filling{.ptr1 = &s.dialer}; })
        .arrives([](Screens& s) { return callText("setDialler", plain(&s.dialer)); })
        .posts("setForwardingIconVisible", 23, [](Screens& s) { s->setForwardingIconVisible(true); })
        .record({.bool1 = true})
        .arrives("setForwardingIconVisible(true)")
        .posts("setCurrentPhoneNumber", 24, [](Screens& s) { s->setCurrentPhoneNumber("4711"); })
        .record({.text1 = "4711"})
        .arrives("setCurrentPhoneNumber(\"4711\")")
        .posts("setDisplayIdUnicode", 25, [](Screens& s) { s->setDisplayIdUnicode("Zoë"); })
        .record({.text1 = "Zoë"})
        .arrives("setDisplayIdUnicode(\"Zoë\")")
        .posts("setUseDisplayId", 26, [](Screens& s) { s->setUseDisplayId(true); })
        .record({.bool1 = true})
        .arrives("setUseDisplayId(true)")
        .posts("displayMobileUserIcon", 27, [](Screens& s) { s->displayMobileUserIcon(true, 0); })
        .record({.bool1 = true})
        .arrives("displayMobileUserIcon(true, 0)")
        .completes({-1, 28, 99})
        .check();

} // namespace
