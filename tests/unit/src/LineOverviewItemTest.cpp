#include "DisplayAPI/LineOverviewItem.h"

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "unit/src/FacadeTest.h"
#include "unit/src/Posted.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"
#include "widgets/LineOverviewListItem.h"

using namespace DisplayAPI;
using test::From;
using test::Posted;
using testing::ElementsAre;

namespace {

using Parameters = std::tuple<From, int>;

class LineOverviewItemTest : public test::FacadeTest, public testing::WithParamInterface<Parameters> {
protected:
    LineOverviewItemTest() { test::setHardwareVariant(std::get<1>(GetParam())); }

    From from() const { return std::get<0>(GetParam()); }
    void run(const std::function<void()>& work) { FacadeTest::run(from(), work); }

    template <typename... Args>
    void make(const Args&... args)
    {
        run([&] { line = std::make_unique<LineOverviewItem>(args...); });
    }

    LineOverviewListItem& row()
    {
        return dynamic_cast<LineOverviewListItem&>(*line->getPrivateImplemetation()->getKestrelListItem());
    }

    std::vector<std::string> texts()
    {
        std::vector<std::string> all;
        gui.call([&] {
            for (const PegString& text : row().describe().texts)
                all.push_back(ICC::fromUNICODEtoUTF8(text));
        });
        return all;
    }

    std::unique_ptr<LineOverviewItem> line;
    TranslationInfo prefix{"Line.1", nullptr};
};

} // namespace

TEST_P(LineOverviewItemTest, ShowsWhatItIsMadeWithOnEveryVariant)
{
    make(LineOverviewItem::RINGING, "Office", "4711", &prefix);
    EXPECT_THAT(texts(), ElementsAre("Line.1 Office", "4711"));
    EXPECT_EQ(row().sign(), LineOverviewListItem::RINGS);
}

TEST_P(LineOverviewItemTest, NameAloneIsEnough)
{
    make(LineOverviewItem::IDLE, "Office");
    EXPECT_THAT(texts(), ElementsAre("Office"));
}

TEST_P(LineOverviewItemTest, TextIsTheName)
{
    make(LineOverviewItem::IDLE, "Büro", "4711", &prefix);
    run([&] { EXPECT_EQ(line->getText(), "Büro"); });
}

TEST_P(LineOverviewItemTest, SettersChangeTheRow)
{
    make(LineOverviewItem::IDLE, "Office");
    run([&] {
        line->setLineName("Lab");
        line->setLineIdentity("4712");
        line->setLineNamePrefix(&prefix);
        line->setLineState(LineOverviewItem::HELD);
        line->holdItem(5000);
    });
    EXPECT_THAT(texts(), ElementsAre("Line.1 Lab", "4712"));
    EXPECT_EQ(row().sign(), LineOverviewListItem::HOLDS);
    EXPECT_TRUE(row().isHighlighted());
}

TEST_P(LineOverviewItemTest, CodeTenPutsANewRowInThePlaceOfTheFormerOne)
{
    make(LineOverviewItem::IDLE, "Office", "4711", &prefix);
    carryOut(from(), *line, 10, [&](GuiRequestEvent& r) {
        r.intParam1 = LineOverviewItem::FAILED;
        r.stringParam1 = "Lab";
        r.stringParam2 = "4712";
    });
    EXPECT_THAT(texts(), ElementsAre("Lab", "4712"));
    EXPECT_EQ(row().sign(), LineOverviewListItem::HAS_FAILED);
}

TEST_P(LineOverviewItemTest, CodeTwoDeletesTheRow)
{
    make(LineOverviewItem::IDLE, "Office");
    carryOut(from(), *line, 2);
    EXPECT_EQ(line->getPrivateImplemetation(), nullptr);
}

TEST_P(LineOverviewItemTest, SettersLeaveARowAloneThatTheListItemHasMade)
{
    make(LineOverviewItem::IDLE, "Office");
    carryOut(from(), *line, 2);
    carryOut(from(), *line, 0, [](GuiRequestEvent& r) { r.stringParam1 = "Plain"; });
    run([&] {
        line->setLineName("Lab");
        line->setLineState(LineOverviewItem::HELD);
        EXPECT_EQ(line->getText(), "Plain");
    });
}

INSTANTIATE_TEST_SUITE_P(Requests, LineOverviewItemTest,
                         testing::Combine(testing::Values(From::GUI_THREAD, From::WORKER), testing::Values(0, 1, 2)),
                         [](const testing::TestParamInfo<Parameters>& test) {
                             return test::nameOf(std::get<0>(test.param)) + "OnVariant" +
                                    std::to_string(std::get<1>(test.param));
                         });

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
