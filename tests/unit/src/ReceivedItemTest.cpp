#include "DisplayAPI/ReceivedItem.h"

#include "DisplayAPI/ReceivedItemPrivateIfc.h"
#include "unit/src/LogRowFacadeTest.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using test::Posted;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using ReceivedItemTest = test::DetailsFacadeTest<ReceivedItem>;

TEST_P(ReceivedItemTest, HasASideOnTheFullPanelAlone)
{
    expectSideOnTheFullPanelAlone("ReceivedItemPrivate(\"Ada 4711\", \"today\", \"00:10\")", &ada, "today", "00:10");
}

TEST_P(ReceivedItemTest, CodesMakeAndDeleteTheSide)
{
    made(1, &ada, "today", "00:10");
    expectCodesToMakeAndEnd(
        1,
        [&](GuiRequestEvent& record) {
            record.ptrParam1 = &bert;
            record.stringParam1 = "yesterday";
            record.stringParam2 = "00:20";
        },
        "ReceivedItemPrivate(\"Bert 4712\", \"yesterday\", \"00:20\")");
    expectNothingOfCodes({-1, 2, 3, 10, 99});
}

TEST_P(ReceivedItemTest, DestructorDeletesTheSide)
{
    made(1, &ada, "today", "00:10");
    run([&] { row.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~ReceivedItemPrivate()"));
}

TEST_P(ReceivedItemTest, HasNoIcon)
{
    made(1, &ada, "today", "00:10");
    run([&] { EXPECT_EQ(row->iconType(), CallLogMainItem::NO_ICON); });
}

TEST_P(ReceivedItemTest, SideNeedsNoApplication)
{
    const test::NoApplication none;
    run([&] { row = std::make_unique<ReceivedItem>(&ada, "today", "00:10"); });
    EXPECT_THAT(reached(), ElementsAre("ReceivedItemPrivate(\"Ada 4711\", \"today\", \"00:10\")"));
}

TEST_P(ReceivedItemTest, WhatHandsNothingOnDoesNothing)
{
    made(1, &ada, "today", "00:10");
    run([&] { row->localeChanged("de"); });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(ReceivedItemTest);

using QueuedReceivedItemTest = test::SteppedTest;

TEST_F(QueuedReceivedItemTest, MakingAndDeletingWait)
{
    std::unique_ptr<ReceivedItem> details;
    CallPartyIdentifier party("Ada", "4711");
    const auto make = [&] { details = std::make_unique<ReceivedItem>(&party, "today", "00:10"); };
    EXPECT_EQ(test::postedBy(gui, make), (Posted{{0}, true}));
    EXPECT_NE(details->getPrivateImpl(), nullptr);
    EXPECT_EQ(test::postedBy(gui, [&] { details.reset(); }), (Posted{{1}, true}));
}

} // namespace
