#include "DisplayAPI/PopupNotification.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupConfirm.h"
#include "doubles/Mocks.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/PopupFacadeTest.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/Threadable.h"

using namespace DisplayAPI;
using doubles::callText;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using PopupNotificationTest = test::PopupFacadeTest<PopupNotification>;

TEST_P(PopupNotificationTest, EachPanelHasItsOwnSide)
{
    EXPECT_THAT(made(1), ElementsAre("PopupNotificationPrivate(popup)"));
    for (const int variant : {0, 2})
        EXPECT_THAT(made(variant), ElementsAre("PopupNotificationPrivateWP1(popup)"));
    EXPECT_EQ(popup->getName(), "PopupNotification");
}

TEST_P(PopupNotificationTest, DestructorDeletesThePrivateSide)
{
    made(1);
    EXPECT_NE(popup->getPrivateImpl(), nullptr);
    run([&] { popup.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~PopupNotificationPrivate()"));
}

TEST_P(PopupNotificationTest, PrivateSideIsDeletedOnce)
{
    made(0);
    carryOut(GetParam(), *popup, 1);
    EXPECT_EQ(popup->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *popup, 1);
    EXPECT_THAT(reached(), ElementsAre("~PopupNotificationPrivateWP1()"));
}

TEST_P(PopupNotificationTest, HiddenCommandIsOneWithItsLabelAndId)
{
    run([] { EXPECT_EQ(PopupNotification::HIDDEN_COMMAND(), PopupNotification::HIDDEN_COMMAND()); });
    EXPECT_NE(static_cast<Command*>(PopupNotification::HIDDEN_COMMAND()),
              static_cast<Command*>(PopupConfirm::HIDDEN_COMMAND()));
    EXPECT_EQ(PopupNotification::HIDDEN_COMMAND()->getText(), "WIDGET_IS_HIDDEN_EVENT");
    EXPECT_EQ(PopupNotification::HIDDEN_COMMAND()->getId(), 1001012345u);
}

TEST_P(PopupNotificationTest, PartyIsTheSecondLine)
{
    made(1);
    run([&] {
        popup->setPartyDetails({"Ada", "030"});
        popup->setPartyDetails({"", "030"});
        popup->setPartyDetails({});
    });
    EXPECT_THAT(reached(), ElementsAre("PopupNotificationPrivate::setLine2Text(\"Ada\")",
                                       "PopupNotificationPrivate::setLine2Text(\"030\")",
                                       "PopupNotificationPrivate::setLine2Text(\"translated Caller.Unknown.XXX\")"));
}

/// Not carried to the GUI thread: they run where they are called.
TEST_P(PopupNotificationTest, ListenersGoToThePrivateSideDirectly)
{
    made(1);
    testing::NiceMock<doubles::MockCommandListener> listener;
    CommandListener* const heard = &listener;
    unsigned int thread = 0;
    run([&] {
        thread = Threadable::currentThreadId();
        popup->addCommandListener(heard);
        popup->removeCommandListener(heard);
    });
    for (const doubles::Call& call : recorder.calls())
        EXPECT_EQ(call.thread, thread);
    EXPECT_THAT(reached(), ElementsAre(callText("PopupNotificationPrivate::addCommandListener", heard),
                                       callText("PopupNotificationPrivate::removeCommandListener", heard)));
    carryOut(GetParam(), *popup, 1);
    reached();
    run([&] {
        popup->addCommandListener(heard);
        popup->removeCommandListener(heard);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(PopupNotificationTest);

using QueuedPopupNotificationTest = test::SteppedTest;

TEST_F(QueuedPopupNotificationTest, MakingWaitsAndSoDoesDeleting)
{
    const test::Worker worker([] { PopupNotification popup; });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(0));
    gui.step();
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
}

} // namespace
