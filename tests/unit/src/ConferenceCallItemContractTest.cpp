// What a conference's row promises of each of its operations.

#include "DisplayAPI/ConferenceCallItem.h"

#include "DisplayAPI/ConferenceCallItemPrivateIfc.h"
#include "doubles/Answers.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using doubles::printed;
using test::Filling;

namespace {

struct Conferences : test::WidgetSubject<ConferenceCallItem> {
    static constexpr int DESTROY = 13;

    explicit Conferences(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().call = &member;
        facade = std::make_unique<ConferenceCallItem>(CallConnectedItem::CONFERENCE, "Conference", false);
        if (!hasSide)
            endSide(DESTROY);
    }

    static std::string arrival(const std::string& call)
    {
        return test::sideName("ConferenceCallItemPrivate") + "::" + call;
    }

    static CallConnectedItem* answer(Conferences& c) { return &c.member; }
    static Filling call(Conferences& c) { return {.ptr1 = &c.member}; }

    CallConnectedItem member{static_cast<CallConnectedItemPrivateIfc*>(nullptr)};
    TranslationInfo text{"Key", nullptr};
};

const bool CONFERENCE_CALL_ITEM_CHECKED =
    test::Contract<Conferences>("ConferenceCallItemContractTest")
        .waits("appendCall", 102, [](Conferences& c) { c->appendCall(&c.member, true); })
        .record([](Conferences& c) { return Filling{.bool1 = true, .ptr1 = &c.member}; })
        .arrives([](Conferences& c) { return callText("appendCall", &c.member, true); })
        .waits("removeCall", 103, [](Conferences& c) { c->removeCall(&c.member); })
        .record(Conferences::call)
        .arrives([](Conferences& c) { return callText("removeCall", &c.member); })
        .waits("removeCallByIndex", 104, [](Conferences& c) { c->removeCall(7); })
        .record({.int1 = 7})
        .arrives("removeCall(7)")
        .waits("getTitleMember", 105, Conferences::answer, nullptr, [](Conferences& c) { return c->getTitleMember(); })
        .arrives("getTitleMember()")
        .waits("getSelectedMember", 106, Conferences::answer, nullptr,
               [](Conferences& c) { return c->getSelectedMember(); })
        .arrives("getSelectedMember()")
        .waits("getIndexedMember", 107, Conferences::answer, nullptr,
               [](Conferences& c) { return c->getIndexedMember(7); })
        .record({.int1 = 7})
        .arrives("getIndexedMember(7)")
        .waits("setCallItem", 108, [](Conferences& c) { c->setCallItem(7); })
        .record({.int1 = 7})
        .arrives("setCallItem(7)")
        .waits("setTitleSuffixTranslation", 109, [](Conferences& c) { c->setTitleSuffix(&c.text); })
        .record([](Conferences& c) { return Filling{.ptr1 = &c.text}; })
        .arrives([](Conferences& c) { return callText("setTitleSuffix", std::string(), &c.text); })
        .waits("setTitleSuffix", 110, [](Conferences& c) { c->setTitleSuffix("(3)"); })
        .record({.text1 = "(3)"})
        .arrives([](Conferences&) { return "setTitleSuffix(\"(3)\", " + printed(static_cast<void*>(nullptr)) + ")"; })
        .posts("setStateOfACall", 14, [](Conferences& c) { c->setState(CallConnectedItem::HELD); })
        .record({.int1 = 6})
        .arrives("setState(6)")
        .waits("getPartyIdOfACall", 36, "", "", [](Conferences& c) { return c->getPartyId(); })
        .waits("getTextOfTheBaseRow", 6, "", "", [](Conferences& c) { return c->getText(); })
        .completes({-1, 9, 99, 111})
        .check();

} // namespace
