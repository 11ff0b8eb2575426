#include "widgets/StatusMessage.h"

#include "host/Phone.h"
#include "host/clock/Clock.h"
#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/Timers.h"
#include "support/RunningToolkit.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <climits>
#include <gmock/gmock.h>

using namespace host;
using testing::ElementsAre;

namespace {

class StatusMessageTest : public testing::Test {
protected:
    StatusMessageTest()
    {
        Clock::instance().makeVirtual();
        pegInit();
    }
    ~StatusMessageTest() override
    {
        pegCleanUp();
        setVariant(Variant::PLAIN);
        Clock::instance().makeReal();
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static void pass(std::int64_t ms)
    {
        Clock::instance().advance(ms);
        Timers::instance().fireDue();
    }

    static Picture painted()
    {
        Lcd::current()->paint();
        return Lcd::current()->picture();
    }
};

TEST_F(StatusMessageTest, StandsNearTheBottom)
{
    const StatusMessage message("Saved", 0);
    EXPECT_EQ(message.Type(), TYPE_STATUS_MESSAGE);
    EXPECT_EQ(message.text(), "Saved");
    EXPECT_TRUE(contains(gpPresent->Area(), message.Area()));
    EXPECT_GT(message.Area().top, 90);
}

TEST_F(StatusMessageTest, CoversTheSecondOfTwoLines)
{
    pegCleanUp();
    setVariant(Variant::WP1);
    pegInit();
    EXPECT_EQ(StatusMessage("Saved", 0).Area(), (PegRect{0, 21, 207, 41}));
}

TEST_F(StatusMessageTest, TakesItselfDownAndLeavesItToItsOwner)
{
    StatusMessage message("Saved", 500);
    gpPresent->Add(&message);
    pass(499);
    EXPECT_EQ(message.Parent(), gpPresent);
    pass(1);
    EXPECT_EQ(message.Parent(), nullptr);
    EXPECT_TRUE(isEmpty(message.Area()));
    EXPECT_THAT(painted().texts, testing::IsEmpty());
}

TEST_F(StatusMessageTest, ShowsNothingWhenItIsPutBack)
{
    StatusMessage message("Saved", 500);
    gpPresent->Add(&message);
    pass(500);
    gpPresent->Add(&message);
    EXPECT_THAT(painted().texts, testing::IsEmpty());
    EXPECT_EQ(message.text(), "Saved");
}

TEST_F(StatusMessageTest, TimeRunsWhileItIsNotShown)
{
    StatusMessage message("Saved", 500);
    pass(500);
    EXPECT_TRUE(isEmpty(message.Area()));
}

TEST_F(StatusMessageTest, StaysWithoutTimeOut)
{
    StatusMessage message("Saved", 0);
    gpPresent->Add(&message);
    pass(1'000'000'000);
    EXPECT_EQ(message.Parent(), gpPresent);
}

TEST_F(StatusMessageTest, LongestTimeOutIsNotShort)
{
    StatusMessage message("Saved", UINT_MAX);
    pass(INT_MAX - 1);
    EXPECT_FALSE(isEmpty(message.Area()));
}

TEST_F(StatusMessageTest, TakenDownEarlyItMeansNothingToTheLoop)
{
    {
        StatusMessage message("Saved", 500);
        gpPresent->Add(&message);
    }
    EXPECT_EQ(Clock::instance().timerDue(), Clock::NEVER);
}

TEST_F(StatusMessageTest, TakesNoFocus)
{
    PegWindow below;
    gpPresent->Add(&below);
    gpPresent->MoveFocusTree(&below);
    StatusMessage message("Saved", 0);
    gpPresent->Add(&message);
    gpPresent->MoveFocusTree(&message);
    EXPECT_EQ(gpPresent->Focus(), &below);
}

TEST_F(StatusMessageTest, LongTextIsCut)
{
    StatusMessage message(std::string(200, 'W'), 0);
    gpPresent->Add(&message);
    EXPECT_THAT(painted().texts, ElementsAre(testing::Field(&TextRun::cut, true)));
}

TEST_F(StatusMessageTest, BeginsAtTheRightWhereTheLanguageDoes)
{
    StatusMessage message("Saved", 0);
    gpPresent->Add(&message);
    const int middle = widthOf(gpPresent->Area()) / 2;
    EXPECT_LT(painted().texts.at(0).area.right, middle);
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("ar"));
    EXPECT_GT(painted().texts.at(0).area.left, middle);
}

} // namespace
