// What every request of a display does to the screen, from the GUI thread and from an application's.

#include "unit/src/FacadeTest.h"

#include "ContentWidget.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayAPI/DisplayRequestEvent.h"
#include "DisplayPrivate.h"
#include "doubles/ContentWidgetDouble.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Screen.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/Posted.h"
#include "utilities/ICC.h"
#include "utilities/Rect.h"
#include "utilities/Semaphore.h"
#include "utilities/Threadable.h"
#include "widgets/StatusMessage.h"
#include "widgets/SystemWindow.h"

using namespace DisplayAPI;
using DisplayAPIUtils::Rect;
using doubles::Screen;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string MENU = "object:\nname:Menu\nend:\n";

std::string utf8(const PegString& text)
{
    return ICC::fromUNICODEtoUTF8(text);
}

/// Notes what the current application tells its observers, and where.
class ApplicationObserver : public PegThing {
public:
    ApplicationObserver() { KestrelApplication::getCurrentApplication()->addObserver(this); }
    ~ApplicationObserver() override { KestrelApplication::getCurrentApplication()->removeObserver(this); }

    int Message(const PegMessage& message) override
    {
        EXPECT_EQ(message.wType, PM_APPLICATION_CHANGED);
        EXPECT_EQ(Threadable::currentThreadId(), mHome);
        const auto& application = *KestrelApplication::getCurrentApplication();
        EXPECT_EQ(message.pData, &application.getLocale());
        told.push_back((message.iData == KestrelApplication::LOCALE ? "locale " : "format ") +
                       utf8(application.getLocale()) + ' ' + utf8(application.getDateFormat()) + ' ' +
                       utf8(application.getTimeFormat()));
        return 0;
    }

    std::vector<std::string> told; ///< what has changed, and locale, date format and time format at each notification

private:
    const unsigned int mHome = Threadable::currentThreadId();
};

/// A real display with a real screen; its content widget notes what it is told.
class DisplayRequestEffectTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    DisplayRequestEffectTest()
    {
        gui.call([this] {
            side = new DisplayPrivate(false, "any", "Corvane KVX", "en", "d/m", "12", nullptr,
                                      new doubles::ContentWidgetDoubleFactory, new doubles::FakeStartUp, true);
            display = std::make_unique<Display>(side);
            display->subscribe(&observer);
            menu = std::make_unique<Screen>("menu");
            menu->widget()->Resize({0, 0, 239, 127});
            menu->getPrivateImpl()->text = MENU;
        });
    }

    ~DisplayRequestEffectTest() override
    {
        gui.call([this] {
            menu.reset();
            display.reset();
        });
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    void givenMenu()
    {
        gui.call([this] {
            display->show();
            display->setCurrent(menu.get());
        });
        recorder.clear();
        observer.notifications = 0;
    }

    /// What `ask` finds out on the GUI thread.
    template <typename Ask>
    auto look(Ask ask)
    {
        decltype(ask()) answer{};
        gui.call([&] { answer = ask(); });
        return answer;
    }

    bool isMenuOnScreen()
    {
        return look([this] { return menu->widget()->Parent() == gpPresent; });
    }

    std::string line(int number)
    {
        return look([&] { return side->getContentWidget()->getSystemWindowText(number); });
    }

    /// What the content widget has been told, on the GUI thread.
    std::vector<std::string> content()
    {
        expectAllOnGuiThread();
        std::vector<std::string> texts = reached();
        std::erase_if(texts, [](const std::string& text) { return !text.starts_with("content: "); });
        return texts;
    }

    struct Observer : DisplayEventIfc {
        void displayChanged(std::string) override { ++notifications; }
        std::atomic<int> notifications{0};
    };

    Observer observer;
    DisplayPrivate* side = nullptr;
    std::unique_ptr<Display> display;
    std::unique_ptr<Screen> menu;
};

} // namespace

TEST_P(DisplayRequestEffectTest, HideTakesTheScreenAway)
{
    givenMenu();
    run([&] { display->hide(); });
    EXPECT_FALSE(isMenuOnScreen());
}

TEST_P(DisplayRequestEffectTest, ShowPutsTheScreenUp)
{
    run([&] { display->setCurrent(menu.get()); });
    EXPECT_FALSE(isMenuOnScreen());
    run([&] { display->show(); });
    EXPECT_TRUE(isMenuOnScreen());
}

TEST_P(DisplayRequestEffectTest, SetCurrentPutsADisplayableOnTheStackAndNullClearsIt)
{
    run([&] {
        display->show();
        display->setCurrent(menu.get());
        EXPECT_EQ(display->getCurrent(), menu.get());
    });
    EXPECT_TRUE(isMenuOnScreen());
    run([&] {
        display->setCurrent(nullptr);
        EXPECT_EQ(display->getCurrent(), nullptr);
    });
    EXPECT_FALSE(isMenuOnScreen());
}

TEST_P(DisplayRequestEffectTest, LocaleAndFormatsReachTheApplicationsObserversOneByOne)
{
    std::unique_ptr<ApplicationObserver> watching;
    gui.call([&] { watching = std::make_unique<ApplicationObserver>(); });
    run([&] {
        display->localeChanged("fr");
        display->dateFormatChanged("d.m.");
        display->timeFormatChanged("24 \xE6\x99\x82");
    });
    EXPECT_THAT(watching->told, ElementsAre("locale fr d/m 12", "format fr d.m. 12", "format fr d.m. 24 \xE6\x99\x82"));
    EXPECT_EQ(side->dateFormat(), "d.m.");
    EXPECT_EQ(side->timeFormat(), "24 \xE6\x99\x82");
    gui.call([&] { watching.reset(); });
}

TEST_P(DisplayRequestEffectTest, SerialisationsDescribeTheScreen)
{
    givenMenu();
    run([&] {
        EXPECT_EQ(display->serialise(), MENU);
        EXPECT_EQ(display->serialiseByRect({Rect(0, 0, 10, 10)}, true), MENU);
    });
    EXPECT_THAT(menu->getPrivateImpl()->lastRects, ElementsAre(Rect(0, 0, 10, 10)));
}

TEST_P(DisplayRequestEffectTest, ASerialisationByRectanglesHasTheSystemWindowWhereItIsWanted)
{
    givenMenu();
    run([&] {
        display->setSystemWindowSize(2);
        EXPECT_THAT(display->serialiseByRect({}, true), testing::StartsWith(MENU + "object:\nname:PopupTextField\n"));
        EXPECT_EQ(display->serialiseByRect({}, false), MENU);
    });
}

TEST_P(DisplayRequestEffectTest, CreateServerDisplayPutsADisplayableOnTheStack)
{
    run([&] {
        display->createServerDisplay(menu.get());
        EXPECT_EQ(display->getCurrent(), menu.get());
    });
    EXPECT_TRUE(isMenuOnScreen());
}

TEST_P(DisplayRequestEffectTest, SetMaximisedIsKept)
{
    run([&] { display->setMaximised(true); });
    EXPECT_TRUE(look([this] { return side->isMaximised(); }));
    run([&] { display->setMaximised(false); });
    EXPECT_FALSE(look([this] { return side->isMaximised(); }));
}

TEST_P(DisplayRequestEffectTest, DisplayedRectanglesAreTheStacks)
{
    givenMenu();
    run([&] { EXPECT_THAT(*display->getDisplayedRects(), ElementsAre(Rect(0, 0, 240, 128))); });
}

TEST_P(DisplayRequestEffectTest, SystemWindowTextsAndSizeReachTheSystemWindow)
{
    givenMenu();
    run([&] {
        display->setSystemWindowText(0, "Gr\xC3\xBC\xC3\x9F Gott");
        display->setSystemWindowText(1, "");
        display->setSystemWindowSize(2);
    });
    EXPECT_EQ(line(0), "Gr\xC3\xBC\xC3\x9F Gott");
    EXPECT_EQ(line(1), " ");
    EXPECT_EQ(look([this] { return side->getContentWidget()->getSWCurrentNumLines(); }), 2);
    EXPECT_TRUE(look([this] { return side->getContentWidget()->getSystemWindow()->Parent() == gpPresent; }));
    EXPECT_EQ(observer.notifications, 1);
}

TEST_P(DisplayRequestEffectTest, TheTopReachesTheSystemWindow)
{
    run([&] { display->setSystemWindowTop(17); });
    EXPECT_THAT(content(), ElementsAre("content: setSystemWindowTop(17, true, false)"));
}

TEST_P(DisplayRequestEffectTest, ClockAndCallTimerReachTheSystemWindowAndNotify)
{
    run([&] {
        display->showTimeInSystemWindow(true);
        display->setTimeInSystemWindow(7, 5, 9);
        display->setTimer("0:01");
        display->stopTimer();
        display->showTimeInSystemWindow(false);
    });
    EXPECT_THAT(content(), ElementsAre("content: showTimeInSystemWindow(true)",
                                       "content: setTimeInSystemWindow(7, 5, 9)", "content: setTimer(\"0:01\")",
                                       "content: stopTimer()", "content: showTimeInSystemWindow(false)"));
    EXPECT_EQ(observer.notifications, 5);
}

TEST_P(DisplayRequestEffectTest, TheSoftwareTypeReachesTheApplication)
{
    for (const auto& [text, type] : {std::pair{"Corvane SIP", 0}, {"Corvane KVX", 1}, {"any", 2}}) {
        run([&, name = text] { display->setSoftwareType(name); });
        EXPECT_EQ(KestrelApplication::getCurrentApplication()->getSoftwareType(), type) << text;
    }
}

TEST_P(DisplayRequestEffectTest, AStatusMessageStandsOnTheScreenUntilItIsEmptied)
{
    givenMenu();
    const auto above = [this] { return static_cast<StatusMessage*>(menu->widget()->NextSibling()); };
    run([&] { display->setStatusMessage("Saved", 0); });
    EXPECT_EQ(look([&] { return above() != nullptr ? above()->text() : std::string(); }), "Saved");
    run([&] { display->setStatusMessage("", 0); });
    EXPECT_EQ(look(above), nullptr);
}

TEST_P(DisplayRequestEffectTest, WhatIsCopiedIsPasted)
{
    run([&] {
        EXPECT_EQ(display->paste(), "");
        display->copy("text");
        EXPECT_EQ(display->paste(), "text");
    });
}

TEST_P(DisplayRequestEffectTest, UnassignedCodesLeaveTheScreenAsItIs)
{
    givenMenu();
    for (const int code : {13, 25, 1000, -1}) {
        Semaphore done(Semaphore::NOT_AVAILABLE, 1, false);
        run([&] {
            const auto type = static_cast<DisplayRequestEvent::DisplayRequests>(code);
            auto* const record = new DisplayRequestEvent(display.get(), type, &done, false);
            if (GetParam() == From::WORKER)
                return side->postEventAsync(record);
            display->processDisplayRequest(record);
            delete record;
        });
        EXPECT_TRUE(done.take(-1)) << code;
    }
    EXPECT_THAT(reached(), IsEmpty());
    EXPECT_EQ(observer.notifications, 0);
    EXPECT_TRUE(isMenuOnScreen());
}

INSTANTIATE_TEST_SUITE_P(From, DisplayRequestEffectTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });

TEST(DisplayConstructionEffectTest, LocaleAndFormatsOfTheConstructorReachTheApplicationsObservers)
{
    test::SteppedLoop gui;
    ApplicationObserver watching;
    const auto* application = KestrelApplication::getCurrentApplication();
    const std::string before = utf8(application->getDateFormat()) + ' ';
    const std::string after = utf8(application->getTimeFormat());
    const DisplayPrivate display(false, "any", "", "de", "d.m.", "24", nullptr, nullptr, new doubles::FakeStartUp,
                                 false);
    EXPECT_THAT(watching.told,
                ElementsAre("locale de " + before + after, "format de d.m. " + after, "format de d.m. 24"));
}

TEST(DisplayShutdownEffectTest, ShutdownQueuesTheEndOfTheLoopFromBothThreads)
{
    test::SteppedLoop gui;
    Display display(new DisplayPrivate(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true));
    display.shutdown();
    test::Worker worker([&] { display.shutdown(); });
    gui.waitForQueued(2);
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_EQ(gui.takeMessage().wType, PM_EXIT);
    gui.step();
    worker.join();
    const PegMessage last = gui.takeMessage();
    EXPECT_EQ(last.wType, PM_EXIT);
    EXPECT_EQ(last.pTarget, gpPresent);
}
