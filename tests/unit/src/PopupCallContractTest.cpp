// What a call popup promises of each of its operations.

#include "DisplayAPI/PopupCall.h"

#include "DisplayAPI/Image.h"
#include "DisplayAPI/MenuCommand.h"
#include "unit/src/PopupContract.h"
#include "utilities/CallPartyIdentifier.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

struct Calls : test::PopupSubject<PopupCall> {
    explicit Calls(bool hasSide) : PopupSubject(hasSide, "PopupCallPrivate") {}

    MenuCommand answer{"Answer", 1};
    CallPartyIdentifier caller{"Ada", "1"}, called{"Bert", "2"};
    Image* picture = reinterpret_cast<Image*>(&answer); // only its address travels
};

Filling command(Calls& p)
{
    return {.ptr1 = &p.answer};
}

/// A record's parties are copies, which whoever carries it out deletes.
Filling details(Calls& p)
{
    return {.text1 = "Urgent",
            .int1 = 77,
            .ptr1 = new CallPartyIdentifier(p.caller),
            .ptr2 = new CallPartyIdentifier(p.called),
            .ptr3 = test::ownedText()};
}

const bool POPUP_CALL_CHECKED =
    test::Contract<Calls>("PopupCallContractTest")
        .waits("setLine1PrefixText", 2, [](Calls& p) { p->setLine1PrefixText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine1PrefixText(\"Ada\")")
        .waits("setLine1PrefixTextTranslation", 3, [](Calls& p) { p->setLine1PrefixText(test::ownedText()); })
        .record(Calls::translation)
        .arrives("setLine1PrefixText(\"translated Key\")")
        .waits("setText", 4, [](Calls& p) { p->setText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setText(\"Ada\")")
        .waits("setTextTranslation", 5, [](Calls& p) { p->setText(test::ownedText()); })
        .record(Calls::translation)
        .arrives("setText(\"translated Key\")")
        .waits("setLine1Text", 4, [](Calls& p) { p->setLine1Text("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setText(\"Ada\")")
        .waits("setLine1TextTranslation", 5, [](Calls& p) { p->setLine1Text(test::ownedText()); })
        .record(Calls::translation)
        .arrives("setText(\"translated Key\")")
        .waits("setLine2PrefixText", 6, [](Calls& p) { p->setLine2PrefixText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine2PrefixText(\"Ada\")")
        .waits("setLine2PrefixTextTranslation", 7, [](Calls& p) { p->setLine2PrefixText(test::ownedText()); })
        .record(Calls::translation)
        .arrives("setLine2PrefixText(\"translated Key\")")
        .waits("setLine2Text", 8, [](Calls& p) { p->setLine2Text("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine2Text(\"Ada\")")
        .waits("setLine2TextTranslation", 9, [](Calls& p) { p->setLine2Text(test::ownedText()); })
        .record(Calls::translation)
        .arrives("setLine2Text(\"translated Key\")")
        .waits("setAuxText", 10, [](Calls& p) { p->setAuxText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setAuxText(\"Ada\")")
        .waits("setState", 11,
               [](Calls& p) {
                   p->setState(static_cast<PopupCall::CallState>(77), static_cast<PopupCall::CallPriority>(78));
               })
        .record({.int1 = 77, .int2 = 78})
        .arrives("setState(77, 78)")
        .waits("setPictureClip", 12, [](Calls& p) { p->setPictureClip(p.picture); })
        .record([](Calls& p) { return Filling{.ptr1 = p.picture}; })
        .arrives([](Calls& p) { return callText("setPictureClip", static_cast<const void*>(p.picture)); })
        .waits("addCommand", 13, [](Calls& p) { p->addCommand(&p.answer); })
        .record(command)
        .arrives([](Calls& p) { return callText("addCommand", &p.answer); })
        .waits("setDefaultCommand", 14, [](Calls& p) { p->setDefaultCommand(&p.answer); })
        .record(command)
        .arrives([](Calls& p) { return callText("setDefaultCommand", &p.answer); })
        .waits("clearCommands", 15, [](Calls& p) { p->clearCommands(); })
        .arrives("clearCommands()")
        .waits("setNoCommands", 15, [](Calls& p) { p->setCommands({}); })
        .arrives("clearCommands()")
        .waits("dismiss", 16, [](Calls& p) { p->dismiss(); })
        .arrives("dismiss()")
        .waits("getSelectedIndex", 17, +Calls::INDEX, 0, [](Calls& p) { return p->getSelectedIndex(); })
        .arrives("getSelectedIndex()")
        .waits("selectionHasChanged", 18, true, false, [](Calls& p) { return p->selectionHasChanged(); })
        .arrives("selectionHasChanged()")
        .waits("setPopupCallDetails", 19,
               [](Calls& p) {
                   p->setPopupCallDetails(p.caller, &p.called, static_cast<ForwardedCallType>(77), "Urgent",
                                          test::ownedText());
               })
        .record(details)
        .arrives("setPopupCallDetails(\"Ada\", \"Bert\", 77, \"Urgent\", \"Key\")")
        .completes({-1, 20, 99})
        .check();

} // namespace
