// What a notification promises of each of its operations.

#include "DisplayAPI/PopupNotification.h"

#include "unit/src/PopupContract.h"
#include "utilities/CallPartyIdentifier.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

struct Notices : test::PopupSubject<PopupNotification> {
    explicit Notices(bool hasSide) : PopupSubject(hasSide, "PopupNotificationPrivate") {}

    CallPartyIdentifier caller{"Ada", "1"}, called{"Bert", "2"};
};

/// A record's parties are copies, which whoever carries it out deletes.
Filling parties(Notices& p)
{
    return {.int1 = 77, .ptr1 = new CallPartyIdentifier(p.caller), .ptr2 = new CallPartyIdentifier(p.called)};
}

const bool POPUP_NOTIFICATION_CHECKED =
    test::Contract<Notices>("PopupNotificationContractTest")
        .waits("setLine1PrefixText", 2, [](Notices& p) { p->setLine1PrefixText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine1PrefixText(\"Ada\")")
        .waits("setLine1PrefixTextTranslation", 3, [](Notices& p) { p->setLine1PrefixText(test::ownedText()); })
        .record(Notices::translation)
        .arrives("setLine1PrefixText(\"translated Key\")")
        .waits("setText", 4, [](Notices& p) { p->setText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setText(\"Ada\")")
        .waits("setTextTranslation", 5, [](Notices& p) { p->setText(test::ownedText()); })
        .record(Notices::translation)
        .arrives("setText(\"translated Key\")")
        .waits("setLine1Text", 4, [](Notices& p) { p->setLine1Text("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setText(\"Ada\")")
        .waits("setLine1TextTranslation", 5, [](Notices& p) { p->setLine1Text(test::ownedText()); })
        .record(Notices::translation)
        .arrives("setText(\"translated Key\")")
        .waits("setLine2Icon", 6, [](Notices& p) { p->setLine2Icon(static_cast<PopupNotification::IconElemType>(77)); })
        .record({.int1 = 77})
        .arrives("setLine2Icon(77)")
        .waits("setLine2PrefixText", 7, [](Notices& p) { p->setLine2PrefixText("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine2PrefixText(\"Ada\")")
        .waits("setLine2PrefixTextTranslation", 8, [](Notices& p) { p->setLine2PrefixText(test::ownedText()); })
        .record(Notices::translation)
        .arrives("setLine2PrefixText(\"translated Key\")")
        .waits("setLine2Text", 9, [](Notices& p) { p->setLine2Text("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine2Text(\"Ada\")")
        .waits("setLine2TextTranslation", 10, [](Notices& p) { p->setLine2Text(test::ownedText()); })
        .record(Notices::translation)
        .arrives("setLine2Text(\"translated Key\")")
        .waits("setLine3Text", 11, [](Notices& p) { p->setLine3Text("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine3Text(\"Ada\")")
        .waits("setLine3TextTranslation", 12, [](Notices& p) { p->setLine3Text(test::ownedText()); })
        .record(Notices::translation)
        .arrives("setLine3Text(\"translated Key\")")
        .waits("setTimeout", 13, [](Notices& p) { p->setTimeout(5000); })
        .record({.int1 = 5000})
        .arrives("setTimeout(5000)")
        .waits("setDismissible", 14, [](Notices& p) { p->setDismissible(true); })
        .record({.bool1 = true})
        .arrives("setDismissible(true)")
        .waits("setType", 15, [](Notices& p) { p->setType(static_cast<PopupNotification::InfoType>(77)); })
        .record({.int1 = 77})
        .arrives("setType(77)")
        .waits("show", 16, [](Notices& p) { p->show(); })
        .arrives("open()")
        .waits("dismiss", 17, [](Notices& p) { p->dismiss(); })
        .arrives("dismiss()")
        .waits("setForwardNotification", 18,
               [](Notices& p) { p->setForwardNotification(p.caller, p.called, static_cast<ForwardedCallType>(77)); })
        .record(parties)
        .arrives("setForwardNotification(\"Ada\", \"Bert\", 77)")
        .completes({-1, 19, 99})
        .check();

} // namespace
