// What a popup that asks promises of each of its operations.

#include "DisplayAPI/PopupConfirm.h"

#include "DisplayAPI/MenuCommand.h"
#include "unit/src/PopupContract.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

struct Questions : test::PopupSubject<PopupConfirm> {
    explicit Questions(bool hasSide) : PopupSubject(hasSide, "PopupConfirmPrivate", true) {}

    MenuCommand menuYes{"Yes", 1};
    Command* yes = &menuYes;
};

Filling command(Questions& p)
{
    return {.ptr1 = p.yes};
}

Filling listener(Questions& p)
{
    return {.ptr1 = p.listener};
}

const bool POPUP_CONFIRM_CHECKED =
    test::Contract<Questions>("PopupConfirmContractTest")
        .waits("setLine1PrefixText", 2, [](Questions& p) { p->setLine1PrefixText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine1PrefixText(\"Ada\")")
        .waits("setLine1PrefixTextTranslation", 3, [](Questions& p) { p->setLine1PrefixText(test::ownedText()); })
        .record(Questions::translation)
        .arrives("setLine1PrefixText(\"translated Key\")")
        .waits("setText", 4, [](Questions& p) { p->setText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setText(\"Ada\")")
        .waits("setTextTranslation", 5, [](Questions& p) { p->setText(test::ownedText()); })
        .record(Questions::translation)
        .arrives("setText(\"translated Key\")")
        .waits("setLine1Text", 4, [](Questions& p) { p->setLine1Text("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setText(\"Ada\")")
        .waits("setLine1TextTranslation", 5, [](Questions& p) { p->setLine1Text(test::ownedText()); })
        .record(Questions::translation)
        .arrives("setText(\"translated Key\")")
        .waits("setLine2PrefixText", 6, [](Questions& p) { p->setLine2PrefixText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine2PrefixText(\"Ada\")")
        .waits("setLine2PrefixTextTranslation", 7, [](Questions& p) { p->setLine2PrefixText(test::ownedText()); })
        .record(Questions::translation)
        .arrives("setLine2PrefixText(\"translated Key\")")
        .waits("setLine2Text", 8, [](Questions& p) { p->setLine2Text("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine2Text(\"Ada\")")
        .waits("setLine2TextTranslation", 9, [](Questions& p) { p->setLine2Text(test::ownedText()); })
        .record(Questions::translation)
        .arrives("setLine2Text(\"translated Key\")")
        .waits("setState", 10, [](Questions& p) { p->setState(static_cast<PopupConfirm::PopupState>(77)); })
        .record({.int1 = 77})
        .arrives("setState(77)")
        .waits("show", 11, [](Questions& p) { p->show(); })
        .arrives("open()")
        .waits("dismiss", 12, [](Questions& p) { p->dismiss(); })
        .arrives("dismiss()")
        .waits("addCommand", 13, [](Questions& p) { p->addCommand(p.yes); })
        .record(command)
        .arrives([](Questions& p) { return callText("addCommand", p.yes); })
        .waits("removeCommand", 14, [](Questions& p) { p->removeCommand(p.yes); })
        .record(command)
        .arrives([](Questions& p) { return callText("removeCommand", p.yes); })
        .waits("setDefaultCommand", 15, [](Questions& p) { p->setDefaultCommand(p.yes); })
        .record(command)
        .arrives([](Questions& p) { return callText("setDefaultCommand", p.yes); })
        .waits("clearCommands", 16, [](Questions& p) { p->clearCommands(); })
        .arrives("clearCommands()")
        .waits("getSelectedIndex", 17, +Questions::INDEX, 0, [](Questions& p) { return p->getSelectedIndex(); })
        .arrives("getSelectedIndex()")
        .waits("selectionHasChanged", 18, true, false, [](Questions& p) { return p->selectionHasChanged(); })
        .arrives("selectionHasChanged()")
        .waits("setTimeout", 19, [](Questions& p) { p->setTimeout(5000); })
        .record({.int1 = 5000})
        .arrives("setTimeout(5000)")
        .waits("addCommandListener", 20, [](Questions& p) { p->addCommandListener(p.listener); })
        .record(listener)
        .arrives([](Questions& p) { return callText("addCommandListener", p.listener); })
        .waits("removeCommandListener", 21, [](Questions& p) { p->removeCommandListener(p.listener); })
        .record(listener)
        .arrives([](Questions& p) { return callText("removeCommandListener", p.listener); })
        .completes({-1, 22, 99})
        .check();

} // namespace
