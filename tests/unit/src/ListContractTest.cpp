// What a list promises of each of its operations.

#include "DisplayAPI/List.h"

#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/Ticker.h"
#include "DisplayAPI/TickerPrivateIfc.h"
#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "unit/src/LiveRow.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;
using test::LiveRow;

namespace {

constexpr int SIZE = 9;

/// A list of two rows, one of them selected, and a row that does not stand in it.
struct Lists : test::WidgetSubject<List> {
    explicit Lists(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().size = SIZE;
        doubles::Answers::instance().selectedIndex = 1;
        facade = hasSide ? std::make_unique<List>(0) : std::make_unique<List>(nullptr);
        if (!hasSide)
            return;
        facade->append(first);
        facade->append(last);
    }

    ~Lists()
    {
        for (const ListItem* row : {first, last, other})
            if (LiveRow::isAlive(row))
                delete row;
    }

    std::string arrival(const std::string& call) const { return boxName() + "::" + call; }
    static std::string boxName() { return test::sideName("ListBoxPrivate"); }

    ListItem* first = new LiveRow("first");
    ListItem* last = new LiveRow("last");
    ListItem* other = new LiveRow("other");
    TranslationInfo text{"key", nullptr};
    testing::NiceMock<doubles::MockCommandListener> mock;
    CommandListener* listener = &mock;
    PopupDialer* dialer = reinterpret_cast<PopupDialer*>(0x2000);
    Ticker ticker{"News"};
};

const void* side(ListItem* row)
{
    return row->getPrivateImplemetation();
}

using Calls = std::vector<std::string>;

std::string appendsTheLast(Lists& l)
{
    return callText("append", side(l->getItems().back()));
}

const bool LIST_CHECKED =
    test::Contract<Lists>("ListContractTest")
        .posts("appendText", 5, [](Lists& l) { l->append("new"); })
        .record({.text1 = "new"})
        .arrives(appendsTheLast)
        .posts("appendTranslation", 6, [](Lists& l) { l->append(&l.text); })
        .record([](Lists& l) { return Filling{.ptr1 = &l.text}; })
        .arrives(appendsTheLast)
        .posts("appendRow", 7, [](Lists& l) { l->append(l.other); })
        .record([](Lists& l) { return Filling{.ptr1 = l.other}; })
        .arrives([](Lists& l) { return callText("append", side(l.other)); })
        .posts("clear", 8, [](Lists& l) { l->clear(); })
        .arrives("clear()")
        .waits(
            "getSelected", 9, [](Lists& l) { return l.last; }, nullptr, [](Lists& l) { return l->getSelected(); })
        .arrives("getSelectedIndex()")
        .posts("setSelected", 10, [](Lists& l) { l->setSelected(l.last); })
        .record([](Lists& l) { return Filling{.ptr1 = l.last}; })
        .arrives([](Lists& l) { return callText("setSelected", side(l.last)); })
        .waits("getSelectedIndex", 11, 1, -1, [](Lists& l) { return l->getSelectedIndex(); })
        .arrives("getSelectedIndex()")
        .posts("setSelectedIndex", 12, [](Lists& l) { l->setSelectedIndex(3); })
        .record({.int1 = 3})
        .arrives("setSelectedIndex(3)")
        .posts("insertAt", 13, [](Lists& l) { l->insertAt(l.other, 1); })
        .record([](Lists& l) { return Filling{.int1 = 1, .ptr1 = l.other}; })
        .arrives([](Lists& l) { return callText("insertAt", side(l.other), 1); })
        .waits(
            "removeAt", 14, [](Lists& l) { return l.last; }, nullptr, [](Lists& l) { return l->removeAt(1); })
        .record({.int1 = 1})
        .arrives([](Lists& l) { return callText("removeAt", 1, side(l.last)); })
        .posts("remove", 15, [](Lists& l) { l->remove(l.first); })
        .record([](Lists& l) { return Filling{.ptr1 = l.first}; })
        .arrives([](Lists& l) { return callText("remove", side(l.first)); })
        .posts("removeAll", 16, [](Lists& l) { l->removeAll(); })
        .arrives([](Lists& l) {
            return Calls{callText("remove", side(l.first)), callText("remove", side(l.last))};
        })
        .posts("replace", 17, [](Lists& l) { l->replace(l.first, l.other); })
        .record([](Lists& l) { return Filling{.ptr1 = l.first, .ptr2 = l.other}; })
        .arrives([](Lists& l) {
            return Calls{callText("remove", side(l.first)), callText("insertAt", side(l.other), 0)};
        })
        .waits("size", 18, SIZE, -1, [](Lists& l) { return l->size(); })
        .arrives("size()")
        .posts("hide", 19, [](Lists& l) { l->hide(); })
        .arrives("hide()")
        .posts("setTicker", 20, [](Lists& l) { l->setTicker(&l.ticker); })
        .record([](Lists& l) { return Filling{.ptr1 = &l.ticker}; })
        .arrives([](Lists& l) { return callText("setTicker", l.ticker.getPrivateImpl()); })
        .waits("getTicker", 21, [](Lists& l) { l->getTicker(); })
        .readsAfterwards()
        .posts("setTitle", 22, [](Lists& l) { l->setTitle("Menu"); })
        .record({.text1 = "Menu"})
        .arrives("setTitle(\"Menu\")")
        .posts("setTranslatedTitle", 23, [](Lists& l) { l->setTitle(&l.text); })
        .record([](Lists& l) { return Filling{.ptr1 = &l.text}; })
        .arrives([](Lists& l) { return callText("setTitle", &l.text); })
        .posts("setSystemWindowSize", 24, [](Lists& l) { l->setSystemWindowSize(2); })
        .record({.int1 = 2})
        .arrives("setSystemWindowSize(2)")
        .posts("setSystemWindowText", 25, [](Lists& l) { l->setSystemWindowText(1, "busy"); })
        .record({.text1 = "busy", .int1 = 1})
        .arrives("setSystemWindowText(1, \"busy\")")
        .posts("removeCommandListener", 26, [](Lists& l) { l->removeCommandListener(l.listener); })
        .record([](Lists& l) { return Filling{.ptr1 = l.listener}; })
        .arrives([](Lists& l) { return callText("removeCommandListener", l.listener); })
        .posts("addCommandListener", 27, [](Lists& l) { l->addCommandListener(l.listener); })
        .record([](Lists& l) { return Filling{.ptr1 = l.listener}; })
        .arrives([](Lists& l) { return callText("addCommandListener", l.listener); })
        .posts("showDiallerOnInitialKeyEvent", 28, [](Lists& l) { l->showDiallerOnInitialKeyEvent(true); })
        .record({.bool1 = true})
        .arrives("showDiallerOnInitialKeyEvent(true)")
        .posts("addDialer", 29, [](Lists& l) { l->addDialer(l.dialer); })
        .record([](Lists& l) { return Filling{.ptr1 = l.dialer}; })
        .arrives([](Lists& l) { return callText("setDialler", static_cast<const void*>(l.dialer)); })
        .waits("getDialer", 30, [](Lists& l) { l->getDialer(); })
        .readsAfterwards()
        .waits("getItems", 31, [](Lists& l) { l->getItems(); })
        .readsAfterwards()
        .posts("setSelectionHighlight", 32, [](Lists& l) { l->setSelectionHighlight(true); })
        .record({.bool1 = true})
        .arrives("setSelectionHighlight(true)")
        .completes({-1, 2, 3, 4, 33, 99})
        .check();

} // namespace
