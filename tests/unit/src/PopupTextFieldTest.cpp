#include "DisplayAPI/PopupTextField.h"

#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupConfirm.h"
#include "DisplayAPI/PopupNotification.h"
#include "doubles/Mocks.h"
#include "support/HardwareVariant.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/PopupFacadeTest.h"
#include "utilities/Threadable.h"
#include "variants/popup/PopupTextFieldPrivate.h"

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct NoChanges : ItemStateListener {
    void itemStateChanged(Item*) override {}
};

class PopupTextFieldTest : public test::PopupFacadeTest<PopupTextField> {
protected:
    /// Makes a popup on hardware that is called so, and tells how its private side has been made.
    template <typename... Args>
    std::vector<std::string> madeOn(int variant, Args... args)
    {
        const test::HardwareVariant production(variant);
        return made(1, args...);
    }

    std::string side(const char* name, const void* edited, bool flag)
    {
        std::string text = callText(name, edited, flag);
        return text.insert(text.find('(') + 1, "popup, ");
    }

    int somewhere = 0;
    TextField* const field = reinterpret_cast<TextField*>(&somewhere); ///< only handed on
};

TEST_P(PopupTextFieldTest, ProductionDataSaysWhichSideItHasAndTheFlagIsTheSmallOnes)
{
    for (const bool flag : {false, true}) {
        for (const int variant : {0, 1, 8})
            EXPECT_THAT(madeOn(variant, field, flag), ElementsAre(side("PopupTextFieldPrivateWP1", field, flag)));
        for (const int variant : {2, 3, 9})
            EXPECT_THAT(madeOn(variant, field, flag), ElementsAre(side("PopupTextFieldPrivate", field, true)));
    }
    EXPECT_EQ(popup->getName(), "PopupTextField");
}

TEST_P(PopupTextFieldTest, WithoutAFieldItHasASideFromAWorkerAlone)
{
    for (const int variant : {0, 1, 8, 2}) {
        const test::HardwareVariant production(variant);
        run([&] { popup = std::make_unique<PopupTextField>(false); });
        EXPECT_EQ(popup->getPrivateImpl() != nullptr, GetParam() == From::WORKER) << variant;
        EXPECT_EQ(popup->getName(), "PopupTextField");
        run([&] { popup.reset(); });
    }
}

TEST_P(PopupTextFieldTest, WithoutASideEveryOperationIsIgnored)
{
    gui.call([&] { popup = std::make_unique<PopupTextField>(true); });
    MenuCommand save("Save", 1);
    run([&] {
        popup->clearText();
        popup->addCommand(&save);
        popup->setDefaultCommand(&save);
        popup->clearCommands();
        popup->setLabel(nullptr);
        popup->setFieldType(TextField::NAME);
        popup->setTimeout(5);
        popup->dismiss();
        popup->addCommandListener(nullptr);
        popup->removeCommandListener(nullptr);
        popup->addItemStateListener(nullptr);
        popup->removeItemStateListener(nullptr);
        EXPECT_EQ(popup->getText(), "");
    });
    run([&] { popup.reset(); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(PopupTextFieldTest, SideThatIsMadeElsewhereIsAdopted)
{
    PopupTextFieldPrivate* given = nullptr;
    run([&] {
        given = new PopupTextFieldPrivate(nullptr, nullptr);
        popup = std::make_unique<PopupTextField>(given);
    });
    EXPECT_EQ(popup->getPrivateImpl(),
              static_cast<DisplayablePrivateIfc*>(static_cast<PopupTextFieldPrivateIfc*>(given)));
    reached();
    run([&] { popup.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~PopupTextFieldPrivate()"));
}

TEST_P(PopupTextFieldTest, SideIsMadeOnce)
{
    madeOn(2, field, true);
    carryOut(GetParam(), *popup, 0);
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(PopupTextFieldTest, SideIsDeletedOnce)
{
    madeOn(8, field, true);
    carryOut(GetParam(), *popup, 1);
    EXPECT_EQ(popup->getPrivateImpl(), nullptr);
    run([&] { popup.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~PopupTextFieldPrivateWP1()"));
}

TEST_P(PopupTextFieldTest, HiddenCommandIsOneWithItsLabelAndId)
{
    run([] {
        Command* const hidden = PopupTextField::HIDDEN_COMMAND();
        EXPECT_EQ(hidden, PopupTextField::HIDDEN_COMMAND());
        EXPECT_NE(hidden, PopupConfirm::HIDDEN_COMMAND());
        EXPECT_NE(hidden, PopupNotification::HIDDEN_COMMAND());
    });
    EXPECT_EQ(PopupTextField::HIDDEN_COMMAND()->getText(), "WIDGET_IS_HIDDEN_EVENT");
    EXPECT_EQ(PopupTextField::HIDDEN_COMMAND()->getId(), 1001012345u);
}

/// Not carried to the GUI thread: they run where they are called.
TEST_P(PopupTextFieldTest, ListenersGoToThePrivateSideDirectly)
{
    madeOn(2, field, true);
    testing::NiceMock<doubles::MockCommandListener> listener;
    CommandListener* const heard = &listener;
    NoChanges changes;
    ItemStateListener* const told = &changes;
    unsigned int thread = 0;
    run([&] {
        thread = Threadable::currentThreadId();
        popup->addCommandListener(heard);
        popup->removeCommandListener(heard);
        popup->addItemStateListener(told);
        popup->removeItemStateListener(told);
    });
    for (const doubles::Call& call : recorder.calls())
        EXPECT_EQ(call.thread, thread);
    EXPECT_THAT(reached(), ElementsAre(callText("PopupTextFieldPrivate::addCommandListener", heard),
                                       callText("PopupTextFieldPrivate::removeCommandListener", heard),
                                       callText("PopupTextFieldPrivate::addItemStateListener", told),
                                       callText("PopupTextFieldPrivate::removeItemStateListener", told)));
}

INSTANTIATE_FROM_BOTH_THREADS(PopupTextFieldTest);

using QueuedPopupTextFieldTest = test::SteppedTest;

TEST_F(QueuedPopupTextFieldTest, MakingWaitsAndSoDoesDeleting)
{
    for (const bool hasField : {false, true}) {
        const test::Worker worker([=] {
            const auto popup = hasField ? std::make_unique<PopupTextField>(static_cast<TextField*>(nullptr), true)
                                        : std::make_unique<PopupTextField>(true);
        });
        EXPECT_TRUE(worker.isBlocked());
        EXPECT_THAT(gui.queuedCodes(), ElementsAre(0));
        gui.step();
        gui.waitForQueued(1);
        EXPECT_THAT(gui.queuedCodes(), ElementsAre(1));
        EXPECT_TRUE(worker.isBlocked());
        gui.runAll();
    }
}

} // namespace
