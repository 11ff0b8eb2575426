#include "DisplayAPI/PopupCall.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupCallPrivateIfc.h"
#include "doubles/Mocks.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/PopupFacadeTest.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/Threadable.h"
#include "utilities/TranslationInfo.h"
#include "variants/popup/PopupCallPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using PopupCallTest = test::PopupFacadeTest<PopupCall>;

TEST_P(PopupCallTest, EachPanelHasItsOwnSideWithoutAPicture)
{
    const std::string nothing = doubles::printed(static_cast<const void*>(nullptr));
    EXPECT_THAT(made(1), ElementsAre("PopupCallPrivate(popup, " + nothing + ")"));
    for (const int variant : {0, 2})
        EXPECT_THAT(made(variant), ElementsAre("PopupCallPrivateWP1(popup, " + nothing + ")"));
    EXPECT_EQ(popup->getName(), "PopupCall");
}

TEST_P(PopupCallTest, AdoptedSideIsUsedAndDeletedWithThePopup)
{
    PopupCallPrivateIfc* side = nullptr;
    gui.call([&] { side = new PopupCallPrivateWP1(nullptr, nullptr); });
    reached();
    run([&] {
        popup = std::make_unique<PopupCall>(side);
        popup->setText("Ada");
        EXPECT_EQ(popup->getPrivateImpl(), side);
        popup.reset();
    });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("PopupCallPrivateWP1::setText(\"Ada\")", "~PopupCallPrivateWP1()"));
}

TEST_P(PopupCallTest, PrivateSideIsDeletedOnce)
{
    made(0);
    carryOut(GetParam(), *popup, 1);
    EXPECT_EQ(popup->getPrivateImpl(), nullptr);
    run([&] { popup.reset(); });
    EXPECT_THAT(reached(), ElementsAre("~PopupCallPrivateWP1()"));
}

TEST_P(PopupCallTest, PartiesAreTheLines)
{
    made(1);
    run([&] {
        popup->setLine1Text(CallPartyIdentifier("Ada", "030"));
        popup->setLine2Text(CallPartyIdentifier("", "030"));
        popup->setLine1Text(CallPartyIdentifier());
        popup->setLine2Text(CallPartyIdentifier());
    });
    EXPECT_THAT(reached(), ElementsAre("PopupCallPrivate::setText(\"Ada\")", "PopupCallPrivate::setLine2Text(\"030\")",
                                       "PopupCallPrivate::setText(\"translated Caller.Unknown.XXX\")",
                                       "PopupCallPrivate::setLine2Text(\"translated Caller.Unknown.XXX\")"));
}

TEST_P(PopupCallTest, DetailsNeedNoSecondPartyAndNoTranslation)
{
    made(1);
    CallPartyIdentifier party("Ada", "030");
    run([&] { popup->setPopupCallDetails(party, nullptr, FORWARDED_BUSY, "", nullptr); });
    EXPECT_THAT(reached(),
                ElementsAre("PopupCallPrivate::setPopupCallDetails(\"Ada\", \"nobody\", 2, \"\", \"nothing\")"));
}

TEST_P(PopupCallTest, CommandsAreClearedThenAddedInOrder)
{
    made(1);
    MenuCommand one("One", 1), two("Two", 2);
    run([&] { popup->setCommands({&one, &two}); });
    EXPECT_THAT(reached(),
                ElementsAre("PopupCallPrivate::clearCommands()", callText("PopupCallPrivate::addCommand", &one),
                            callText("PopupCallPrivate::addCommand", &two)));
}

TEST_P(PopupCallTest, StimulusHasNoEffectAndItsTranslationStaysTheCallers)
{
    made(1);
    TranslationInfo kept("Key", nullptr);
    run([&] {
        popup->setStimulusText("Line 2");
        popup->setStimulusText(&kept);
        popup->clearStimulusText();
        popup->showStimulusTextInHeader(true);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

/// Not carried to the GUI thread: they run where they are called.
TEST_P(PopupCallTest, ListenersGoToThePrivateSideDirectly)
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
    EXPECT_THAT(reached(), ElementsAre(callText("PopupCallPrivate::addCommandListener", heard),
                                       callText("PopupCallPrivate::removeCommandListener", heard)));
    carryOut(GetParam(), *popup, 1);
    reached();
    run([&] {
        popup->addCommandListener(heard);
        popup->removeCommandListener(heard);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_FROM_BOTH_THREADS(PopupCallTest);

using QueuedPopupCallTest = test::SteppedTest;

TEST_F(QueuedPopupCallTest, MakingWaitsAndSoDoesDeleting)
{
    const test::Worker worker([] { PopupCall popup; });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(0));
    gui.step();
    gui.waitForQueued(1);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
}

} // namespace
