#include "DisplayAPI/PopupConfirm.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupNotification.h"
#include "doubles/Mocks.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/PopupFacadeTest.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using PopupConfirmTest = test::PopupFacadeTest<PopupConfirm>;

TEST_P(PopupConfirmTest, FullPanelsSideIsNotToldOfTheFlag)
{
    for (const bool flag : {true, false}) {
        EXPECT_THAT(made(1, flag), ElementsAre("PopupConfirmPrivate(popup)"));
        EXPECT_EQ(popup->getName(), "PopupConfirm");
    }
}

TEST_P(PopupConfirmTest, EveryOtherPanelsSideIsToldOfTheFlag)
{
    for (const int variant : {0, 2})
        for (const bool flag : {true, false}) {
            EXPECT_THAT(made(variant, flag),
                        ElementsAre("PopupConfirmPrivateWP1(popup, " + doubles::printed(flag) + ")"));
        }
}

TEST_P(PopupConfirmTest, SubVariantTakesTheFlagFromThoseMadeOnTheGuiThreadAlone)
{
    HardwareVersion::setHWSubVariant(3);
    const bool kept = GetParam() == From::WORKER;
    EXPECT_THAT(made(0, true), ElementsAre("PopupConfirmPrivateWP1(popup, " + doubles::printed(kept) + ")"));
    EXPECT_THAT(made(0, false), ElementsAre("PopupConfirmPrivateWP1(popup, false)"));
    HardwareVersion::setHWSubVariant(2);
    EXPECT_THAT(made(0, true), ElementsAre("PopupConfirmPrivateWP1(popup, true)"));
}

TEST_P(PopupConfirmTest, DestructorDeletesThePrivateSide)
{
    made(1, true);
    EXPECT_NE(popup->getPrivateImpl(), nullptr);
    run([&] { popup.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~PopupConfirmPrivate()"));
}

TEST_P(PopupConfirmTest, PrivateSideIsDeletedOnce)
{
    made(0, true);
    carryOut(GetParam(), *popup, 1);
    EXPECT_EQ(popup->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *popup, 1);
    EXPECT_THAT(reached(), ElementsAre("~PopupConfirmPrivateWP1()"));
}

TEST_P(PopupConfirmTest, HiddenCommandIsOneWithItsLabelAndId)
{
    run([] { EXPECT_EQ(PopupConfirm::HIDDEN_COMMAND(), PopupConfirm::HIDDEN_COMMAND()); });
    EXPECT_NE(static_cast<Command*>(PopupConfirm::HIDDEN_COMMAND()),
              static_cast<Command*>(PopupNotification::HIDDEN_COMMAND()));
    EXPECT_EQ(PopupConfirm::HIDDEN_COMMAND()->getText(), "WIDGET_IS_HIDDEN_EVENT");
    EXPECT_EQ(PopupConfirm::HIDDEN_COMMAND()->getId(), 1001012345u);
}

TEST_P(PopupConfirmTest, PartyIsTheFirstLine)
{
    made(1, true);
    run([&] {
        popup->setPartyDetails({"Ada", "030"}, 5);
        popup->setPartyDetails({"", "030"}, 5);
        popup->setPartyDetails({}, 5);
    });
    EXPECT_THAT(reached(), ElementsAre("PopupConfirmPrivate::setText(\"Ada\")", "PopupConfirmPrivate::setText(\"030\")",
                                       "PopupConfirmPrivate::setText(\"translated Caller.Unknown.XXX\")"));
}

TEST_P(PopupConfirmTest, StimulusHasNoEffectAndItsTranslationStaysTheCallers)
{
    made(1, true);
    TranslationInfo kept("Key", nullptr);
    run([&] {
        popup->setStimulusText("Line 2");
        popup->setStimulusText(&kept);
        popup->clearStimulusText();
        popup->showStimulusTextInHeader(true);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(PopupConfirmTest);

using QueuedPopupConfirmTest = test::SteppedTest;

TEST_F(QueuedPopupConfirmTest, MakingWaitsAndSoDoesDeleting)
{
    const test::Worker worker([] { PopupConfirm popup(true); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(0));
    gui.step();
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
}

} // namespace
