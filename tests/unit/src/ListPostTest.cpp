// Which codes a list posts from a thread that is not the GUI thread, and what it waits for.

#include "unit/src/LiveRow.h"
#include "unit/src/Posted.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "utilities/TranslationInfo.h"

#include <gmock/gmock.h>

using namespace DisplayAPI;
using test::Posted;

namespace {

constexpr bool WAITS = true;
constexpr bool RETURNS = false;

struct Arguments {
    TranslationInfo text{"key", nullptr};
    testing::NiceMock<doubles::MockCommandListener> listener;
    ListItem* row = new test::LiveRow;
    ListItem* other = new test::LiveRow;
};

struct Operation {
    const char* name;
    Posted posts;
    std::function<void(List&, Arguments&)> call;
};

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

const Operation OPERATIONS[] = {
    {"appendText", {{5}, RETURNS}, [](List& l, Arguments&) { l.append(std::string("x")); }},
    {"appendTranslated", {{6}, RETURNS}, [](List& l, Arguments& a) { l.append(&a.text); }},
    {"append", {{7}, RETURNS}, [](List& l, Arguments& a) { l.append(a.other); }},
    {"clear", {{8}, RETURNS}, [](List& l, Arguments&) { l.clear(); }},
    {"getSelected", {{9}, WAITS}, [](List& l, Arguments&) { l.getSelected(); }},
    {"setSelected", {{10}, RETURNS}, [](List& l, Arguments& a) { l.setSelected(a.row); }},
    {"getSelectedIndex", {{11}, WAITS}, [](List& l, Arguments&) { l.getSelectedIndex(); }},
    {"setSelectedIndex", {{12}, RETURNS}, [](List& l, Arguments&) { l.setSelectedIndex(0); }},
    {"insertAt", {{13}, RETURNS}, [](List& l, Arguments& a) { l.insertAt(a.other, 0); }},
    {"removeAt", {{14}, WAITS}, [](List& l, Arguments&) { l.removeAt(0); }},
    {"remove", {{15}, RETURNS}, [](List& l, Arguments& a) { l.remove(a.row); }},
    {"removeAll", {{16}, RETURNS}, [](List& l, Arguments&) { l.removeAll(); }},
    {"replace", {{17}, RETURNS}, [](List& l, Arguments& a) { l.replace(a.row, a.other); }},
    {"size", {{18}, WAITS}, [](List& l, Arguments&) { l.size(); }},
    {"hide", {{19}, RETURNS}, [](List& l, Arguments&) { l.hide(); }},
    {"setTicker", {{20}, RETURNS}, [](List& l, Arguments&) { l.setTicker(nullptr); }},
    {"getTicker", {{21}, WAITS}, [](List& l, Arguments&) { l.getTicker(); }},
    {"setTitle", {{22}, RETURNS}, [](List& l, Arguments&) { l.setTitle(std::string("t")); }},
    {"setTitleTranslated", {{23}, RETURNS}, [](List& l, Arguments& a) { l.setTitle(&a.text); }},
    {"setSystemWindowSize", {{24}, RETURNS}, [](List& l, Arguments&) { l.setSystemWindowSize(1); }},
    {"setSystemWindowText", {{25}, RETURNS}, [](List& l, Arguments&) { l.setSystemWindowText(0, "s"); }},
    {"removeCommandListener", {{26}, RETURNS}, [](List& l, Arguments& a) { l.removeCommandListener(&a.listener); }},
    {"addCommandListener", {{27}, RETURNS}, [](List& l, Arguments& a) { l.addCommandListener(&a.listener); }},
    {"showDialler", {{28}, RETURNS}, [](List& l, Arguments&) { l.showDiallerOnInitialKeyEvent(true); }},
    {"addDialer", {{29}, RETURNS}, [](List& l, Arguments&) { l.addDialer(nullptr); }},
    {"getDialer", {{30}, WAITS}, [](List& l, Arguments&) { l.getDialer(); }},
    {"getItems", {{31}, WAITS}, [](List& l, Arguments&) { l.getItems(); }},
    {"setSelectionHighlight", {{32}, RETURNS}, [](List& l, Arguments&) { l.setSelectionHighlight(true); }},
    {"operationsWithoutEffect",
     {{}, RETURNS},
     [](List& l, Arguments& a) {
         l.align();
         l.align(l);
         l.unalign();
         l.appendItems(std::string("x"));
         l.appendItems(&a.text);
         l.setUsedWithTab(true, nullptr);
         l.setWrapAround(true);
         l.setEnabled(false);
         l.suppressAutoRightArrowForSoftKeys();
         l.localeChanged("de");
     }},
};

class ListPostTest : public test::SteppedTest {
protected:
    ListPostTest() { doubles::Answers::instance().reset(); }
};

class ListOperationPostTest : public ListPostTest, public testing::WithParamInterface<Operation> {};

std::string operationName(const testing::TestParamInfo<Operation>& test)
{
    return test.param.name;
}

} // namespace

TEST_P(ListOperationPostTest, PostsItsCodeAndWaitsOnlyForAnAnswer)
{
    Arguments arguments;
    List list(0);
    list.append(arguments.row);
    EXPECT_EQ(test::postedBy(gui, [&] { GetParam().call(list, arguments); }), GetParam().posts);
    test::LiveRow::deleteUnlessIn(list, arguments.row);
    test::LiveRow::deleteUnlessIn(list, arguments.other);
}

INSTANTIATE_TEST_SUITE_P(Operations, ListOperationPostTest, testing::ValuesIn(OPERATIONS), operationName);

TEST_F(ListPostTest, ConstructorPostsCreateAndReturns)
{
    List* list = nullptr;
    EXPECT_EQ(test::postedBy(gui, [&] { list = new List(0); }), (Posted{{0}, RETURNS}));
    EXPECT_NE(list->getPrivateImpl(), nullptr);
    delete list;
}

TEST_F(ListPostTest, DestructorPostsCleanUpAndWaits)
{
    auto* const list = new List(0);
    EXPECT_EQ(test::postedBy(gui, [&] { delete list; }), (Posted{{1}, WAITS}));
}

TEST_F(ListPostTest, AdoptingAnImplementationPostsNothing)
{
    List* list = nullptr;
    EXPECT_EQ(test::postedBy(gui, [&] { list = new List(nullptr); }), (Posted{{}, RETURNS}));
    delete list;
}

TEST_F(ListPostTest, CreateCarriesTheBackFlag)
{
    for (const int type : {0, 2}) {
        test::Worker worker([&] {
            List list(type);
            list.size();
        });
        gui.waitForQueued(2);
        const auto* create = static_cast<const GuiRequestEvent*>(gui.messages().front().pData);
        EXPECT_EQ(create->boolParam1, type == 2);
        while (!worker.hasReturned())
            gui.step();
    }
}

TEST_F(ListPostTest, WithoutAFilterARowIsMadeAndAppendedOnTheCallingThread)
{
    List list(0);
    gui.removeFilter();
    TranslationInfo text("key", nullptr);
    test::onOtherThread([&] {
        list.append(std::string("text"));
        list.append(&text);
        EXPECT_EQ(list.getItems().size(), 2u);
        list.clear();
        EXPECT_EQ(list.getItems().size(), 0u);
    });
    EXPECT_EQ(gui.queued(), 0);
}
