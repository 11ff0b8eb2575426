#include "DisplayAPI/CallBackMainItem.h"

#include "unit/src/LogRowFacadeTest.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using test::Posted;
using testing::ElementsAre;

namespace {

using Type = CallBackMainItem::CallBackType;
using State = CallBackMainItem::CallBackState;
using CallBackMainItemTest = test::LogRowFacadeTest<CallBackMainItem>;

TEST_P(CallBackMainItemTest, EachPanelHasItsOwnSide)
{
    EXPECT_THAT(made(1, &ada, "10:41", Type::BUSY, State::READY),
                ElementsAre("CallBackMainItemPrivate(\"Ada 4711\", \"10:41\", 0, 2)"));
    for (const int variant : {0, 2})
        EXPECT_THAT(made(variant, nullptr, "", Type::NO_ANSWER, State::REQUESTED),
                    ElementsAre("CallBackMainItemPrivateWP1(\"nobody\", \"\", 1, 0)"));
}

TEST_P(CallBackMainItemTest, UnknownTypeAndStateHaveNames)
{
    const auto madeWith = [&](int type, int state) {
        return made(1, &ada, "", static_cast<Type>(type), static_cast<State>(state));
    };
    const auto made = [](const std::string& values) {
        return ElementsAre("CallBackMainItemPrivate(\"Ada 4711\", \"\", " + values + ")");
    };
    EXPECT_THAT(madeWith(7, 5), made("2, 1"));
    EXPECT_THAT(madeWith(0, 0), made("0, 0"));
    EXPECT_THAT(madeWith(1, 1), made("1, 1"));
    EXPECT_THAT(madeWith(2, 2), made("2, 2"));
    EXPECT_THAT(madeWith(-1, -1), made("2, 1"));
    EXPECT_THAT(madeWith(3, 3), made("2, 1"));
}

TEST_P(CallBackMainItemTest, KeepsWhatItWasMadeWith)
{
    made(1, &ada, "10:41", static_cast<Type>(7), static_cast<State>(5));
    EXPECT_EQ(row->getCallBackType(), 7);
    EXPECT_EQ(row->getCallBackState(), 5);
    EXPECT_EQ(row->getNumber(), "4711");
    EXPECT_EQ(row->getCallBackText(), "10:41");
    made(1, nullptr, "", Type::BUSY, State::READY);
    EXPECT_EQ(row->getNumber(), "");
}

TEST_P(CallBackMainItemTest, ListShowsTheSameSide)
{
    made(1, &ada, "", Type::BUSY, State::READY);
    EXPECT_NE(row->getPrivateImpl(), nullptr);
    EXPECT_EQ(row->getPrivateImpl(), row->getPrivateImplemetation());
}

TEST_P(CallBackMainItemTest, CodeTenDeletesAnyFormerSideBeforeItMakesOne)
{
    made(0, &ada, "", Type::BUSY, State::READY);
    const auto fill = [&](GuiRequestEvent& record) {
        record.ptrParam1 = &bert;
        record.stringParam1 = "10:42";
        record.intParam1 = 9;
        record.intParam2 = 2;
    };
    const std::string making = "CallBackMainItemPrivateWP1(\"Bert 4712\", \"10:42\", 2, 2)";
    EXPECT_THAT(carriedOut(10, fill), ElementsAre("~CallBackMainItemPrivateWP1()", making));
    EXPECT_THAT(carriedOut(2), ElementsAre("~CallBackMainItemPrivateWP1()"));
    EXPECT_EQ(row->getPrivateImpl(), nullptr);
    EXPECT_THAT(carriedOut(10, fill), ElementsAre(making));
}

TEST_P(CallBackMainItemTest, DestructorDeletesTheSide)
{
    made(1, &ada, "", Type::BUSY, State::READY);
    run([&] { row.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~CallBackMainItemPrivate()"));
}

/// ThreadSanitizer sees whether the GUI thread meets a row that is half gone.
TEST_P(CallBackMainItemTest, RowGoesWhenWhatIsQueuedForItIsDone)
{
    run([&] {
        for (int i = 0; i < 20; ++i) {
            CallBackMainItem brief(&ada, "", Type::BUSY, State::READY);
            brief.setText("later");
        }
    });
    EXPECT_EQ(recorder.count("~CallBackMainItemPrivate"), 20);
}

INSTANTIATE_FROM_BOTH_THREADS(CallBackMainItemTest);

using QueuedCallBackMainItemTest = test::SteppedTest;

TEST_F(QueuedCallBackMainItemTest, MakingAndDeletingWait)
{
    std::unique_ptr<CallBackMainItem> row;
    CallPartyIdentifier party("Ada", "4711");
    const auto make = [&] { row = std::make_unique<CallBackMainItem>(&party, "", Type::BUSY, State::READY); };
    EXPECT_EQ(test::postedBy(gui, make), (Posted{{10}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { row.reset(); }), (Posted{{2}, true}));
}

} // namespace
