// What a tree list promises of each of its operations.

#include "DisplayAPI/ExpandingTreeList.h"

#include "DisplayAPI/ExpandingTreeListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

#include <set>

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int CLEANUP = 1;

/// A tree list of a row, and another row that belongs to nobody.
struct TreeLists : test::WidgetSubject<ExpandingTreeList> {
    explicit TreeLists(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().selectedIndex = 0;
        facade = std::make_unique<ExpandingTreeList>(true);
        if (hasSide)
            facade->append(first);
        else
            endSide(CLEANUP);
    }

    /// The list deletes what it has been given; it may be gone by now.
    ~TreeLists()
    {
        if (!isEnded)
            end();
        for (ExpandingTreeListItem* row : {first, other})
            if (alive().contains(row))
                delete row;
    }

    static std::string arrival(const std::string& call)
    {
        return test::sideName("ExpandingTreeListPrivate") + "::" + call;
    }

    /// A row of which one can ask whether it has been deleted.
    struct Row : ExpandingTreeListItem {
        explicit Row(const char* text) : ExpandingTreeListItem(text, 2) { alive().insert(this); }
        ~Row() override { alive().erase(this); }
    };

    static std::set<const ExpandingTreeListItem*>& alive()
    {
        static std::set<const ExpandingTreeListItem*> rows;
        return rows;
    }

    CommandListener* heard() { return &listener; }

    ExpandingTreeListItem* first = new Row("Network");
    ExpandingTreeListItem* other = new Row("Telephone");
    testing::NiceMock<doubles::MockCommandListener> listener;
    TranslationInfo text{"Settings", nullptr};
};

const bool EXPANDING_TREE_LIST_CHECKED =
    test::Contract<TreeLists>("ExpandingTreeListContractTest")
        .waits("cleanup", CLEANUP, [](TreeLists& t) { t->cleanup(); })
        .posts("append", 2, [](TreeLists& t) { t->append(t.other); })
        .record([](TreeLists& t) { return Filling{.ptr1 = t.other}; })
        .arrives([](TreeLists& t) {
            return callText("append", static_cast<const void*>(t.other->getPrivateImplemetation()), 2);
        })
        .waits(
            "getSelected", 3, [](TreeLists& t) { return t.first; }, nullptr,
            [](TreeLists& t) { return t->getSelected(); })
        .arrives("getSelectedIndex()")
        .posts("setTitle", 4, [](TreeLists& t) { t->setTitle("Settings"); })
        .record({.text1 = "Settings"})
        .arrives("setTitle(\"Settings\")")
        .posts("setTranslatedTitle", 5, [](TreeLists& t) { t->setTitle(&t.text); })
        .record([](TreeLists& t) { return Filling{.ptr1 = &t.text}; })
        .arrives([](TreeLists& t) { return callText("setTitle", &t.text); })
        .posts("clear", 6, [](TreeLists& t) { t->clear(); })
        .arrives("clear()")
        .waits("getSelectedIndex", 7, 0, -1, [](TreeLists& t) { return t->getSelectedIndex(); })
        .arrives("getSelectedIndex()")
        .posts("align", 8, [](TreeLists& t) { t->align(); })
        .arrives("align()")
        .posts("unalign", 9, [](TreeLists& t) { t->unalign(); })
        .arrives("unalign()")
        .posts("setReadonly", 10, [](TreeLists& t) { t->setReadonly(3, true); })
        .record({.int1 = 3, .bool1 = true})
        .arrives("setReadonly(3, true)")
        .posts("setRightArrowEqualsOK", 11, [](TreeLists& t) { t->setRightArrowEqualsOK(true); })
        .record({.bool1 = true})
        .arrives("setRightArrowEqualsOK(true)")
        .waits(
            "getExpandingItemsList", 12, [](TreeLists& t) { return std::vector{t.first}; }, {},
            [](TreeLists& t) { return t->getExpandingItemsList(); })
        .waits("addCommandListener", 13, [](TreeLists& t) { t->addCommandListener(&t.listener); })
        .record([](TreeLists& t) { return Filling{.ptr1 = t.heard()}; })
        .arrives([](TreeLists& t) { return callText("addCommandListener", t.heard()); })
        .waits("removeCommandListener", 14, [](TreeLists& t) { t->removeCommandListener(&t.listener); })
        .record([](TreeLists& t) { return Filling{.ptr1 = t.heard()}; })
        .arrives([](TreeLists& t) { return callText("removeCommandListener", t.heard()); })
        .completes({-1, 15, 99})
        .check();

} // namespace
