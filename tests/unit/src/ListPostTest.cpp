// What a list posts from a thread that is not the GUI thread when it is made and deleted.

#include "DisplayAPI/List.h"
#include "unit/src/Posted.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "doubles/Answers.h"
#include "utilities/TranslationInfo.h"

#include <gmock/gmock.h>

using namespace DisplayAPI;
using test::Posted;

namespace {

constexpr bool WAITS = true;
constexpr bool RETURNS = false;

class ListPostTest : public test::SteppedTest {
protected:
    ListPostTest() { doubles::Answers::instance().reset(); }
};

} // namespace

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

TEST_F(ListPostTest, OperationsWithoutEffectPostNothing)
{
    List list(0);
    TranslationInfo text("key", nullptr);
    const auto callAll = [&] {
        list.align();
        list.align(list);
        list.unalign();
        list.appendItems(std::string("x"));
        list.appendItems(&text);
        list.setUsedWithTab(true, nullptr);
        list.setWrapAround(true);
        list.setEnabled(false);
        list.suppressAutoRightArrowForSoftKeys();
    };
    EXPECT_EQ(test::postedBy(gui, callAll), (Posted{{}, RETURNS}));
}
