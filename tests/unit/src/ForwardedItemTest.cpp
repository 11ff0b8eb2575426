#include "DisplayAPI/ForwardedItem.h"

#include "DisplayAPI/ForwardedItemPrivateIfc.h"
#include "unit/src/LogRowFacadeTest.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using test::Posted;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ForwardedItemTest : public test::DetailsFacadeTest<ForwardedItem> {
protected:
    std::string today = "today";
};

TEST_P(ForwardedItemTest, HasASideOnTheFullPanelAlone)
{
    expectSideOnTheFullPanelAlone("ForwardedItemPrivate(\"Ada 4711\", \"Bert 4712\", \"today\")", &ada, &bert,
                                  std::ref(today));
}

TEST_P(ForwardedItemTest, CodesMakeAndDeleteTheSide)
{
    made(1, &ada, &bert, std::ref(today));
    expectCodesToMakeAndEnd(
        1,
        [&](GuiRequestEvent& record) {
            record.ptrParam1 = &bert;
            record.stringParam1 = "yesterday";
        },
        "ForwardedItemPrivate(\"Bert 4712\", \"nobody\", \"yesterday\")");
    expectNothingOfCodes({-1, 2, 3, 10, 99});
}

TEST_P(ForwardedItemTest, DestructorDeletesTheSide)
{
    made(1, &ada, &bert, std::ref(today));
    run([&] { row.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~ForwardedItemPrivate()"));
}

TEST_P(ForwardedItemTest, IconIsNamedAfterWhatTheSideShows)
{
    made(1, &ada, &bert, std::ref(today));
    for (const auto& [value, icon] : {std::pair(0, 1), {1, 2}, {2, 3}, {3, 4}, {4, 0}, {5, 0}, {99, 0}, {-1, 0}}) {
        doubles::Answers::instance().icon = value;
        run([&, wanted = icon] { EXPECT_EQ(row->iconType(), wanted); });
    }
    carriedOut(1);
    doubles::Answers::instance().icon = 0;
    run([&] { EXPECT_EQ(row->iconType(), CallLogMainItem::NO_ICON); });
}

TEST_P(ForwardedItemTest, CleaningUpDeletesTheSide)
{
    made(1, &ada, &bert, std::ref(today));
    gui.call([&] { row->cleanup(); });
    EXPECT_THAT(reached(), ElementsAre("~ForwardedItemPrivate()"));
    EXPECT_EQ(row->getPrivateImpl(), nullptr);
}

TEST_P(ForwardedItemTest, WithoutAnApplicationThereIsNoSide)
{
    const test::NoApplication none;
    run([&] { row = std::make_unique<ForwardedItem>(&ada, &bert, today); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ForwardedItemTest, WhatHandsNothingOnDoesNothing)
{
    made(1, &ada, &bert, std::ref(today));
    run([&] {
        row->localeChanged("de");
        row->enableContextMenuArrow(true);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(ForwardedItemTest);

using QueuedForwardedItemTest = test::SteppedTest;

TEST_F(QueuedForwardedItemTest, MakingAndDeletingWait)
{
    std::unique_ptr<ForwardedItem> details;
    CallPartyIdentifier party("Ada", "4711");
    std::string when = "today";
    const auto make = [&] { details = std::make_unique<ForwardedItem>(&party, nullptr, when); };
    EXPECT_EQ(test::postedBy(gui, make), (Posted{{0}, true}));
    EXPECT_NE(details->getPrivateImpl(), nullptr);
    EXPECT_EQ(test::postedBy(gui, [&] { details.reset(); }), (Posted{{1}, true}));
}

} // namespace
