#include "DisplayAPI/PopupDialer.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialerPrivateIfc.h"
#include "DisplayPrivate.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Screen.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "utilities/TranslationInfo.h"
#include "variants/popup/PopupDialerPrivate.h"
#include "widgets/KestrelApplication.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int CREATE = 0, DESTROY = 1, DISMISS = 13, ADD_COMMAND = 14, CLEAR = 17, LAST = 28;

class PopupDialerTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// Makes a dialer on the given hardware and tells what its private side has been called with.
    std::vector<std::string> made(int variant, bool wayBack, int number)
    {
        test::setHardwareVariant(variant);
        run([&] { dialer = std::make_unique<PopupDialer>(wayBack, number); });
        expectAllOnGuiThread();
        return reached();
    }

    std::unique_ptr<PopupDialer> dialer;
};

TEST_P(PopupDialerTest, FullPanelsSideIsNotToldOfTheFlag)
{
    for (const bool flag : {true, false}) {
        dialer.reset();
        reached();
        const auto calls = made(1, flag, 3);
        EXPECT_THAT(calls, ElementsAre(callText("PopupDialerPrivate", dialer.get())));
        EXPECT_EQ(dialer->getName(), "PopupDialer");
    }
}

TEST_P(PopupDialerTest, EveryOtherPanelsSideIsToldOfTheFlag)
{
    for (const int variant : {0, 2})
        for (const bool flag : {true, false}) {
            dialer.reset();
            reached();
            const auto calls = made(variant, flag, 3);
            EXPECT_THAT(calls, ElementsAre(callText("PopupDialerPrivateWP1", dialer.get(), flag)));
        }
}

TEST_P(PopupDialerTest, NumberHasNoEffect)
{
    for (const int number : {0, 99}) {
        dialer.reset();
        reached();
        const auto calls = made(0, true, number);
        EXPECT_THAT(calls, ElementsAre(callText("PopupDialerPrivateWP1", dialer.get(), true)));
    }
}

TEST_P(PopupDialerTest, AdoptedSideIsUsedAndDeletedWithTheDialer)
{
    PopupDialerPrivateIfc* side = nullptr;
    gui.call([&] { side = new PopupDialerPrivateWP1(nullptr, false); });
    reached();
    run([&] {
        dialer = std::make_unique<PopupDialer>(side);
        dialer->setText("Number?");
        EXPECT_EQ(dialer->getPrivateImpl(), side);
        EXPECT_EQ(dialer->getName(), "PopupDialer");
        dialer.reset();
    });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("PopupDialerPrivateWP1::setText(\"Number?\")", "~PopupDialerPrivateWP1()"));
}

TEST_P(PopupDialerTest, DestructorDeletesThePrivateSide)
{
    made(1, false, 3);
    run([&] { dialer.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~PopupDialerPrivate()"));
}

TEST_P(PopupDialerTest, DisplayGetsThePrivateSideOrNone)
{
    made(1, false, 3);
    EXPECT_NE(dialer->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *dialer, DESTROY);
    EXPECT_EQ(dialer->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *dialer, DESTROY);
}

/// The sanitizers would tell of the translation that stays behind.
TEST_P(PopupDialerTest, AlternativePrefixAndScrollingHaveNoEffect)
{
    made(1, false, 3);
    run([&] {
        dialer->setAltEditPrefixText("x");
        dialer->setAltEditPrefixText(new TranslationInfo("Key", nullptr));
        dialer->setAltEditPrefixText(static_cast<TranslationInfo*>(nullptr));
        dialer->setNoScroll();
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(PopupDialerTest, SetterIsSeenByTheQueryBehindIt)
{
    made(1, false, 3);
    run([&] {
        dialer->setLineEditText("030");
        dialer->getLineEditText();
    });
    EXPECT_THAT(reached(),
                ElementsAre("PopupDialerPrivate::setLineEditText(\"030\")", "PopupDialerPrivate::getLineEditText()"));
}

TEST_P(PopupDialerTest, StaticCommandsAreTwoAndStayTheSame)
{
    run([] {
        EXPECT_EQ(PopupDialer::BackCommand(), PopupDialer::BackCommand());
        EXPECT_EQ(PopupDialer::EditFieldShownCommand(), PopupDialer::EditFieldShownCommand());
        EXPECT_NE(PopupDialer::BackCommand(), PopupDialer::EditFieldShownCommand());
    });
    EXPECT_EQ(PopupDialer::BackCommand()->getType(), 1);
    EXPECT_EQ(PopupDialer::EditFieldShownCommand()->getType(), 7);
    EXPECT_EQ(PopupDialer::BackCommand()->getText(), "");
    EXPECT_EQ(PopupDialer::EditFieldShownCommand()->getText(), "");
}

INSTANTIATE_TEST_SUITE_P(CalledFrom, PopupDialerTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const auto& tested) { return test::nameOf(tested.param); });

/// With the GUI thread in the test's hands.
class QueuedPopupDialerTest : public test::SteppedTest {
protected:
    QueuedPopupDialerTest() { recorder.clear(); }

    doubles::Recorder& recorder = doubles::Recorder::instance();
    MenuCommand dial{"Dial", 1};
};

TEST_F(QueuedPopupDialerTest, MakingPostsAndDeletingWaits)
{
    test::Worker worker([] { PopupDialer dialer(true, 3); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, DESTROY));
    gui.runAll();
}

TEST_F(QueuedPopupDialerTest, NameIsThereBeforeThePrivateSide)
{
    auto dialer = std::unique_ptr<PopupDialer>();
    test::onOtherThread([&] { dialer = std::make_unique<PopupDialer>(false, 3); });
    EXPECT_EQ(dialer->getPrivateImpl(), nullptr);
    EXPECT_EQ(dialer->getName(), "PopupDialer");
    gui.runAll();
    EXPECT_NE(dialer->getPrivateImpl(), nullptr);
}

TEST_F(QueuedPopupDialerTest, SeveralDismissalsThatAreQueuedAreOne)
{
    PopupDialer dialer(true, 3);
    test::onOtherThread([&] {
        for (int i = 0; i < 3; ++i)
            dialer.dismiss();
    });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(DISMISS));
    gui.runAll();
    EXPECT_EQ(recorder.count("PopupDialerPrivate::dismiss"), 1);
}

TEST_F(QueuedPopupDialerTest, ClearingDiscardsWhatIsQueuedAndWakesWhoWaits)
{
    PopupDialer dialer(true, 3);
    test::Worker adding([&] { dialer.addCommand(&dial); });
    gui.waitForQueued(1);
    test::Worker clearing([&] { dialer.clearCommands(); });
    adding.join();
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CLEAR));
    gui.runAll();
    EXPECT_EQ(recorder.count("PopupDialerPrivate::addCommand"), 0);
    EXPECT_EQ(recorder.count("PopupDialerPrivate::clearCommands"), 1);
}

TEST_F(QueuedPopupDialerTest, ClearingDiscardsChangesOfCommandsAlone)
{
    PopupDialer dialer(true, 3);
    for (int code = 2; code <= LAST; ++code)
        test::onOtherThread([&] { dialer.postEventAsync(new GuiRequestEvent(&dialer, code)); });
    test::Worker clearing([&] { dialer.clearCommands(); });
    EXPECT_TRUE(clearing.isBlocked());
    EXPECT_THAT(gui.queuedCodes(),
                ElementsAre(2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, CLEAR));
    gui.runAll();
}

TEST_F(QueuedPopupDialerTest, OnTheGuiThreadNothingIsDiscarded)
{
    PopupDialer dialer(true, 3);
    test::onOtherThread([&] { dialer.dismiss(); });
    test::Worker adding([&] { dialer.addCommand(&dial); });
    gui.waitForQueued(2);
    dialer.clearCommands();
    dialer.dismiss();
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(DISMISS, ADD_COMMAND));
    gui.runAll();
}

/// The sanitizers would tell of the translation that stays behind.
TEST_F(QueuedPopupDialerTest, TranslationThatNeverArrivesIsDeleted)
{
    PopupDialer dialer(true, 3);
    test::onOtherThread([&] { dialer.setText(new TranslationInfo("Key", nullptr)); });
    std::set<int> codes{5};
    dialer.purgeOwnMessage(&codes);
    gui.runAll();
    EXPECT_EQ(recorder.count("PopupDialerPrivate::setText"), 0);
}

TEST_F(QueuedPopupDialerTest, ScreenBelowIsCurrentWhenADialerIsDeleted)
{
    Display display(new DisplayPrivate(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true));
    doubles::Screen calls("calls");
    auto dialer = std::make_unique<PopupDialer>(false, 3);
    display.show();
    display.setCurrent(&calls);
    display.setCurrent(dialer.get());
    EXPECT_EQ(display.getCurrent(), dialer.get());
    dialer.reset();
    EXPECT_EQ(display.getCurrent(), &calls);
}

TEST_F(QueuedPopupDialerTest, WithoutAnApplicationItIsTheFullPanels)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    KestrelApplication::setCurrentApplication(nullptr);
    const PopupDialer dialer(true, 3);
    KestrelApplication::setCurrentApplication(application);
    EXPECT_EQ(recorder.texts().front(), callText("PopupDialerPrivate", &dialer));
}

} // namespace
