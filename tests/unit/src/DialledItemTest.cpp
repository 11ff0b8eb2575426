#include "DisplayAPI/DialledItem.h"

#include "DisplayAPI/DialledItemPrivateIfc.h"
#include "unit/src/LogRowFacadeTest.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using test::Posted;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using DialledItemTest = test::DetailsFacadeTest<DialledItem>;

TEST_P(DialledItemTest, HasASideOnTheFullPanelAlone)
{
    expectSideOnTheFullPanelAlone("DialledItemPrivate(\"Ada 4711\", \"Bert 4712\", \"today\", \"00:10\", true)", &ada,
                                  &bert, "today", "00:10", true);
}

TEST_P(DialledItemTest, CodesMakeAndDeleteTheSide)
{
    made(1, &ada, &bert, "today", "00:10", true);
    expectCodesToMakeAndEnd(
        1,
        [&](GuiRequestEvent& record) {
            record.ptrParam1 = &bert;
            record.stringParam1 = "yesterday";
            record.stringParam2 = "00:20";
        },
        "DialledItemPrivate(\"Bert 4712\", \"nobody\", \"yesterday\", \"00:20\", false)");
    expectNothingOfCodes({-1, 2, 3, 10, 99});
}

TEST_P(DialledItemTest, DestructorDeletesTheSide)
{
    made(1, &ada, &bert, "today", "00:10", true);
    run([&] { row.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~DialledItemPrivate()"));
}

TEST_P(DialledItemTest, IconIsNamedAfterWhatTheSideShows)
{
    made(1, &ada, &bert, "today", "00:10", true);
    for (const auto& [value, icon] : {std::pair(0, 1), {1, 2}, {2, 3}, {3, 4}, {4, 0}, {5, 0}, {99, 0}, {-1, 0}}) {
        doubles::Answers::instance().icon = value;
        run([&, wanted = icon] { EXPECT_EQ(row->iconType(), wanted); });
    }
    carriedOut(1);
    doubles::Answers::instance().icon = 0;
    run([&] { EXPECT_EQ(row->iconType(), CallLogMainItem::NO_ICON); });
}

TEST_P(DialledItemTest, CleaningUpDeletesTheSide)
{
    made(1, &ada, &bert, "today", "00:10", true);
    gui.call([&] { row->cleanup(); });
    EXPECT_THAT(reached(), ElementsAre("~DialledItemPrivate()"));
    EXPECT_EQ(row->getPrivateImpl(), nullptr);
}

TEST_P(DialledItemTest, WithoutAnApplicationThereIsNoSide)
{
    const test::NoApplication none;
    run([&] { row = std::make_unique<DialledItem>(&ada, &bert, "today", "00:10", true); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(DialledItemTest, WhatHandsNothingOnDoesNothing)
{
    made(1, &ada, &bert, "today", "00:10", true);
    run([&] {
        row->localeChanged("de");
        row->setDateTimeDuration("1.1.", "10:41", "00:30");
    });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(DialledItemTest);

using QueuedDialledItemTest = test::SteppedTest;

TEST_F(QueuedDialledItemTest, MakingAndDeletingWait)
{
    std::unique_ptr<DialledItem> details;
    CallPartyIdentifier party("Ada", "4711");
    const auto make = [&] { details = std::make_unique<DialledItem>(&party, nullptr, "today", "00:10", true); };
    EXPECT_EQ(test::postedBy(gui, make), (Posted{{0}, true}));
    EXPECT_NE(details->getPrivateImpl(), nullptr);
    EXPECT_EQ(test::postedBy(gui, [&] { details.reset(); }), (Posted{{1}, true}));
}

} // namespace
