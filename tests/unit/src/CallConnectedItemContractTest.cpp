// What a call's row promises of each of its operations.

#include "DisplayAPI/CallConnectedItem.h"

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/Image.h"
#include "doubles/Answers.h"
#include "support/FacadeContract.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

struct Calls : test::WidgetSubject<CallConnectedItem> {
    static constexpr int DESTROY = 13;

    explicit Calls(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().isSelected = true;
        facade = std::make_unique<CallConnectedItem>(CallConnectedItem::CONNECTED, "Ada", nullptr, false, false);
        if (!hasSide)
            endSide(DESTROY);
        else
            facade->setPartyId("party 7"); // is kept without a side as well: none has been set there
    }

    static std::string arrival(const std::string& call)
    {
        return test::sideName("CallConnectedItemPrivate") + "::" + call;
    }

    static Filling translation(Calls& c) { return {.ptr1 = &c.text}; }

    TranslationInfo text{"Key", nullptr};
    CallPartyIdentifier caller{"Ada", "1"}, called{"Bert", "2"};
    Image* picture = reinterpret_cast<Image*>(&text); // only its address travels
};

/// A record's parties are copies, which whoever carries it out deletes.
Filling details(Calls& c)
{
    return {.text1 = "Urgent",
            .int1 = 77,
            .ptr1 = new CallPartyIdentifier(c.caller),
            .ptr2 = new CallPartyIdentifier(c.called),
            .ptr3 = &c.text};
}

const bool CALL_CONNECTED_ITEM_CHECKED =
    test::Contract<Calls>("CallConnectedItemContractTest")
        .posts("setState", 14, [](Calls& c) { c->setState(static_cast<CallConnectedItem::CallStateIcon>(77)); })
        .record({.int1 = 77})
        .arrives("setState(77)")
        .posts("setText", 15, [](Calls& c) { c->setText("Bert"); })
        .record({.text1 = "Bert"})
        .arrives("setText(\"Bert\")")
        .posts("setTextTranslation", 16, [](Calls& c) { c->setText(&c.text); })
        .record(Calls::translation)
        .arrives([](Calls& c) { return callText("setText", &c.text); })
        .posts("setPictureClip", 17, [](Calls& c) { c->setPictureClip(c.picture); })
        .record([](Calls& c) { return Filling{.ptr1 = c.picture}; })
        .arrives([](Calls& c) { return callText("setPictureClip", static_cast<const void*>(c.picture)); })
        .posts("setSecondLineText", 18, [](Calls& c) { c->setSecondLineText("busy"); })
        .record({.text1 = "busy"})
        .arrives("setSecondLineText(\"busy\")")
        .posts("setSecondLineTextTranslation", 19, [](Calls& c) { c->setSecondLineText(&c.text); })
        .record(Calls::translation)
        .arrives([](Calls& c) { return callText("setSecondLineText", &c.text); })
        .posts("setSecurityState", 20,
               [](Calls& c) { c->setSecurityState(static_cast<CallConnectedItem::CallSecurityState>(77)); })
        .record({.int1 = 77})
        .arrives("setSecurityState(77)")
        .posts("setRecordingState", 21, [](Calls& c) { c->setRecordingState(true); })
        .record({.bool1 = true})
        .arrives("setRecordingState(true)")
        .posts("clearSecondLineText", 22, [](Calls& c) { c->clearSecondLineText(); })
        .arrives("clearSecondLineText()")
        .posts("setThirdLineIconText", 23,
               [](Calls& c) { c->setThirdLineIconText(static_cast<ForwardedCallType>(77), "Bert"); })
        .record({.text1 = "Bert", .int1 = 77})
        .arrives("setThirdLineIconText(77, \"Bert\")")
        .posts("setPartyDetails", 24,
               [](Calls& c) {
                   c->setPartyDetails(c.caller, &c.called, static_cast<ForwardedCallType>(77), "Urgent", &c.text);
               })
        .record(details)
        .arrives([](Calls& c) {
            return callText("setPartyDetails", std::string("Ada"), std::string("Bert"), 77, std::string("Urgent"),
                            &c.text);
        })
        .posts("addGPULine", 25, [](Calls& c) { c->addGPULine("more"); })
        .record({.text1 = "more"})
        .arrives("addGPULine(\"more\")")
        .posts("addGPULineTranslation", 26, [](Calls& c) { c->addGPULine(&c.text); })
        .record(Calls::translation)
        .arrives([](Calls& c) { return callText("addGPULine", &c.text); })
        .posts("removeGPULine", 27, [](Calls& c) { c->removeGPULine(); })
        .arrives("removeGPULine()")
        .posts("setCallId", 28, [](Calls& c) { c->setCallId("7"); })
        .record({.text1 = "7"})
        .arrives("setCallId(\"7\")")
        .posts("setCallIdTranslation", 29, [](Calls& c) { c->setCallId(&c.text); })
        .record(Calls::translation)
        .arrives([](Calls& c) { return callText("setCallId", &c.text); })
        .waits("getCallId", 30, "call 7", "", [](Calls& c) { return c->getCallId(); })
        .arrives("getCallId()")
        .posts("stopDurationTimer", 31, [](Calls& c) { c->stopDurationTimer(); })
        .arrives("stopDurationTimer()")
        .posts("enabled", 32, [](Calls& c) { c->enabled(true); })
        .record({.bool1 = true})
        .arrives("enabled(true)")
        .waits("getEnabled", 33, true, false, [](Calls& c) { return c->getEnabled(); })
        .arrives("getEnabled()")
        .posts("setDisplayHDIconStatus", 34, [](Calls& c) { c->setDisplayHDIconStatus(true); })
        .record({.bool1 = true})
        .arrives("setDisplayHDIconStatus(true)")
        .posts("setPartyId", 35, [](Calls& c) { c->setPartyId("7"); })
        .record({.text1 = "7"})
        .waits("getPartyId", 36, "party 7", "", [](Calls& c) { return c->getPartyId(); })
        .waits("getTextOfTheBaseRow", 6, "", "", [](Calls& c) { return c->getText(); })
        .completes({-1, 3, 5, 9, 37, 99})
        .check();

} // namespace
