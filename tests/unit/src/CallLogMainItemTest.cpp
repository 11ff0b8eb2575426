#include "DisplayAPI/CallLogMainItem.h"

#include "unit/src/LogRowFacadeTest.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using test::Posted;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using CallLogMainItemTest = test::LogRowFacadeTest<CallLogMainItem>;

TEST_P(CallLogMainItemTest, EachPanelHasItsOwnSide)
{
    EXPECT_THAT(made(1, &ada, "10:41", 77, true, false),
                ElementsAre("CallLogMainItemPrivate(\"Ada 4711\", \"10:41\", 77, true, false)"));
    for (const int variant : {0, 2})
        EXPECT_THAT(made(variant, &ada, "10:41", -1, false, true),
                    ElementsAre("CallLogMainItemPrivateWP1(\"Ada 4711\", \"10:41\", -1, false, true)"));
}

TEST_P(CallLogMainItemTest, WithoutAPartyItIsMadeOfNobody)
{
    EXPECT_THAT(made(1, nullptr, "", 0, false, false),
                ElementsAre("CallLogMainItemPrivate(\"nobody\", \"\", 0, false, false)"));
}

TEST_P(CallLogMainItemTest, ListShowsTheSameSide)
{
    made(1, &ada, "", 0, false, false);
    EXPECT_NE(row->getPrivateImpl(), nullptr);
    EXPECT_EQ(row->getPrivateImpl(), row->getPrivateImplemetation());
    run([&] { EXPECT_EQ(row->getText(), "Ada"); });
}

TEST_P(CallLogMainItemTest, CodeTenDeletesAnyFormerSideBeforeItMakesOne)
{
    made(1, &ada, "10:41", 1, true, false);
    const auto fill = [&](GuiRequestEvent& record) {
        record.ptrParam1 = new CallPartyIdentifier(bert);
        record.stringParam1 = "10:42";
        record.intParam1 = 2;
        record.boolParam2 = true;
    };
    const std::string making = "CallLogMainItemPrivate(\"Bert 4712\", \"10:42\", 2, false, true)";
    EXPECT_THAT(carriedOut(10, fill), ElementsAre("~CallLogMainItemPrivate()", making));
    EXPECT_THAT(carriedOut(2), ElementsAre("~CallLogMainItemPrivate()"));
    EXPECT_EQ(row->getPrivateImpl(), nullptr);
    EXPECT_THAT(carriedOut(10, fill), ElementsAre(making));
}

TEST_P(CallLogMainItemTest, RowOfTheListItemsIsNotMadeBold)
{
    made(1, &ada, "", 0, false, false);
    carriedOut(2);
    EXPECT_THAT(carriedOut(0), ElementsAre("ListItemPrivate(\"\", false)"));
    run([&] { row->setbold(true); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(CallLogMainItemTest, DestructorDeletesTheSide)
{
    made(0, &ada, "", 0, false, false);
    run([&] { row.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~CallLogMainItemPrivateWP1()"));
}

INSTANTIATE_FROM_BOTH_THREADS(CallLogMainItemTest);

class QueuedCallLogMainItemTest : public test::SteppedTest {
protected:
    std::unique_ptr<CallLogMainItem> newRow()
    {
        CallPartyIdentifier party("Ada", "4711");
        return std::make_unique<CallLogMainItem>(&party, "10:41", 1, true, false);
    }

    std::unique_ptr<CallLogMainItem> row;
};

TEST_F(QueuedCallLogMainItemTest, MakingPostsWithAPartyThatMayGo)
{
    test::onOtherThread([&] { row = newRow(); });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(10));
    gui.runAll();
    EXPECT_EQ(doubles::Recorder::instance().last("CallLogMainItemPrivate(").text,
              "CallLogMainItemPrivate(\"Ada 4711\", \"10:41\", 1, true, false)");
}

TEST_F(QueuedCallLogMainItemTest, DeletingWaits)
{
    row = newRow();
    EXPECT_EQ(test::postedBy(gui, [&] { row.reset(); }), (Posted{{2}, true}));
}

TEST_F(QueuedCallLogMainItemTest, RowThatAnotherThreadMakesAndDeletesIsMadeBeforeItGoes)
{
    test::Worker worker([&] { newRow().reset(); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(10, 2));
    doubles::Recorder::instance().clear();
    while (!worker.hasReturned())
        gui.step();
    EXPECT_THAT(
        doubles::Recorder::instance().texts(),
        ElementsAre("CallLogMainItemPrivate(\"Ada 4711\", \"10:41\", 1, true, false)", "~CallLogMainItemPrivate()"));
}

/// A sanitizer sees whether the party's copy is freed.
TEST_F(QueuedCallLogMainItemTest, RowThatGoesBeforeItIsMadeIsNeverMade)
{
    test::onOtherThread([&] { row = newRow(); });
    doubles::Recorder::instance().clear();
    row.reset();
    EXPECT_EQ(gui.queued(), 0);
    EXPECT_THAT(doubles::Recorder::instance().texts(), IsEmpty());
}

} // namespace
