#include "DisplayAPI/MissedItem.h"

#include "DisplayAPI/MissedItemPrivateIfc.h"
#include "unit/src/LogRowFacadeTest.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using test::Posted;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using MissedItemTest = test::DetailsFacadeTest<MissedItem>;

TEST_P(MissedItemTest, HasASideOnTheFullPanelAlone)
{
    expectSideOnTheFullPanelAlone("MissedItemPrivate(\"Ada 4711\", \"today\")", &ada, "today");
}

TEST_P(MissedItemTest, CodesMakeAndDeleteTheSide)
{
    made(1, &ada, "today");
    expectCodesToMakeAndEnd(
        2,
        [&](GuiRequestEvent& record) {
            record.ptrParam1 = &bert;
            record.stringParam1 = "yesterday";
        },
        "MissedItemPrivate(\"Bert 4712\", \"yesterday\")");
    expectNothingOfCodes({-1, 1, 3, 10, 99});
}

TEST_P(MissedItemTest, DestructorDeletesTheSide)
{
    made(1, &ada, "today");
    run([&] { row.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~MissedItemPrivate()"));
}

TEST_P(MissedItemTest, SideNeedsNoApplication)
{
    const test::NoApplication none;
    run([&] { row = std::make_unique<MissedItem>(&ada, "today"); });
    EXPECT_THAT(reached(), ElementsAre("MissedItemPrivate(\"Ada 4711\", \"today\")"));
}

TEST_P(MissedItemTest, WhatHandsNothingOnDoesNothing)
{
    made(1, &ada, "today");
    run([&] { row->localeChanged("de"); });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(MissedItemTest);

using QueuedMissedItemTest = test::SteppedTest;

TEST_F(QueuedMissedItemTest, MakingAndDeletingWait)
{
    std::unique_ptr<MissedItem> details;
    CallPartyIdentifier party("Ada", "4711");
    const auto make = [&] { details = std::make_unique<MissedItem>(&party, "today"); };
    EXPECT_EQ(test::postedBy(gui, make), (Posted{{0}, true}));
    EXPECT_NE(details->getPrivateImpl(), nullptr);
    EXPECT_EQ(test::postedBy(gui, [&] { details.reset(); }), (Posted{{2}, true}));
}

} // namespace
