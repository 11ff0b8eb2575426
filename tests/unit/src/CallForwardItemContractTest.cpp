// What a forwarding's row promises of each of its operations. Its codes begin with those of the list item.

#include "DisplayAPI/CallForwardItem.h"

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "doubles/Answers.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::Filling;

namespace {

/// Its code 2 makes a row: a private side goes by another one.
struct Forwardings : test::WidgetSubject<CallForwardItem> {
    explicit Forwardings(bool hasSide) : name(test::sideName("CallForwardItemPrivate"))
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().isSelected = true;
        doubles::Answers::instance().icon = CallLogMainItem::ICON_FORWARDING_BUSY;
        facade = std::make_unique<CallForwardItem>(CallLogMainItem::ICON_FORWARDING_BUSY, "Busy", true, false);
        if (!hasSide)
            endSide(17);
    }

    std::string arrival(const std::string& call) const { return name + "::" + call; }

    const std::string name;
    TranslationInfo text{"Text", nullptr}, label{"Label", nullptr};
};

constexpr auto LINE = static_cast<CallForwardItem::eCallForwardBranchLine>(-77);

const bool CALL_FORWARD_ITEM_CHECKED =
    test::Contract<Forwardings>("CallForwardItemContractTest")
        .posts("localeChanged", 3, [](Forwardings& f) { f->localeChanged("de"); })
        .record({.text1 = "de"})
        .arrives("localeChanged(\"de\")")
        .posts("check", 4, [](Forwardings& f) { f->check(); })
        .arrives("check()")
        .posts("uncheck", 5, [](Forwardings& f) { f->uncheck(); })
        .arrives("uncheck()")
        .waits("getText", 6, "main text", "", [](Forwardings& f) { return f->getText(); })
        .arrives("getText()")
        .posts("swapCheck", 7, [](Forwardings& f) { f->swapCheck(); })
        .arrives("swapCheck()")
        .waits("getCheck", 8, true, false, [](Forwardings& f) { return f->getCheck(); })
        .arrives("getCheck()")
        .posts("setTextMain", 9, [](Forwardings& f) { f->setTextMain("4711"); })
        .record({.text1 = "4711"})
        .arrives("setTextMain(\"4711\")")
        .posts("setTextMainTranslation", 10, [](Forwardings& f) { f->setTextMain(&f.text); })
        .record([](Forwardings& f) { return Filling{.ptr1 = &f.text}; })
        .arrives("setTextMain(\"translated Text\")")
        .posts("setTextBranch", 11, [](Forwardings& f) { f->setTextBranch("4711", &f.label, LINE); })
        .record([](Forwardings& f) { return Filling{.text1 = "4711", .int1 = -77, .ptr1 = &f.label}; })
        .arrives("setTextBranch(\"4711\", \"translated Label\", -77)")
        .posts("setTextBranchTranslation", 12, [](Forwardings& f) { f->setTextBranch(&f.text, &f.label, LINE); })
        .record([](Forwardings& f) { return Filling{.int1 = -77, .ptr1 = &f.text, .ptr2 = &f.label}; })
        .arrives("setTextBranch(\"translated Text\", \"translated Label\", -77)")
        .posts("setReadonly", 13, [](Forwardings& f) { f->setReadonly(true, false); })
        .record({.bool1 = true})
        .arrives("setReadonly(true, false)")
        .posts("setCFIconVisible", 14, [](Forwardings& f) { f->setCFIconVisible(true); })
        .record({.bool1 = true})
        .arrives("setCFIconVisible(true)")
        .posts("cleanBranches", 15, [](Forwardings& f) { f->cleanBranches(); })
        .arrives("cleanBranches()")
        .waits("iconType", 16, CallLogMainItem::ICON_FORWARDING_BUSY, CallLogMainItem::NO_ICON,
               [](Forwardings& f) { return f->iconType(); })
        .arrives("iconType()")
        .completes({-1, 18, 100})
        .check();

} // namespace
