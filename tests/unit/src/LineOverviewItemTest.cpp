#include "DisplayAPI/LineOverviewItem.h"

#include "support/WidgetName.h"
#include "unit/src/Posted.h"
#include "unit/src/RowFacadeTest.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelListBoxWithTitle.h"
#include "widgets/LineOverviewListItem.h"

using namespace DisplayAPI;
using test::Posted;
using testing::ElementsAre;

namespace {

class LineOverviewItemTest : public test::RowFacadeTest<LineOverviewItem> {
protected:
    LineOverviewListItem& item()
    {
        return dynamic_cast<LineOverviewListItem&>(*row->getPrivateImpl()->getKestrelListItem());
    }

    TranslationInfo prefix{"Line.1", nullptr};
};

} // namespace

TEST_P(LineOverviewItemTest, ShowsWhatItIsMadeWithOnEveryVariant)
{
    make(LineOverviewItem::RINGING, "Office", "4711", &prefix);
    EXPECT_THAT(texts(), ElementsAre("Line.1 Office", "4711"));
    EXPECT_EQ(item().sign(), LineOverviewListItem::RINGS);
    EXPECT_EQ(test::WidgetName::of(*row), "LineOverviewItem");
}

TEST_P(LineOverviewItemTest, NameAloneIsEnough)
{
    make(LineOverviewItem::IDLE, "Office");
    EXPECT_THAT(texts(), ElementsAre("Office"));
}

TEST_P(LineOverviewItemTest, TextIsTheName)
{
    make(LineOverviewItem::IDLE, "Büro", "4711", &prefix);
    run([&] { EXPECT_EQ(row->getText(), "Büro"); });
}

TEST_P(LineOverviewItemTest, SettersChangeTheRow)
{
    make(LineOverviewItem::IDLE, "Office");
    run([&] {
        row->setLineName("Lab");
        row->setLineIdentity("4712");
        row->setLineNamePrefix(&prefix);
        row->setLineState(LineOverviewItem::HELD);
        row->holdItem(5000);
    });
    EXPECT_THAT(texts(), ElementsAre("Line.1 Lab", "4712"));
    EXPECT_EQ(item().sign(), LineOverviewListItem::HOLDS);
    EXPECT_TRUE(item().isHighlighted());
}

TEST_P(LineOverviewItemTest, CodeTenPutsANewRowInThePlaceOfTheFormerOne)
{
    make(LineOverviewItem::IDLE, "Office", "4711", &prefix);
    carryOut(from(), *row, 10, [&](GuiRequestEvent& r) {
        r.intParam1 = LineOverviewItem::FAILED;
        r.stringParam1 = "Lab";
        r.stringParam2 = "4712";
    });
    EXPECT_THAT(texts(), ElementsAre("Lab", "4712"));
    EXPECT_EQ(item().sign(), LineOverviewListItem::HAS_FAILED);
}

TEST_P(LineOverviewItemTest, CodeTenDeletesTheFormerRow)
{
    make(LineOverviewItem::IDLE, "Office");
    KestrelListBoxWithTitle box;
    box.append(&item());
    carryOut(from(), *row, 10, [&](GuiRequestEvent& r) { r.stringParam1 = "Lab"; });
    EXPECT_EQ(box.numItems(), 0);
    box.clear();
}

TEST_P(LineOverviewItemTest, CodeTwoDeletesTheRow)
{
    make(LineOverviewItem::IDLE, "Office");
    carryOut(from(), *row, 2);
    EXPECT_EQ(row->getPrivateImpl(), nullptr);
}

TEST_P(LineOverviewItemTest, SettersLeaveARowAloneThatTheListItemHasMade)
{
    make(LineOverviewItem::IDLE, "Office");
    carryOut(from(), *row, 2);
    carryOut(from(), *row, 0, [](GuiRequestEvent& r) { r.stringParam1 = "Plain"; });
    run([&] {
        row->setLineName("Lab");
        row->setLineState(LineOverviewItem::HELD);
        EXPECT_EQ(row->getText(), "Plain");
    });
}

INSTANTIATE_ON_VARIANTS(LineOverviewItemTest);

namespace {

class LineOverviewItemPostTest : public test::SteppedTest {};

} // namespace

TEST_F(LineOverviewItemPostTest, ConstructorAndDestructorWait)
{
    std::unique_ptr<LineOverviewItem> line;
    const auto make = [&] { line = std::make_unique<LineOverviewItem>(LineOverviewItem::IDLE, "Office"); };
    EXPECT_EQ(test::postedBy(gui, make), (Posted{{10}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { line.reset(); }), (Posted{{2}, true}));
}

TEST_F(LineOverviewItemPostTest, WhatIsQueuedBeforeItsEndStillReachesTheRow)
{
    auto line = std::make_unique<LineOverviewItem>(LineOverviewItem::IDLE, "Office");
    auto* const row = line->getPrivateImplemetation()->getKestrelListItem();
    test::Worker worker([&] {
        line->setLineName("Lab");
        line.reset();
    });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(16, 2));
    gui.step();
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(row->DataGet()), "Lab");
    while (!worker.hasReturned())
        gui.runAll();
    worker.join();
}
