// What a context menu promises of each of its operations.

#include "DisplayAPI/ContextMenu.h"

#include "DisplayAPI/MenuCommand.h"
#include "Variant.h"
#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "utilities/HardwareVersion.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int DESTROY = 1, INDEX = 3;

struct Menus : test::WidgetSubject<ContextMenu> {
    explicit Menus(bool hasSide)
    {
        HardwareVersion::setHWSubVariant(0);
        doubles::Answers::instance().reset();
        doubles::Answers::instance().selectedIndex = INDEX;
        doubles::Answers::instance().isSelected = true;
        facade = std::make_unique<ContextMenu>(true);
        facade->addCommand(&call, nullptr, false);
        if (!hasSide)
            endSide(DESTROY);
    }

    static std::string arrival(const std::string& call)
    {
        return (isFullPanel() ? "ContextMenuPrivate::" : "ContextMenuPrivateWP1::") + call;
    }

    MenuCommand call{"Call", 1};
    MenuCommand remove{"Delete", 2};
    Command* second = &remove;
    testing::NiceMock<doubles::MockCommandListener> mock;
    CommandListener* listener = &mock;
    doubles::MockTranslator translatorMock;
    TranslatorIfc* translator = &translatorMock;
};

const void* plain(const Command& command)
{
    return &command;
}

const bool CONTEXT_MENU_CHECKED =
    test::Contract<Menus>("ContextMenuContractTest")
        .posts("show", 2, [](Menus& m) { m->show(); })
        .arrives("open()")
        .waits("dismiss", 3, [](Menus& m) { m->dismiss(); })
        .arrives("dismiss()")
        .waits("addCommand", 4, [](Menus& m) { m->addCommand(&m.call, m.second, true); })
        .record(
            [](Menus& m) { return Filling{.bool1 = true, .ptr1 = static_cast<Command*>(&m.call), .ptr2 = m.second}; })
        .arrives([](Menus& m) { return callText("addCommand", plain(m.call), plain(m.remove), true); })
        .waits("addCommandWithIcon", 5, [](Menus& m) { m->addCommandWithIcon(&m.call, m.second, true); })
        .record([](Menus& m) { return Filling{.ptr1 = &m.call}; })
        .arrives([](Menus& m) { return callText("addCommandWithIcon", plain(m.call)); })
        .waits("clearCommands", 6, [](Menus& m) { m->clearCommands(); })
        .arrives("clearCommands()")
        .waits("setDefaultCommand", 7, [](Menus& m) { m->setDefaultCommand(&m.remove); })
        .record([](Menus& m) { return Filling{.ptr1 = &m.remove}; })
        .arrives([](Menus& m) { return callText("setDefaultCommand", plain(m.remove)); })
        .waits(
            "getSelectedCommand", 8, [](Menus& m) { return static_cast<Command*>(&m.call); }, nullptr,
            [](Menus& m) { return m->getSelectedCommand(); })
        .through(&GuiRequestEvent::returnValue1)
        .arrives("getSelectedCommand()")
        .posts("addCommandListener", 9, [](Menus& m) { m->addCommandListener(m.listener); })
        .record([](Menus& m) { return Filling{.ptr1 = m.listener}; })
        .arrives([](Menus& m) { return callText("addCommandListener", m.listener); })
        .posts("removeCommandListener", 10, [](Menus& m) { m->removeCommandListener(m.listener); })
        .record([](Menus& m) { return Filling{.ptr1 = m.listener}; })
        .arrives([](Menus& m) { return callText("removeCommandListener", m.listener); })
        .waits("getSelectedIndex", 11, INDEX, 0, [](Menus& m) { return m->getSelectedIndex(); })
        .through(&GuiRequestEvent::ptrParam1)
        .arrives("getSelectedIndex()")
        .waits("selectionHasChanged", 12, true, false, [](Menus& m) { return m->selectionHasChanged(); })
        .through(&GuiRequestEvent::ptrParam1)
        .arrives("selectionHasChanged()")
        .waits("setBackTranslator", 13, [](Menus& m) { m->setBackTranslator(m.translator); })
        .record([](Menus& m) { return Filling{.ptr1 = m.translator}; })
        .arrives([](Menus& m) { return callText("setBackTranslator", m.translator); })
        .posts("setRightArrowEqualsOK", 14, [](Menus& m) { m->setRightArrowEqualsOK(true); })
        .record({.bool1 = true})
        .arrives("setRightArrowEqualsOK(true)")
        .posts("setAutoHideTimeout", 15, [](Menus& m) { m->setAutoHideTimeout(5000); })
        .record({.int1 = 5000})
        .arrives("setAutoHideTimeout(5000)")
        .waits("setSysWindowSize", 16, [](Menus& m) { m->setSysWindowSize(2); })
        .record({.int1 = 2})
        .arrives("setSysWindowSize(2)")
        .leaves({-1, 17, 99})
        .check();

} // namespace
