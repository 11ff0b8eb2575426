#include "DisplayAPI/Display.h"

#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayPrivate.h"
#include "doubles/DisplayPrivateDouble.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Mocks.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "utilities/ICC.h"
#include "utilities/Semaphore.h"
#include "utilities/Threadable.h"

#include <set>

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Record = DisplayRequestEvent;

Displayable* const SCREEN = reinterpret_cast<Displayable*>(0x1000);
Displayable* const POPUP = reinterpret_cast<Displayable*>(0x2000);

class DisplayTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~DisplayTest() override
    {
        gui.call([this] { display.reset(); });
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// What has arrived, without the posts.
    std::vector<std::string> arrived()
    {
        std::vector<std::string> texts = reached();
        std::erase_if(texts, [](const std::string& text) { return text.starts_with("display: post"); });
        return texts;
    }

    doubles::DisplayPrivateDouble* const side = new doubles::DisplayPrivateDouble;
    std::unique_ptr<Display> display = std::make_unique<Display>(side);
};

} // namespace

TEST_P(DisplayTest, RecordWithoutASemaphoreIsCarriedOutWithNobodyWaiting)
{
    side->postEvent(new Record(display.get(), Record::SHOW, nullptr, false));
    gui.settle();
    EXPECT_THAT(arrived(), ElementsAre("display: show()"));
}

TEST_P(DisplayTest, GetCurrentAnswersThePrivateSides)
{
    side->current = SCREEN;
    run([&] {
        EXPECT_EQ(display->getCurrent(), SCREEN);
        EXPECT_THAT(display->getCurrentWidgets(), ElementsAre(SCREEN));
    });
}

TEST_P(DisplayTest, WithoutACurrentDisplayableThereAreNoCurrentWidgets)
{
    run([&] {
        EXPECT_EQ(display->getCurrent(), nullptr);
        EXPECT_THAT(display->getCurrentWidgets(), IsEmpty());
    });
}

TEST_P(DisplayTest, AVectorOfDisplayablesIsMadeCurrentFrontToBack)
{
    run([&] { display->setCurrent(std::vector<Displayable*>{POPUP, SCREEN, nullptr}); });
    EXPECT_THAT(arrived(), ElementsAre("display: setCurrent(0x2000)", "display: setCurrent(0x1000)",
                                       callText("display: setCurrent", static_cast<const void*>(nullptr))));
    run([&] { display->setCurrent(std::vector<Displayable*>()); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(DisplayTest, DisplayedRectsAreThePrivateSidesVector)
{
    run([&] { EXPECT_EQ(display->getDisplayedRects(), &side->displayedRects); });
}

TEST_P(DisplayTest, SerialisationsAnswerOneAfterTheOther)
{
    const std::vector<DisplayAPIUtils::Rect> rects(3);
    run([&] {
        EXPECT_EQ(display->serialise(), "1");
        EXPECT_EQ(display->serialiseByRect(rects, true), "2");
        EXPECT_EQ(display->serialiseByRect(rects, false), "3");
        EXPECT_EQ(display->serialise(), "4");
    });
    EXPECT_THAT(arrived(), ElementsAre("display: serialise()", "display: serialiseByRect(3, true)",
                                       "display: serialiseByRect(3, false)", "display: serialise()"));
}

TEST_P(DisplayTest, PasteAnswersTheClipboard)
{
    side->clipboard = "copied";
    run([&] { EXPECT_EQ(display->paste(), "copied"); });
}

TEST_P(DisplayTest, ATimeArrivesAsItWasSetWhereItHasTwoDigits)
{
    run([&] {
        display->setTimeInSystemWindow(0, 0, 0);
        display->setTimeInSystemWindow(23, 59, 58);
    });
    EXPECT_THAT(arrived(),
                ElementsAre("display: setTimeInSystemWindow(0, 0, 0)", "display: setTimeInSystemWindow(23, 59, 58)"));
}

TEST_P(DisplayTest, TheLongestTimeoutArrives)
{
    run([&] { display->setStatusMessage("for ever", 0x7FFFFFFF); });
    EXPECT_THAT(arrived(), ElementsAre("display: setStatusMessage(\"for ever\", 2147483647)"));
}

TEST_P(DisplayTest, ObserverTranslatorAndAreaReachThePrivateSideOnTheCallingThread)
{
    testing::NiceMock<doubles::MockDisplayEvent> observer;
    testing::NiceMock<doubles::MockTranslator> translator;
    unsigned int caller = 0;
    run([&] {
        caller = Threadable::currentThreadId();
        display->subscribe(&observer);
        display->unSubscribe();
        display->setTranslator(&translator);
        EXPECT_EQ(display->getDisplayArea(), &side->area);
    });
    for (const doubles::Call& call : recorder.calls())
        EXPECT_EQ(call.thread, caller) << call.text;
    EXPECT_THAT(reached(), ElementsAre(callText("display: subscribe", static_cast<DisplayEventIfc*>(&observer)),
                                       "display: unSubscribe()",
                                       callText("display: setTranslator", static_cast<TranslatorIfc*>(&translator)),
                                       "display: getDisplayArea()"));
}

TEST_P(DisplayTest, ExecRunsOnTheCallingThread)
{
    run([&] { display->exec(); });
    EXPECT_THAT(reached(), ElementsAre("display: exec()"));
}

TEST_P(DisplayTest, FixedAnswersNeverReachThePrivateSide)
{
    run([&] {
        EXPECT_TRUE(display->isCurrentForKeyEvents(SCREEN));
        EXPECT_TRUE(display->isCurrentForKeyEvents(nullptr));
        EXPECT_TRUE(display->isVisible());
        EXPECT_FALSE(display->hasSoftKeyBar());
        display->setPopupMode(true);
        display->enableKeypadEventSending();
        display->disableKeypadEventSending();
        display->skinChanged("dark");
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(DisplayTest, UnassignedCodesAreCompletedWithoutEffect)
{
    for (const int code : {13, 25, 26, 1000, -1}) {
        Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
        run([&] {
            auto* const record = new Record(display.get(), static_cast<Record::DisplayRequests>(code), &done, false);
            if (GetParam() == From::WORKER)
                return side->postEvent(record);
            display->processDisplayRequest(record);
            EXPECT_TRUE(done.take(0)) << code;
            delete record;
        });
    }
    EXPECT_THAT(arrived(), IsEmpty());
}

TEST_P(DisplayTest, RecordsWithoutAResultSlotAreCompletedWithoutWriting)
{
    for (const int code : {3, 11, 24}) {
        Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
        side->postEvent(new Record(display.get(), static_cast<Record::DisplayRequests>(code), &done, false));
        EXPECT_FALSE(done.take(0)) << "postEvent has taken the permit";
    }
    EXPECT_EQ(recorder.count("display: paste"), 0);
}

TEST_P(DisplayTest, ATimeTextThatIsTooShortCountsAsZeros)
{
    for (const char* text : {"", "12", "12:3", "12:34:"}) {
        Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
        side->postEvent(new Record(display.get(), Record::SET_TIME_IN_SYSTEM_WINDOW, &done, std::string(text)));
    }
    EXPECT_THAT(arrived(),
                ElementsAre("display: setTimeInSystemWindow(0, 0, 0)", "display: setTimeInSystemWindow(12, 0, 0)",
                            "display: setTimeInSystemWindow(12, 3, 0)", "display: setTimeInSystemWindow(12, 34, 0)"));
}

INSTANTIATE_TEST_SUITE_P(From, DisplayTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });

namespace {

class DisplayOfManyThreadsTest : public DisplayTest {};

class DisplayLifeTest : public DisplayTest {};

class DisplayConstructionTest : public test::FacadeTest {};

} // namespace

TEST_F(DisplayOfManyThreadsTest, SerialisationsOfSeveralThreadsNeverMix)
{
    constexpr int THREADS = 4;
    constexpr int CALLS = 200;
    std::vector<std::vector<std::string>> answers(THREADS);
    {
        std::vector<std::unique_ptr<test::Worker>> workers;
        for (auto& own : answers)
            workers.push_back(std::make_unique<test::Worker>([&] {
                for (int i = 0; i < CALLS; ++i)
                    own.push_back(i % 2 == 0 ? display->serialise() : display->serialiseByRect({}, false));
            }));
    }
    std::set<std::string> all;
    for (const auto& own : answers)
        all.insert(own.begin(), own.end());
    EXPECT_EQ(all.size(), std::size_t{THREADS * CALLS});
}

TEST_F(DisplayLifeTest, DeletingTheDisplayDeletesThePrivateSide)
{
    gui.call([&] { display.reset(); });
    EXPECT_THAT(reached(), ElementsAre("display: die()"));
}

TEST(DisplayLostResultTest, APurgedSerialisationIsEmptyAndTheNextOneIsNot)
{
    test::SteppedLoop gui;
    DisplayPrivate purging(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, false);
    Display display(new doubles::DisplayPrivateDouble);
    for (int round = 0; round < 3; ++round) {
        std::string text = "untouched";
        test::Worker worker([&] { text = display.serialise(); });
        gui.waitForQueued(1);
        purging.purgeOwnMessage(&display, 8, 12, nullptr);
        worker.join();
        EXPECT_EQ(text, "");
        test::Worker next([&] { text = display.serialise(); });
        gui.waitForQueued(1);
        gui.runAll();
        next.join();
        EXPECT_EQ(text, std::to_string(round + 1));
    }
}

TEST_F(DisplayConstructionTest, ConstructorsPassHardwareTypeLocaleAndFormatsOn)
{
    gui.call([] {
        const auto* application = KestrelApplication::getCurrentApplication();
        const auto text = [](const PegString& string) { return ICC::fromUNICODEtoUTF8(string); };
        {
            Display small("WP1", PhysDefs::NO_SUB_VARIANT, "Corvane SIP", "de", "d.m.", "24", true, nullptr, true);
            EXPECT_EQ(application->getHardwareVariant(), 0);
            EXPECT_EQ(application->getSoftwareType(), 0);
            EXPECT_EQ(text(application->getLocale()), "de");
            EXPECT_EQ(text(application->getDateFormat()), "d.m.");
            EXPECT_EQ(text(application->getTimeFormat()), "24");
            EXPECT_EQ(small.getDisplayArea()->width(), 208);
        }
        {
            Display narrow("any", "Corvane KVX", "fr", "m/d", "12", true, nullptr);
            EXPECT_EQ(application->getHardwareVariant(), 1);
            EXPECT_EQ(application->getSoftwareType(), 1);
            EXPECT_EQ(text(application->getTimeFormat()), "12");
            EXPECT_EQ(narrow.getDisplayArea()->width(), 168);
        }
        Display wide("any", "it", "d", "t", false, nullptr);
        EXPECT_EQ(application->getSoftwareType(), 2);
        EXPECT_EQ(text(application->getLocale()), "it");
        EXPECT_EQ(text(application->getDateFormat()), "d");
        EXPECT_EQ(wide.getDisplayArea()->width(), 240);
    });
}
