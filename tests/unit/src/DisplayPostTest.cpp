#include "DisplayPrivate.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayEventFilter.h"
#include "host/toolkit/MessagePool.h"
#include "support/LogLines.h"
#include "support/SteppedLoop.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "toolkit/PegMessageQueue.h"
#include "utilities/Semaphore.h"

using DisplayAPI::DisplayRequestEvent;
using DisplayAPI::postEventHelper;
using host::LogLine;
using test::Worker;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr bool WAIT = true;
constexpr bool DO_NOT_WAIT = false;

/// A request that counts itself for as long as it exists.
class CountedDisplayRequest : public DisplayRequestEvent {
public:
    template <typename... Args>
    explicit CountedDisplayRequest(std::atomic<int>& live, Args... args) : DisplayRequestEvent(args...), mLive(live)
    {
        ++mLive;
    }
    ~CountedDisplayRequest() override { --mLive; }

private:
    std::atomic<int>& mLive;
};

class DisplayPostTest : public test::SteppedTest {
protected:
    DisplayRequestEvent* newRequest(DisplayRequestEvent::DisplayRequests code, Semaphore* semaphore)
    {
        return new CountedDisplayRequest(liveRequests, nullptr, code, semaphore, std::string("text"));
    }

    /// What the GUI thread does with a request, without a display.
    void completeFirst()
    {
        auto* const request = static_cast<DisplayRequestEvent*>(gui.takeMessage().pData);
        request->requestCompleted();
        delete request;
    }

    LogLine line(int number, const std::string& text) const
    {
        return {"DisplayAPI::DisplayPrivate", "./src/DisplayPrivate", 5, number, text};
    }

    std::atomic<int> liveRequests{0};
};

} // namespace

TEST_F(DisplayPostTest, QueuesTheRequestForTheGivenFilter)
{
    DisplayAPI::DisplayEventFilter own(false);
    DisplayRequestEvent* const request = newRequest(DisplayRequestEvent::COPY, nullptr);

    postEventHelper(request, &own, DO_NOT_WAIT);

    const PegMessage message = gui.messages().at(0);
    EXPECT_EQ(message.wType, 0x4000);
    EXPECT_EQ(message.iData, 0);
    EXPECT_EQ(message.pTarget, &own);
    EXPECT_EQ(message.pSource, &own);
    EXPECT_EQ(message.pData, request);
    EXPECT_EQ(message.Next, nullptr);
    completeFirst();
}

TEST_F(DisplayPostTest, QueuesTheRequestWithoutAFilterToo)
{
    gui.removeFilter();

    postEventHelper(newRequest(DisplayRequestEvent::COPY, nullptr), nullptr, DO_NOT_WAIT);

    const PegMessage message = gui.messages().at(0);
    EXPECT_EQ(message.pTarget, nullptr);
    EXPECT_EQ(message.pSource, nullptr);
    completeFirst();
}

TEST_F(DisplayPostTest, QueuesOnTheGuiThreadToo)
{
    postEventHelper(newRequest(DisplayRequestEvent::COPY, nullptr), gui.filter(), DO_NOT_WAIT);
    EXPECT_EQ(gui.queued(), 1);
    completeFirst();
}

TEST_F(DisplayPostTest, AppendsAtTheTail)
{
    test::TestWidget widget;
    widget.postEventAsync(1);
    postEventHelper(newRequest(DisplayRequestEvent::COPY, nullptr), gui.filter(), DO_NOT_WAIT);

    EXPECT_EQ(gtPegMainQueue->tail->wType, PM_DISPLAY_REQUEST);
    gui.step();
    completeFirst();
}

TEST_F(DisplayPostTest, WaitsForTheSemaphoreOfTheRequest)
{
    Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
    Worker worker([&] { postEventHelper(newRequest(DisplayRequestEvent::COPY, &done), gui.filter(), WAIT); });
    gui.waitForQueued(1);
    EXPECT_TRUE(worker.isBlocked());

    completeFirst();
    worker.join();
    EXPECT_FALSE(done.take(0)) << "the permit is used up";
}

TEST_F(DisplayPostTest, TheLoopHearsOfItWhereTheCallerWaits)
{
    for (const bool waits : {WAIT, DO_NOT_WAIT}) {
        Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
        Worker worker([&] { postEventHelper(newRequest(DisplayRequestEvent::COPY, &done), gui.filter(), waits); });
        gui.waitForQueued(1);

        EXPECT_EQ(gtPegMainQueue->awaited, waits);

        gui.takeOver();
        completeFirst();
    }
}

TEST_F(DisplayPostTest, DoesNotWaitWithoutASemaphore)
{
    postEventHelper(newRequest(DisplayRequestEvent::COPY, nullptr), gui.filter(), WAIT);
    completeFirst();
}

TEST_F(DisplayPostTest, DoesNotWaitUnlessToldTo)
{
    Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
    postEventHelper(newRequest(DisplayRequestEvent::COPY, &done), gui.filter(), DO_NOT_WAIT);
    completeFirst();
    EXPECT_TRUE(done.take(0));
}

TEST_F(DisplayPostTest, CallersDoNotWaitForEachOther)
{
    Semaphore firstDone(Semaphore::NOT_AVAILABLE, 1, false);
    Semaphore secondDone(Semaphore::NOT_AVAILABLE, 1, false);
    Worker first([&] { postEventHelper(newRequest(DisplayRequestEvent::COPY, &firstDone), gui.filter(), WAIT); });
    Worker second([&] { postEventHelper(newRequest(DisplayRequestEvent::COPY, &secondDone), gui.filter(), WAIT); });
    gui.waitForQueued(2);
    completeFirst();
    completeFirst();
}

TEST_F(DisplayPostTest, ANullRequestIsQueuedWithoutWaiting)
{
    host::LogCapture log;

    postEventHelper(nullptr, gui.filter(), WAIT);

    const PegMessage message = gui.takeMessage();
    EXPECT_EQ(message.wType, 0x4000);
    EXPECT_EQ(message.pData, nullptr);
    EXPECT_THAT(log.lines(), ElementsAre(line(1236, "postEventHelper(DisplayRequestEvent *, bool)____________"
                                                    "postEvent: NULL")));
}

TEST_F(DisplayPostTest, LogsCodeWaitFlagAndText)
{
    host::LogCapture log;

    postEventHelper(newRequest(DisplayRequestEvent::SET_TIMER, nullptr), gui.filter(), WAIT);

    EXPECT_THAT(log.lines(),
                ElementsAre(line(1240, "postHelperEvent(DisplayRequestEvent *, bool)___________display postEvent: 19, "
                                       "wait = 1"),
                            line(1244, "postEventHelper(DisplayRequestEvent *, bool)__________________ text ")));
    completeFirst();
}

TEST_F(DisplayPostTest, ATextIsLoggedAsItIs)
{
    host::LogCapture log;
    postEventHelper(new DisplayRequestEvent(nullptr, DisplayRequestEvent::COPY, nullptr, std::string("100 %s %n")),
                    gui.filter(), DO_NOT_WAIT);

    EXPECT_EQ(log.lines().at(0).text,
              "postHelperEvent(DisplayRequestEvent *, bool)___________display postEvent: 23, wait = 0");
    EXPECT_EQ(log.lines().at(1).text, "postEventHelper(DisplayRequestEvent *, bool)__________________ 100 %s %n ");
    completeFirst();
}

TEST_F(DisplayPostTest, WithoutAMessageRecordTheRequestIsLoggedAndLost)
{
    Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
    host::LogCapture log({.level = 2, .modulePrefix = ""});
    {
        const host::MessagePool::Drained drained;
        postEventHelper(newRequest(DisplayRequestEvent::COPY, &done), gui.filter(), WAIT);
    }

    EXPECT_THAT(log.lines(),
                ElementsAre(LogLine{"DisplayAPI::DisplayPrivate", "./src/DisplayPrivate", 2, 1270,
                                    "postEvent() no more PegMessage objects in the pool, this one will be lost!"}));
    EXPECT_EQ(liveRequests, 0);
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(DisplayPostTest, ALostNullRequestDoesNoHarm)
{
    const host::MessagePool::Drained drained;
    postEventHelper(nullptr, gui.filter(), WAIT);
    EXPECT_EQ(gui.queued(), 0);
}
