#include "DisplayAPI/PopupProgress.h"

#include "DisplayAPI/MenuCommand.h"
#include "doubles/Mocks.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/PopupFacadeTest.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using PopupProgressTest = test::PopupFacadeTest<PopupProgress>;

TEST_P(PopupProgressTest, EachPanelHasItsOwnSideWhichIsToldTheType)
{
    const auto type = static_cast<PopupProgress::ProgressType>(77);
    EXPECT_THAT(made(1, type), ElementsAre("PopupProgressPrivate(popup, 77)"));
    for (const int variant : {0, 2})
        EXPECT_THAT(made(variant, type), ElementsAre("PopupProgressPrivateWP1(popup, 77)"));
    EXPECT_EQ(popup->getName(), "PopupProgress");
}

TEST_P(PopupProgressTest, TypeIsFourWhereNoneIsGiven)
{
    EXPECT_THAT(made(1), ElementsAre("PopupProgressPrivate(popup, 4)"));
    EXPECT_THAT(made(0), ElementsAre("PopupProgressPrivateWP1(popup, 4)"));
}

TEST_P(PopupProgressTest, WithoutAnApplicationItHasNoPrivateSide)
{
    KestrelApplication* const application = KestrelApplication::getCurrentApplication();
    gui.call([] { KestrelApplication::setCurrentApplication(nullptr); });
    run([&] { popup = std::make_unique<PopupProgress>(); });
    EXPECT_EQ(popup->getPrivateImpl(), nullptr);
    EXPECT_EQ(popup->getName(), "PopupProgress");
    run([&] {
        popup->setText("Update");
        popup->show();
        popup.reset();
    });
    gui.call([&] { KestrelApplication::setCurrentApplication(application); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(PopupProgressTest, DestructorDeletesThePrivateSide)
{
    made(1);
    EXPECT_NE(popup->getPrivateImpl(), nullptr);
    run([&] { popup.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~PopupProgressPrivate()"));
}

TEST_P(PopupProgressTest, PrivateSideIsDeletedOnce)
{
    made(0);
    carryOut(GetParam(), *popup, 1);
    EXPECT_EQ(popup->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *popup, 1);
    EXPECT_THAT(reached(), ElementsAre("~PopupProgressPrivateWP1()"));
}

TEST_P(PopupProgressTest, CommandsListenersAndTheSwitchOfTheBarHaveNoEffect)
{
    made(1);
    MenuCommand command("Stop", 1);
    testing::NiceMock<doubles::MockCommandListener> listener;
    run([&] {
        popup->addCommand(&command);
        popup->clearCommands();
        popup->addCommandListener(&listener);
        popup->displayProgressBar(false);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(PopupProgressTest);

using QueuedPopupProgressTest = test::SteppedTest;

TEST_F(QueuedPopupProgressTest, MakingWaitsAndSoDoesDeleting)
{
    const test::Worker worker([] { PopupProgress popup(PopupProgress::BAR); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(0));
    gui.step();
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
}

} // namespace
