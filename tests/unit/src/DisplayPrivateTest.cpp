// The loop, the observer, the formats and the clipboard of a display, and the requests that are queued for it.

#include "unit/src/DisplayPrivateTest.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "doubles/DisplayPrivateDouble.h"
#include "doubles/Mocks.h"
#include "support/Replaced.h"
#include "utilities/ICC.h"
#include "utilities/Semaphore.h"

using namespace DisplayAPI;
using test::DisplayPrivateTest;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Record = DisplayRequestEvent;

/// Notes what an application tells its observers.
class ApplicationObserver : public PegThing {
public:
    ApplicationObserver() { KestrelApplication::getCurrentApplication()->addObserver(this); }
    ~ApplicationObserver() override { KestrelApplication::getCurrentApplication()->removeObserver(this); }

    int Message(const PegMessage& message) override
    {
        types.push_back(message.wType);
        locale = ICC::fromUNICODEtoUTF8(*static_cast<const PegString*>(message.pData));
        return 0;
    }

    std::vector<int> types;
    std::string locale;
};

} // namespace

TEST_F(DisplayPrivateTest, ExecRunsTheLoopUntilShutdown)
{
    EXPECT_FALSE(display->execFinished());
    display->shutdown();
    const auto messages = gui.messages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].wType, 21);
    EXPECT_EQ(messages[0].pTarget, gpPresent);
    display->exec();
    EXPECT_TRUE(display->execFinished());
}

TEST_F(DisplayPrivateTest, ExecWithoutAPresentationManagerOnlyLogs)
{
    host::LogCapture log;
    {
        test::Replaced<PRESCPresentationManager*> none(gpPresent, nullptr);
        display->exec();
    }
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(log.lines()[0].module, "DisplayAPI::DisplayPrivate");
    EXPECT_EQ(log.lines()[0].file, "./src/DisplayPrivate");
    EXPECT_EQ(log.lines()[0].level, 2);
    EXPECT_EQ(log.lines()[0].text, "qtPresent is NULL");
    EXPECT_TRUE(display->execFinished());
}

TEST_F(DisplayPrivateTest, ShutdownWithoutAToolkitDoesNothing)
{
    test::Replaced<PegMessageQueue*> none(PegThing::mpMessageQueue, nullptr);
    display->shutdown();
    EXPECT_EQ(gui.queued(), 0);
}

TEST_F(DisplayPrivateTest, OnlyTheLastSubscribedObserverIsNotified)
{
    testing::StrictMock<doubles::MockDisplayEvent> last;
    EXPECT_CALL(last, displayChanged("")).Times(1);
    display->subscribe(&last);
    display->displayChanged();
    display->unSubscribe();
    display->displayChanged();
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateTest, AnObserverMayAskAndUnsubscribeMeanwhile)
{
    testing::StrictMock<doubles::MockDisplayEvent> asking;
    EXPECT_CALL(asking, displayChanged("")).WillOnce([&](std::string) {
        EXPECT_EQ(display->serialise(), display->serialise());
        display->unSubscribe();
    });
    display->subscribe(&asking);
    display->displayChanged();
    display->displayChanged();
}

TEST_F(DisplayPrivateTest, LocaleAndFormatsReachTheApplicationAndItsObservers)
{
    const auto* application = KestrelApplication::getCurrentApplication();
    ApplicationObserver watching;
    display->localeChanged("fr");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(application->getLocale()), "fr");
    EXPECT_EQ(watching.locale, "fr");
    display->dateFormatChanged("m/d");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(application->getDateFormat()), "m/d");
    EXPECT_EQ(display->dateFormat(), "m/d");
    display->timeFormatChanged("12");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(application->getTimeFormat()), "12");
    EXPECT_EQ(display->timeFormat(), "12");
    EXPECT_THAT(watching.types, ElementsAre(0x401A, 0x401A, 0x401A));
}

TEST_F(DisplayPrivateTest, SkinsDoNothing)
{
    display->skinChanged("dark");
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateTest, MaximisingOnlyStoresTheFlag)
{
    EXPECT_FALSE(display->isMaximised());
    display->setMaximised(true);
    EXPECT_TRUE(display->isMaximised());
    display->setMaximised(false);
    EXPECT_FALSE(display->isMaximised());
    EXPECT_EQ(observer.notifications, 0);
}

TEST_F(DisplayPrivateTest, TheTranslatorIsTheCommonOne)
{
    testing::NiceMock<doubles::MockTranslator> translator;
    EXPECT_EQ(DisplayablePrivate::commonTranslator, nullptr);
    display->setTranslator(&translator);
    EXPECT_EQ(DisplayablePrivate::commonTranslator, &translator);
    display->setTranslator(nullptr);
    EXPECT_EQ(DisplayablePrivate::commonTranslator, nullptr);
}

TEST_F(DisplayPrivateTest, PasteIsWhatWasCopiedLast)
{
    EXPECT_EQ(display->paste(), "");
    display->copy("first");
    display->copy("second");
    EXPECT_EQ(display->paste(), "second");
    EXPECT_EQ(display->paste(), "second");
}

TEST_F(DisplayPrivateTest, DisplayedRectsAreOneVectorOfTheDisplays)
{
    ASSERT_NE(display->getDisplayedRects(), nullptr);
    EXPECT_EQ(display->getDisplayedRects(), display->getDisplayedRects());
}

TEST_F(DisplayPrivateTest, TheClockAndTheTimerNotify)
{
    display->showTimeInSystemWindow(true);
    display->setTimeInSystemWindow(7, 5, 9);
    display->setTimer("0:01");
    display->stopTimer();
    EXPECT_EQ(observer.notifications, 4);
}

namespace {

class DisplayPrivatePurgeTest : public DisplayPrivateTest {
protected:
    ~DisplayPrivatePurgeTest() override
    {
        // Nobody carries out what is left.
        while (gui.queued() > 0)
            delete static_cast<Record*>(gui.takeMessage().pData);
    }

    void post(Display& requester, int code, Displayable* displayable)
    {
        display->postEventAsync(new Record(&requester, static_cast<Record::DisplayRequests>(code), &done, displayable));
    }

    std::vector<int> queuedCodes()
    {
        std::vector<int> codes;
        for (const PegMessage& message : gui.messages())
            codes.push_back(static_cast<const Record*>(message.pData)->getType());
        return codes;
    }

    int completed()
    {
        int count = 0;
        while (done.take(0))
            ++count;
        return count;
    }

    Semaphore done{Semaphore::NOT_AVAILABLE, 10, false};
    Display first{new doubles::DisplayPrivateDouble};
    Display another{new doubles::DisplayPrivateDouble};
};

} // namespace

TEST_F(DisplayPrivatePurgeTest, RequestsOfEitherCodeAreRemovedAndCompleted)
{
    for (const int code : {2, 9, 4, 2})
        post(first, code, &menu);
    display->purgeOwnMessage(&first, 2, 9, &menu);
    EXPECT_THAT(queuedCodes(), ElementsAre(4));
    EXPECT_EQ(completed(), 3);
}

TEST_F(DisplayPrivatePurgeTest, OnlyTheGivenDisplayablesRequestsAreRemoved)
{
    post(first, 2, &menu);
    post(first, 9, &other);
    display->purgeOwnMessage(&first, 2, 9, &other);
    EXPECT_THAT(queuedCodes(), ElementsAre(2));
}

TEST_F(DisplayPrivatePurgeTest, NullMatchesEveryDisplayable)
{
    post(first, 2, &menu);
    post(first, 2, &other);
    post(first, 2, nullptr);
    display->purgeOwnMessage(&first, 2, 2, nullptr);
    EXPECT_THAT(queuedCodes(), IsEmpty());
}

TEST_F(DisplayPrivatePurgeTest, RequestsOfAnotherDisplayStay)
{
    post(another, 2, &menu);
    display->purgeOwnMessage(&first, 2, 9, nullptr);
    EXPECT_THAT(queuedCodes(), ElementsAre(2));
    EXPECT_EQ(completed(), 0);
}

TEST_F(DisplayPrivatePurgeTest, ANullRequestStays)
{
    display->postEventAsync(nullptr);
    display->purgeOwnMessage(&first, 2, 9, nullptr);
    EXPECT_EQ(gui.queued(), 1);
}

TEST_F(DisplayPrivatePurgeTest, WhatIsQueuedForAFilterIsCompletedWhenItsDisplayEnds)
{
    auto doomed = std::make_unique<DisplayPrivate>(false, "any", "", "", "", "", nullptr, nullptr,
                                                   new doubles::FakeStartUp, true);
    doomed->postEventAsync(new Record(&first, Record::SHOW, &done, false));
    doomed.reset();
    EXPECT_EQ(completed(), 1);
    EXPECT_EQ(gui.queued(), 0);
}
