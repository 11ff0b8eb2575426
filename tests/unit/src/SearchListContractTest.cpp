// What a search list promises of each of its operations.

#include "DisplayAPI/SearchList.h"

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "doubles/Answers.h"
#include "support/FacadeContract.h"
#include "unit/src/LiveRow.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;
using test::LiveRow;

namespace {

constexpr int CLEAN_UP = 1;
constexpr int SIZE = 9;

/// A search list of two rows, the second one selected, and a row that does not stand in it.
struct SearchLists : test::WidgetSubject<SearchList> {
    explicit SearchLists(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().size = SIZE;
        doubles::Answers::instance().selectedIndex = 1;
        facade = std::make_unique<SearchList>();
        if (!hasSide) {
            endSide(CLEAN_UP);
            return;
        }
        facade->append(first);
        facade->append(last);
    }

    ~SearchLists()
    {
        for (const ListItem* row : {first, last, other})
            if (LiveRow::isAlive(row))
                delete row;
    }

    static std::string arrival(const std::string& call) { return test::sideName("SearchListBoxPrivate") + "::" + call; }

    ListItem* first = new LiveRow("first");
    ListItem* last = new LiveRow("last");
    ListItem* other = new LiveRow("other");
    TranslationInfo text{"key", nullptr};
};

const void* sideOf(ListItem* row)
{
    return row->getPrivateImplemetation();
}

std::string appendsTheLastRow(SearchLists& s)
{
    return callText("append", sideOf(s->getItems().back()));
}

const bool SEARCH_LIST_CHECKED =
    test::Contract<SearchLists>("SearchListContractTest")
        .posts("appendText", 2, [](SearchLists& s) { s->append("new"); })
        .record({.text1 = "new"})
        .arrives(appendsTheLastRow)
        .posts("appendTranslation", 3, [](SearchLists& s) { s->append(&s.text); })
        .record([](SearchLists& s) { return Filling{.ptr1 = &s.text}; })
        .arrives(appendsTheLastRow)
        .posts("appendRow", 4, [](SearchLists& s) { s->append(s.other); })
        .record([](SearchLists& s) { return Filling{.ptr1 = s.other}; })
        .arrives([](SearchLists& s) { return callText("append", sideOf(s.other)); })
        .posts("clear", 5, [](SearchLists& s) { s->clear(); })
        .arrives("clear()")
        .waits(
            "getSelected", 6, [](SearchLists& s) { return s.last; }, nullptr,
            [](SearchLists& s) { return s->getSelected(); })
        .arrives("getSelectedIndex()")
        .waits("getSelectedIndex", 7, 1, -1, [](SearchLists& s) { return s->getSelectedIndex(); })
        .arrives("getSelectedIndex()")
        .posts("setSelectedIndex", 8, [](SearchLists& s) { s->setSelectedIndex(3); })
        .record({.int1 = 3})
        .arrives("setSelectedIndex(3)")
        .posts("insertAt", 9, [](SearchLists& s) { s->insertAt(s.other, 1); })
        .record([](SearchLists& s) { return Filling{.int1 = 1, .ptr1 = s.other}; })
        .arrives([](SearchLists& s) { return callText("insertAt", sideOf(s.other), 1); })
        .waits(
            "removeAt", 10, [](SearchLists& s) { return s.last; }, nullptr,
            [](SearchLists& s) { return s->removeAt(1); })
        .record({.int1 = 1})
        .arrives([](SearchLists& s) { return callText("removeAt", 1, sideOf(s.last)); })
        .posts("remove", 11, [](SearchLists& s) { s->remove(s.first); })
        .record([](SearchLists& s) { return Filling{.ptr1 = s.first}; })
        .arrives([](SearchLists& s) { return callText("remove", sideOf(s.first)); })
        .waits("size", 12, SIZE, -1, [](SearchLists& s) { return s->size(); })
        .arrives("size()")
        .waits("getSearchText", 13, std::string("Zoë"), std::string(),
               [](SearchLists& s) { return s->getSearchText(); })
        .arrives("getSearchText()")
        .posts("setTitle", 14, [](SearchLists& s) { s->setTitle("Contacts"); })
        .record({.text1 = "Contacts"})
        .arrives("setTitle(\"Contacts\")")
        .posts("setTranslatedTitle", 15, [](SearchLists& s) { s->setTitle(&s.text); })
        .record([](SearchLists& s) { return Filling{.ptr1 = &s.text}; })
        .arrives([](SearchLists& s) { return callText("setTitle", &s.text); })
        .posts("showSearchPopup", 16, [](SearchLists& s) { s->showSearchPopup(); })
        .arrives("showSearchPopup()")
        .posts("setSearchText", 17, [](SearchLists& s) { s->setSearchText("Ång"); })
        .record({.text1 = "Ång"})
        .arrives("setSearchText(\"Ång\")")
        .posts("setCountIndicator", 18, [](SearchLists& s) { s->setCountIndicator(10000); })
        .record({.int1 = 10000})
        .arrives("setCountIndicator(10000)")
        .posts("setSearchCountIndicator", 19, [](SearchLists& s) { s->setSearchCountIndicator(-1); })
        .record({.int1 = -1})
        .arrives("setSearchCountIndicator(-1)")
        .posts("dismissSearchPopup", 20, [](SearchLists& s) { s->dismissSearchPopup(); })
        .arrives("dismissSearchPopup()")
        .waits("isSearchPopupVisible", 21, true, false, [](SearchLists& s) { return s->isSearchPopupVisible(); })
        .arrives("isSearchPopupVisible()")
        .completes({-1, 22, 23, 31, 99})
        .check();

} // namespace
