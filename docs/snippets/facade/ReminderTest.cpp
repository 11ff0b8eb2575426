#include "Reminder.h"

#include "DisplayAPI/Display.h"
#include "DisplayPrivate.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Screen.h"
#include "support/FacadeContract.h"

using DisplayAPI::Display;
using DisplayAPI::DisplayPrivate;
using DisplayAPI::Reminder;
using doubles::Recorder;
using testing::ElementsAre;

namespace {

constexpr int CREATE = 0, DESTROY = 1, GET_MINUTES = 5, DISMISS = 6;

class ReminderTest : public test::SteppedTest {
protected:
    ReminderTest() { recorder.clear(); }

    Recorder& recorder = Recorder::instance();
};

TEST_F(ReminderTest, AnotherThreadMakesAndDeletesOne)
{
    test::Worker worker([] { Reminder reminder; });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, DESTROY));
    gui.runAll();
    worker.join();
    EXPECT_EQ(recorder.count("ReminderPrivate("), 1);
    EXPECT_EQ(recorder.count("~ReminderPrivate()"), 1);
}

TEST_F(ReminderTest, PanelDecidesWhichPrivateSideIsMade)
{
    const test::OnPanel small(test::Panel::SMALL);
    const Reminder reminder;
    EXPECT_EQ(recorder.count("ReminderPrivateWP1("), 1);
}

TEST_F(ReminderTest, GetMinutesWaitsForTheGuiThread)
{
    Reminder reminder;
    int minutes = 0;
    test::Worker worker([&] { minutes = reminder.getMinutes(); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(GET_MINUTES));
    gui.runAll();
    worker.join();
    EXPECT_EQ(minutes, 5);
    EXPECT_EQ(recorder.last("ReminderPrivate::getMinutes").thread, Threadable::currentThreadId());
}

TEST_F(ReminderTest, SeveralDismissalsThatAreQueuedAreOne)
{
    Reminder reminder;
    test::onOtherThread([&] {
        reminder.dismiss();
        reminder.dismiss();
    });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(DISMISS));
    gui.runAll();
}

TEST_F(ReminderTest, ScreenBelowHasTheUserAgainWhenItIsDeleted)
{
    Display display(new DisplayPrivate(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true));
    doubles::Screen menu("menu");
    auto reminder = std::make_unique<Reminder>();
    display.show();
    display.setCurrent(&menu);
    display.setCurrent(reminder.get());
    EXPECT_EQ(display.getCurrent(), reminder.get());
    reminder.reset();
    EXPECT_EQ(display.getCurrent(), &menu);
}

} // namespace
