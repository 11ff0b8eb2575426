// What a tab screen promises of each of its operations.

#include "DisplayAPI/TabScreen.h"

#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "doubles/Screen.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int CLEANUP = 1, CURRENT = 1;

/// Two tabs, of which the second is the current one.
struct Tabs : test::WidgetSubject<TabScreen> {
    explicit Tabs(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().size = 2;
        doubles::Answers::instance().selectedIndex = CURRENT;
        facade = std::make_unique<TabScreen>(TabScreen::CALLS, true);
        facade->addTab("All", &all, false);
        facade->addTab("Missed", &missed, true);
        if (!hasSide)
            endSide(CLEANUP);
    }

    static std::string arrival(const std::string& call) { return test::sideName("TabScreenPrivate") + "::" + call; }

    doubles::Screen all{"all"}, missed{"missed"}, dialled{"dialled"};
    Displayable* page = &dialled;
    TranslationInfo title{"Calls.Dialled", nullptr};
    testing::NiceMock<doubles::MockCommandListener> mock;
    CommandListener* listener = &mock;
};

const DisplayablePrivateIfc* side(doubles::Screen& screen)
{
    return screen.getPrivateImpl();
}

const std::string TITLE = "Dialled";

const bool TAB_SCREEN_CHECKED =
    test::Contract<Tabs>("TabScreenContractTest")
        .waits("cleanup", CLEANUP, [](Tabs& t) { t->cleanup(); })
        .posts("addTab", 2, [](Tabs& t) { t->addTab(TITLE, t.page, true); })
        .record([](Tabs& t) { return Filling{.text1 = TITLE, .bool1 = true, .ptr1 = t.page}; })
        .arrives([](Tabs& t) { return callText("addTab", TITLE, side(t.dialled), true); })
        .posts("addTranslatedTab", 3, [](Tabs& t) { t->addTab(&t.title, t.page, false); })
        .record([](Tabs& t) { return Filling{.ptr1 = &t.title, .ptr2 = t.page}; })
        .arrives([](Tabs& t) { return callText("addTab", &t.title, side(t.dialled), false); })
        .waits("numberOfTabs", 4, 2, 0, [](Tabs& t) { return t->numberOfTabs(); })
        .arrives("numberOfTabs()")
        .waits(
            "currentTab", 5, [](Tabs& t) { return &t.missed; }, nullptr, [](Tabs& t) { return t->currentTab(); })
        .arrives("getCurrentTabIndex()")
        .posts("setCurrentDisplayable", 6, [](Tabs& t) { t->setCurrentDisplayable(t.page); })
        .record([](Tabs& t) { return Filling{.ptr1 = t.page}; })
        .arrives([](Tabs& t) {
            return std::vector{callText("setCurrentDisplayable", side(t.dialled)), std::string("getCurrentTabIndex()")};
        })
        .posts("setCurrentDisplayableForTabAtIndex", 7,
               [](Tabs& t) { t->setCurrentDisplayableForTabAtIndex(0, t.page); })
        .record([](Tabs& t) { return Filling{.int1 = 0, .ptr1 = t.page}; })
        .arrives([](Tabs& t) { return callText("setCurrentDisplayableForTabAtIndex", 0, side(t.dialled)); })
        .posts("removeTab", 8, [](Tabs& t) { t->removeTab(&t.missed); })
        .record([](Tabs& t) { return Filling{.ptr1 = static_cast<Displayable*>(&t.missed)}; })
        .arrives([](Tabs& t) { return callText("removeTab", side(t.missed)); })
        .posts("removeTabAtIndex", 9, [](Tabs& t) { t->removeTabAtIndex(1); })
        .record({.int1 = 1})
        .arrives("removeTabAtIndex(1)")
        .posts("nextTab", 10, [](Tabs& t) { t->nextTab(); })
        .arrives("nextTab()")
        .waits("getCurrentTabIndex", 11, CURRENT, -1, [](Tabs& t) { return t->getCurrentTabIndex(); })
        .arrives("getCurrentTabIndex()")
        .posts("setCurrentTabIndex", 12, [](Tabs& t) { t->setCurrentTabIndex(1); })
        .record({.int1 = 1})
        .arrives("setCurrentTabIndex(1)")
        .posts("setTitleForTabAtIndex", 13, [](Tabs& t) { t->setTitleForTabAtIndex(1, TITLE); })
        .record({.text1 = TITLE, .int1 = 1})
        .arrives([](Tabs&) { return callText("setTitleForTabAtIndex", 1, TITLE); })
        .posts("setTranslatedTitleForTabAtIndex", 14, [](Tabs& t) { t->setTitleForTabAtIndex(1, &t.title); })
        .record([](Tabs& t) { return Filling{.int1 = 1, .ptr1 = &t.title}; })
        .arrives([](Tabs& t) { return callText("setTitleForTabAtIndex", 1, &t.title); })
        .waits("getTitleForTabAtIndex", 15, "title", "", [](Tabs& t) { return t->getTitleForTabAtIndex(1); })
        .record({.int1 = 1})
        .arrives("getTitleForTabAtIndex(1)")
        .waits(
            "getDisplayableForTabAtIndex", 16, [](Tabs& t) { return &t.missed; }, nullptr,
            [](Tabs& t) { return t->getDisplayableForTabAtIndex(1); })
        .record({.int1 = 1})
        .waits("getIndexForTab", 17, 1, -1, [](Tabs& t) { return t->getIndexForTab(&t.missed); })
        .record([](Tabs& t) { return Filling{.ptr1 = static_cast<Displayable*>(&t.missed)}; })
        .posts("addCommandListener", 18, [](Tabs& t) { t->addCommandListener(t.listener); })
        .record([](Tabs& t) { return Filling{.ptr1 = t.listener}; })
        .arrives([](Tabs& t) { return callText("addCommandListener", t.listener); })
        .waits("removeCommandListener", 19, [](Tabs& t) { t->removeCommandListener(t.listener); })
        .record([](Tabs& t) { return Filling{.ptr1 = t.listener}; })
        .arrives([](Tabs& t) { return callText("removeCommandListener", t.listener); })
        .completes({-1, 20, 99})
        .check();

} // namespace
