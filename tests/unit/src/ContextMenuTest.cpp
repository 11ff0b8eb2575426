#include "DisplayAPI/ContextMenu.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayPrivate.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Mocks.h"
#include "doubles/Screen.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int CREATE = 0, DESTROY = 1, SHOW = 2, ADD_WITH_ICON = 5, CLEAR = 6, SET_SYS_WINDOW_SIZE = 16;
constexpr int SUB_VARIANT_WITHOUT_WAY_BACK = 3;

class ContextMenuTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~ContextMenuTest() override { HardwareVersion::setHWSubVariant(0); }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// Makes a menu on the given hardware and tells what its private side has been called with.
    std::vector<std::string> made(int variant, bool wayBack)
    {
        test::setHardwareVariant(variant);
        run([&] { menu = std::make_unique<ContextMenu>(wayBack); });
        expectAllOnGuiThread();
        return reached();
    }

    std::unique_ptr<ContextMenu> menu;
    MenuCommand call{"Call", 1}, send{"Send", 2};
};

TEST_P(ContextMenuTest, FullPanelsSideKnowsNoWayBack)
{
    const auto calls = made(1, true);
    EXPECT_THAT(calls, ElementsAre(callText("ContextMenuPrivate", menu.get())));
    EXPECT_EQ(menu->getName(), "ContextMenu");
}

TEST_P(ContextMenuTest, EveryOtherPanelsSideIsToldOfTheWayBack)
{
    for (const int variant : {0, 2})
        for (const bool wayBack : {true, false}) {
            menu.reset();
            reached();
            const auto calls = made(variant, wayBack);
            EXPECT_THAT(calls, ElementsAre(callText("ContextMenuPrivateWP1", menu.get(), wayBack)));
        }
}

TEST_P(ContextMenuTest, HardwareOfSubVariantThreeHasNoWayBack)
{
    HardwareVersion::setHWSubVariant(SUB_VARIANT_WITHOUT_WAY_BACK);
    const auto calls = made(0, true);
    EXPECT_THAT(calls, ElementsAre(callText("ContextMenuPrivateWP1", menu.get(), false)));
}

TEST_P(ContextMenuTest, DestructorDeletesThePrivateSide)
{
    made(1, false);
    run([&] { menu.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~ContextMenuPrivate()"));
}

TEST_P(ContextMenuTest, NewCommandsAreClearedAndAddedInOrder)
{
    made(1, false);
    run([&] { menu->setCommands({&send, nullptr, &call}); });
    expectAllOnGuiThread();
    const auto added = [](const Command* command) {
        return callText("ContextMenuPrivate::addCommandWithIcon", static_cast<const void*>(command));
    };
    EXPECT_THAT(reached(),
                ElementsAre("ContextMenuPrivate::clearCommands()", added(&send), added(nullptr), added(&call)));
}

TEST_P(ContextMenuTest, NoNewCommandsClear)
{
    made(1, false);
    run([&] { menu->setCommands({}); });
    EXPECT_THAT(reached(), ElementsAre("ContextMenuPrivate::clearCommands()"));
}

TEST_P(ContextMenuTest, TranslatorHasNoEffect)
{
    made(1, false);
    doubles::MockTranslator translator;
    run([&] { menu->setTranslator(&translator); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(ContextMenuTest, DisplayGetsThePrivateSideOrNone)
{
    made(1, false);
    EXPECT_NE(menu->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *menu, DESTROY);
    EXPECT_EQ(menu->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *menu, DESTROY);
    run([&] { EXPECT_EQ(menu->getSelectedIndex(), 0); });
}

INSTANTIATE_TEST_SUITE_P(CalledFrom, ContextMenuTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const auto& tested) { return test::nameOf(tested.param); });

/// With the GUI thread in the test's hands.
class QueuedContextMenuTest : public test::SteppedTest {
protected:
    QueuedContextMenuTest() { recorder.clear(); }

    doubles::Recorder& recorder = doubles::Recorder::instance();
    MenuCommand call{"Call", 1};
};

TEST_F(QueuedContextMenuTest, MakingPostsAndDeletingWaits)
{
    test::Worker worker([] { ContextMenu menu(false); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, DESTROY));
    gui.runAll();
}

TEST_F(QueuedContextMenuTest, MenuWhoseCreationIsStillQueuedAnswersZero)
{
    auto menu = std::unique_ptr<ContextMenu>();
    test::onOtherThread([&] { menu = std::make_unique<ContextMenu>(false); });
    EXPECT_EQ(menu->getPrivateImpl(), nullptr);
    EXPECT_EQ(menu->getSelectedIndex(), 0);
    EXPECT_EQ(menu->getSelectedCommand(), nullptr);
    gui.runAll();
    EXPECT_NE(menu->getPrivateImpl(), nullptr);
}

TEST_F(QueuedContextMenuTest, ClearingDiscardsWhatIsQueuedAndWakesWhoWaits)
{
    ContextMenu menu(false);
    test::Worker adding([&] { menu.addCommandWithIcon(&call, nullptr, false); });
    gui.waitForQueued(1);
    test::Worker clearing([&] { menu.clearCommands(); });
    adding.join();
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CLEAR));
    gui.runAll();
    EXPECT_EQ(recorder.count("ContextMenuPrivate::addCommand"), 0);
    EXPECT_EQ(recorder.count("ContextMenuPrivate::clearCommands"), 1);
}

TEST_F(QueuedContextMenuTest, ClearingDiscardsAdditionsRemovalsAndDefaultsAlone)
{
    ContextMenu menu(false);
    for (int code = SHOW; code <= SET_SYS_WINDOW_SIZE; ++code)
        test::onOtherThread([&] { menu.postEventAsync(new GuiRequestEvent(&menu, code)); });
    test::Worker clearing([&] { menu.clearCommands(); });
    EXPECT_TRUE(clearing.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2, 3, 8, 9, 10, 11, 12, 13, 14, 15, 16, CLEAR));
    gui.runAll();
}

TEST_F(QueuedContextMenuTest, ClearingOnTheGuiThreadDiscardsNothing)
{
    ContextMenu menu(false);
    test::Worker adding([&] { menu.addCommandWithIcon(&call, nullptr, false); });
    gui.waitForQueued(1);
    menu.clearCommands();
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(ADD_WITH_ICON));
    gui.runAll();
    EXPECT_EQ(recorder.count("ContextMenuPrivate::addCommandWithIcon"), 1);
}

TEST_F(QueuedContextMenuTest, UnknownRequestIsReportedAndNotCompleted)
{
    ContextMenu menu(false);
    GuiRequestEvent request(&menu, 17);
    testing::internal::CaptureStderr();
    menu.processGuiRequest(request);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "./src/ContextMenu:292 received unknown gui request 17\n");
}

TEST_F(QueuedContextMenuTest, ScreenBelowIsCurrentWhenAMenuIsDeleted)
{
    Display display(new DisplayPrivate(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true));
    doubles::Screen calls("calls");
    auto menu = std::make_unique<ContextMenu>(false);
    display.show();
    display.setCurrent(&calls);
    display.setCurrent(menu.get());
    EXPECT_EQ(display.getCurrent(), menu.get());
    menu.reset();
    EXPECT_EQ(display.getCurrent(), &calls);
}

} // namespace
