#include "Lamp.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "doubles/Recorder.h"
#include "host/toolkit/MessagePool.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "utilities/Threadable.h"
#include "utilities/Wait.h"

#include <gmock/gmock.h>

#include <memory>

namespace {

using DisplayAPI::Lamp;
using doubles::Recorder;
using testing::ElementsAre;

constexpr int CREATE = 0, DESTROY = 1, BLINK = 2, IS_LIT = 3;

class LampTest : public test::SteppedTest {
protected:
    LampTest() { recorder.clear(); }

    Recorder& recorder = Recorder::instance();
};

TEST_F(LampTest, BlinkRunsAtOnceOnTheGuiThread)
{
    Lamp lamp;
    lamp.blink(500);
    EXPECT_EQ(gui.queued(), 0);
    EXPECT_THAT(recorder.texts(), ElementsAre("LampPrivate()", "LampPrivate::blink(500)"));
}

TEST_F(LampTest, BlinkIsPostedFromAnotherThread)
{
    Lamp lamp;
    recorder.clear();
    test::onOtherThread([&] { lamp.blink(500); });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(BLINK));
    EXPECT_TRUE(recorder.texts().empty());

    gui.runAll();
    EXPECT_THAT(recorder.texts(), ElementsAre("LampPrivate::blink(500)"));
}

TEST_F(LampTest, IsLitWaitsForTheGuiThread)
{
    Lamp lamp;
    bool lit = false;
    test::Worker worker([&] { lit = lamp.isLit(); });
    gui.waitForQueued(1);
    EXPECT_TRUE(worker.isBlocked());

    EXPECT_THAT(gui.queuedCodes(), ElementsAre(IS_LIT));
    gui.runAll();
    worker.join();
    EXPECT_TRUE(lit);
    EXPECT_EQ(recorder.last("LampPrivate::isLit").thread, Threadable::currentThreadId());
}

TEST_F(LampTest, AnotherThreadMakesAndDeletesALamp)
{
    test::Worker worker([] { Lamp lamp; });
    gui.waitForQueued(2);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, DESTROY));
    gui.runAll();
    worker.join();
    EXPECT_THAT(recorder.texts(), ElementsAre("LampPrivate()", "~LampPrivate()"));
}

TEST_F(LampTest, IsDarkWhenItsCreationWasLost)
{
    bool lit = true;
    test::Worker worker([&] {
        auto outOfMemory = std::make_unique<host::MessagePool::Drained>();
        Lamp lamp;
        outOfMemory.reset();
        lit = lamp.isLit();
    });
    while (!worker.hasReturned())
        gui.runAll();
    EXPECT_FALSE(lit);
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(LampTest, UnknownRequestsAreCompleted)
{
    Lamp lamp;
    Wait done;
    DisplayAPI::GuiRequestEvent unknown(&lamp, 99);
    unknown.setWaitCondition(&done);
    lamp.processGuiRequest(unknown);
    done.wait();
}

} // namespace
