// What a desktop promises of each of its operations.

#include "DisplayAPI/Desktop.h"

#include "doubles/Mocks.h"
#include "support/FacadeContract.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int DESTROY = 1;

struct Desktops : test::WidgetSubject<Desktop> {
    explicit Desktops(bool hasSide)
    {
        facade = std::make_unique<Desktop>();
        if (!hasSide)
            endSide(DESTROY);
    }

    static std::string arrival(const std::string& call) { return test::sideName("DesktopPrivate") + "::" + call; }

    std::list<std::string> paths{"sea.png"};
    testing::NiceMock<doubles::MockCommandListener> mock;
    CommandListener* listener = &mock;
    doubles::MockTranslator translatorMock;
    TranslatorIfc* translator = &translatorMock;
};

const bool DESKTOP_CHECKED =
    test::Contract<Desktops>("DesktopContractTest")
        .posts("setLogoText", 2, [](Desktops& d) { d->setLogoText("Nord"); })
        .record({.text1 = "Nord"})
        .arrives("setLogoText(\"Nord\")")
        .posts("setExtLabelText", 3, [](Desktops& d) { d->setExtLabelText("4711"); })
        .record({.text1 = "4711"})
        .arrives("setExtLabelText(\"4711\")")
        .posts("displayKeyLockIcon", 4, [](Desktops& d) { d->displayKeyLockIcon(true); })
        .record({.bool1 = true})
        .arrives("displayKeyLockIcon(true)")
        .posts("displayDNDIcon", 5, [](Desktops& d) { d->displayDNDIcon(true); })
        .record({.bool1 = true})
        .arrives("displayDNDIcon(true)")
        .posts("displayRingerOffIcon", 6, [](Desktops& d) { d->displayRingerOffIcon(true); })
        .record({.bool1 = true})
        .arrives("displayRingerOffIcon(true)")
        .posts("displayMobileUserIcon", 7, [](Desktops& d) { d->displayMobileUserIcon(true, 0); })
        .record({.bool1 = true})
        .arrives("displayMobileUserIcon(true, 0)")
        .posts("set12HourClockMode", 8, [](Desktops& d) { d->set12HourClockMode(true); })
        .record({.bool1 = true})
        .arrives("set12HourClockMode(true)")
        .posts("setStatusBarMode", 9, [](Desktops& d) { d->setStatusBarMode("Busy", "until 3"); })
        .record({.text1 = "Busy", .text2 = "until 3"})
        .arrives("setStatusBarMode(\"Busy\", \"until 3\")")
        .posts("setStatusBarModePrev", 10, [](Desktops& d) { d->setStatusBarModePrev("Busy"); })
        .record({.text1 = "Busy"})
        .arrives("setStatusBarModePrev(\"Busy\")")
        .waits("getSBModeText", 11, "Busy", "", [](Desktops& d) { return d->getSBModeText(); })
        .arrives("getSBModeText()")
        .posts("setSBPostTimeIcon", 12, [](Desktops& d) { d->setSBPostTimeIcon(3, true); })
        .record({.int1 = 3, .bool1 = true})
        .arrives("setSBPostTimeIcon(3, true)")
        .posts("setTimeZoneOffset", 13, [](Desktops& d) { d->setTimeZoneOffset(-90); })
        .record({.int1 = -90})
        .arrives("setTimeZoneOffset(-90)")
        .posts("setFPKEnabled", 14, [](Desktops& d) { d->setFPKEnabled(2, false, true); })
        .record({.int1 = 2, .bool1 = false, .bool2 = true})
        .arrives("setFPKEnabled(2, false, true)")
        .waits("getFPKEnabled", 15, true, false, [](Desktops& d) { return d->getFPKEnabled(2, true); })
        .record({.int1 = 2, .bool1 = true})
        .through(&GuiRequestEvent::returnValue4)
        .arrives("getFPKEnabled(2, true)")
        .waits("setFPKLabel", 16, [](Desktops& d) { d->setFPKLabel(2, "Ada", true, false); })
        .record({.text1 = "Ada", .int1 = 2, .bool1 = true})
        .arrives("setFPKLabel(2, \"Ada\", true, false)")
        .waits("getFPKLabel", 17, "Ada", "", [](Desktops& d) { return d->getFPKLabel(2); })
        .record({.int1 = 2})
        .arrives("getFPKLabel(2)")
        .posts("setFPKHighlight", 18, [](Desktops& d) { d->setFPKHighlight(2, true); })
        .record({.int1 = 2, .bool1 = true})
        .arrives("setFPKHighlight(2, true)")
        .posts("setShifted", 19, [](Desktops& d) { d->setShifted(true); })
        .record({.bool1 = true})
        .arrives("setShifted(true)")
        .waits("getNumberOfFPKLabels", 20, 6, -1, [](Desktops& d) { return d->getNumberOfFPKLabels(); })
        .through(&GuiRequestEvent::returnValue2)
        .arrives("getNumberOfFPKLabels()")
        .posts("show", 21, [](Desktops& d) { d->show(); })
        .arrives("open()")
        .posts("screensaverStart", 22, [](Desktops& d) { d->screensaverStart(); })
        .arrives("screensaverStart()")
        .posts("screensaverStop", 23, [](Desktops& d) { d->screensaverStop(); })
        .arrives("screensaverStop()")
        .posts("screensaverSetImages", 24, [](Desktops& d) { d->screensaverSetImages(&d.paths); })
        .record([](Desktops& d) { return Filling{.ptr1 = &d.paths}; })
        .arrives([](Desktops& d) { return callText("screensaverSetImages", &d.paths); })
        .posts("setStatusBarDayLabels", 25, [](Desktops& d) { d->setStatusBarDayLabels(); })
        .arrives("setStatusBarDayLabels()")
        .posts("setDayLabelText", 26, [](Desktops& d) { d->setDayLabelText(d.translator); })
        .record([](Desktops& d) { return Filling{.ptr1 = d.translator}; })
        .arrives([](Desktops& d) { return callText("setDayLabelText", d.translator); })
        .posts("setTime", 27, [](Desktops& d) { d->setTime(9, 41, 30); })
        .record({.int1 = 9, .int2 = 41, .int3 = 30})
        .arrives("setTime(9, 41, 30)")
        .posts("setDate", 28, [](Desktops& d) { d->setDate(9, 3, 2026); })
        .record({.int1 = 9, .int2 = 3, .int3 = 2026})
        .arrives("setDate(9, 3, 2026)")
        .posts("addCommandListener", 29, [](Desktops& d) { d->addCommandListener(d.listener); })
        .record([](Desktops& d) { return Filling{.ptr1 = d.listener}; })
        .arrives([](Desktops& d) { return callText("addCommandListener", d.listener); })
        .posts("setExtensionNumberAndArrowState", 30, [](Desktops& d) { d->setExtensionNumberAndArrowState(true); })
        .record({.bool1 = true})
        .arrives("setExtensionNumberAndArrowState(true)")
        .posts("displayMaintenanceIcon", 31, [](Desktops& d) { d->displayMaintenanceIcon(true); })
        .record({.bool1 = true})
        .arrives("displayMaintenanceIcon(true)")
        .posts("displayCallbacksIcon", 32, [](Desktops& d) { d->displayCallbacksIcon(true); })
        .record({.bool1 = true})
        .arrives("displayCallbacksIcon(true)")
        .completes({-1, 33, 99})
        .check();

} // namespace
