// How a context menu comes to the screen and leaves it, and whom it tells.

#include "unit/host/variants/menu/ContextMenuVariantTest.h"

#include "DisplayAPI/DisplayEventIfc.h"
#include "support/Keys.h"

#include <functional>
#include <utility>

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int TIMEOUT = 5000;

class Observer : public DisplayEventIfc {
public:
    void displayChanged(std::string) override { ++changes; }

    int changes = 0;
};

class ContextMenuLifeTest : public test::ContextMenuVariantTest {
protected:
    ContextMenuLifeTest()
    {
        menu->setCommands({call.get(), edit.get()});
        display.subscribe(&observer);
    }

    ~ContextMenuLifeTest() override { display.unSubscribe(); }

    void expectListHasTheUser()
    {
        EXPECT_EQ(display.getCurrent(), &list);
        EXPECT_EQ(gpPresent->Focus(), list.getPrivateImpl()->getWidget());
        const int before = list.getSelectedIndex();
        press(before == 0 ? PK_DOWN : PK_UP);
        EXPECT_NE(list.getSelectedIndex(), before);
    }

    /// How often the observer has been told since the last time.
    int changes() { return std::exchange(observer.changes, 0); }

    Observer observer;
};

TEST_P(ContextMenuLifeTest, LiesOverTheScreenAndHasTheUser)
{
    open();
    EXPECT_FALSE(menu->getPrivateImpl()->hideOldWidgetOnFocusGained());
    EXPECT_EQ(gpPresent->Focus(), menu->getPrivateImpl()->getWidget());
    EXPECT_NE(list.getPrivateImpl()->getWidget()->Parent(), nullptr);
}

TEST_P(ContextMenuLifeTest, OkRaisesTheCommandAndGivesTheUserBack)
{
    open();
    press(PK_DOWN);
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("Edit"));
    EXPECT_EQ(menu->getSelectedCommand(), edit.get());
    EXPECT_FALSE(isOnScreen());
    expectListHasTheUser();
}

TEST_P(ContextMenuLifeTest, RaisesForItsFacade)
{
    EXPECT_CALL(listener, postCommandAction(call.get(), menu.get()));
    open();
    press(PK_OK);
}

TEST_P(ContextMenuLifeTest, RemovedListenerHearsNothing)
{
    menu->removeCommandListener(&listener);
    menu->removeCommandListener(nullptr);
    menu->addCommandListener(nullptr);
    open();
    press(PK_OK);
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(ContextMenuLifeTest, LeftAndTheRowThatGoesBackTellNoListener)
{
    open();
    press(PK_LEFT);
    expectListHasTheUser();
    open();
    press(PK_UP);
    press(isSmall() ? PK_OK : PK_LEFT);
    expectListHasTheUser();
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(ContextMenuLifeTest, RightIsOkWhereThatIsAskedFor)
{
    open();
    press(PK_RIGHT);
    EXPECT_TRUE(isOnScreen());
    menu->setRightArrowEqualsOK(true);
    press(PK_RIGHT);
    EXPECT_THAT(raised, ElementsAre("Call"));
    EXPECT_FALSE(isOnScreen());
    menu->setRightArrowEqualsOK(false);
    open();
    press(PK_RIGHT);
    EXPECT_TRUE(isOnScreen());
}

TEST_P(ContextMenuLifeTest, RightRaisesTheSecondCommandOfARow)
{
    menu->clearCommands();
    menu->addCommand(call.get(), edit.get(), false);
    open();
    press(PK_RIGHT);
    EXPECT_THAT(raised, ElementsAre("Edit"));
    open();
    menu->setRightArrowEqualsOK(true);
    press(PK_RIGHT);
    EXPECT_THAT(raised, ElementsAre("Edit", "Call"));
}

TEST_P(ContextMenuLifeTest, HidesWhenItsTimeIsUpAndTellsTheDisplayAlone)
{
    menu->setAutoHideTimeout(TIMEOUT);
    open();
    time.pass(TIMEOUT - 1);
    EXPECT_TRUE(isOnScreen());
    changes();
    time.pass(1);
    EXPECT_FALSE(isOnScreen());
    EXPECT_GT(changes(), 0);
    EXPECT_THAT(raised, IsEmpty());
    expectListHasTheUser();
}

TEST_P(ContextMenuLifeTest, KeysBeginItsTimeAnew)
{
    menu->setAutoHideTimeout(TIMEOUT);
    open();
    for (const int key : {static_cast<int>(PK_DOWN), static_cast<int>(PK_STAR)}) {
        time.pass(TIMEOUT - 1);
        press(key);
    }
    time.pass(TIMEOUT - 1);
    EXPECT_TRUE(isOnScreen());
    time.pass(1);
    EXPECT_FALSE(isOnScreen());
}

TEST_P(ContextMenuLifeTest, KeysWithoutEffectBeginItsTimeAnewToo)
{
    menu->setCommands({});
    menu->addCommand(call.get(), nullptr, false);
    menu->setAutoHideTimeout(TIMEOUT);
    open();
    for (const int key : {static_cast<int>(PK_DOWN), static_cast<int>(PK_UP)}) {
        time.pass(TIMEOUT - 1);
        press(key);
    }
    time.pass(TIMEOUT - 1);
    EXPECT_TRUE(isOnScreen());
}

TEST_P(ContextMenuLifeTest, TimeIsSetWhileItIsShown)
{
    open();
    menu->setAutoHideTimeout(TIMEOUT);
    menu->setAutoHideTimeout(0);
    time.pass(10 * TIMEOUT);
    EXPECT_TRUE(isOnScreen());
    menu->setAutoHideTimeout(-1);
    time.pass(10 * TIMEOUT);
    EXPECT_TRUE(isOnScreen());
    menu->setAutoHideTimeout(1);
    time.pass(1);
    EXPECT_FALSE(isOnScreen());
}

TEST_P(ContextMenuLifeTest, NoTimeRunsWhileItIsNotShown)
{
    menu->setAutoHideTimeout(TIMEOUT);
    EXPECT_FALSE(time.isTimerRunning());
    open();
    menu->dismiss();
    EXPECT_FALSE(time.isTimerRunning());
    open();
    press(PK_OK);
    EXPECT_FALSE(time.isTimerRunning());
}

TEST_P(ContextMenuLifeTest, TimeRunsOnUnderAnotherPopup)
{
    menu->setAutoHideTimeout(TIMEOUT);
    open();
    ContextMenu other(true);
    display.setCurrent(&other);
    time.pass(TIMEOUT);
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(display.getCurrent(), &other);
    other.dismiss();
    expectListHasTheUser();
}

TEST_P(ContextMenuLifeTest, StaysWhenItLosesTheFocus)
{
    open();
    ContextMenu other(true);
    display.setCurrent(&other);
    EXPECT_TRUE(isOnScreen());
    other.dismiss();
    EXPECT_EQ(display.getCurrent(), menu.get());
    display.hide();
    display.show();
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(display.getCurrent(), menu.get());
}

TEST_P(ContextMenuLifeTest, UsersSelectionStaysWhileAnotherPopupLiesOverIt)
{
    open();
    press(PK_DOWN);
    ContextMenu other(true);
    display.setCurrent(&other);
    other.dismiss();
    display.hide();
    display.show();
    EXPECT_EQ(menu->getSelectedIndex(), 1);
    EXPECT_TRUE(menu->selectionHasChanged());
}

TEST_P(ContextMenuLifeTest, GoesWithTheScreenThatItLiesOver)
{
    menu->setAutoHideTimeout(TIMEOUT);
    open();
    List other(0);
    display.setCurrent(&other);
    EXPECT_FALSE(isOnScreen());
    time.pass(TIMEOUT);
    EXPECT_EQ(display.getCurrent(), &other);
    display.setCurrent(nullptr);
}

TEST_P(ContextMenuLifeTest, ShowPutsItOnTheDisplay)
{
    menu->show();
    EXPECT_EQ(display.getCurrent(), menu.get());
    menu->dismiss();
    expectListHasTheUser();
    menu->show();
    EXPECT_EQ(display.getCurrent(), menu.get());
    ContextMenu other(true);
    other.show();
    EXPECT_EQ(display.getCurrent(), &other);
    menu->show();
    EXPECT_EQ(display.getCurrent(), menu.get());
    menu->dismiss();
    EXPECT_EQ(display.getCurrent(), &other);
}

TEST_P(ContextMenuLifeTest, ShowBeginsItsTimeAnewWhereItIsShown)
{
    menu->setAutoHideTimeout(TIMEOUT);
    menu->show();
    press(PK_DOWN);
    time.pass(TIMEOUT - 1);
    menu->show();
    EXPECT_EQ(menu->getSelectedIndex(), 1);
    time.pass(TIMEOUT - 1);
    EXPECT_TRUE(isOnScreen());
}

TEST_P(ContextMenuLifeTest, DismissingWhatIsNotShownDoesNothing)
{
    menu->dismiss();
    EXPECT_EQ(display.getCurrent(), &list);
    open();
    menu->dismiss();
    changes();
    menu->dismiss();
    EXPECT_EQ(changes(), 0);
    expectListHasTheUser();
}

TEST_P(ContextMenuLifeTest, ObserverLearnsOfItsComingItsMovingAndItsGoing)
{
    open();
    EXPECT_GT(changes(), 0);
    press(PK_DOWN);
    EXPECT_EQ(changes(), 1);
    ContextMenu other(true);
    display.setCurrent(&other);
    changes();
    other.dismiss();
    EXPECT_EQ(changes(), 1) << "the menu below announces itself";
    menu->dismiss();
    EXPECT_EQ(changes(), 1) << "the list below announces itself";
    menu->addCommand(call.get(), nullptr, false);
    EXPECT_EQ(changes(), 0);
}

TEST_P(ContextMenuLifeTest, ObserverLearnsOfWhatLooksDifferent)
{
    struct Difference {
        const char* what;
        int times;
        std::function<void()> make;
    };
    KestrelApplication& application = *KestrelApplication::getCurrentApplication();
    open();
    changes();
    for (const auto& [what, times, make] : std::vector<Difference>{
             {"row", 1, [&] { menu->addCommand(edit.get(), nullptr, false); }},
             {"default", 1, [&] { menu->setDefaultCommand(edit.get()); }},
             {"language, which is the list's as well", 2, [&] { application.setLocale(test::peg("de")); }},
             {"status lines", 1, [&] { menu->setSysWindowSize(1); }},
             {"no rows", 1, [&] { menu->clearCommands(); }},
         }) {
        make();
        EXPECT_EQ(changes(), times) << what;
    }
}

TEST_P(ContextMenuLifeTest, ShownMenuMayBeDeleted)
{
    menu->setAutoHideTimeout(TIMEOUT);
    open();
    menu.reset();
    expectListHasTheUser();
    time.pass(TIMEOUT);
    display.localeChanged("de");
}

TEST_P(ContextMenuLifeTest, ListenerMayDeleteItsCommandsWhileItIsTold)
{
    ON_CALL(listener, postCommandAction).WillByDefault([this](auto*, auto*) {
        call.reset();
        edit.reset();
        menu->clearCommands();
    });
    open();
    press(PK_OK);
    expectListHasTheUser();
}

TEST_P(ContextMenuLifeTest, MenuOutlivesItsDisplay)
{
    auto second =
        std::make_unique<Display>(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
    second->show();
    second->setCurrent(menu.get());
    second.reset();
    menu->dismiss();
    menu->addCommand(call.get(), nullptr, false);
    menu->setSysWindowSize(1);
    EXPECT_EQ(menu->getSelectedIndex(), 0);
    EXPECT_EQ(menu->getSelectedCommand(), call.get()) << "the display has given the menu's box back";
}

INSTANTIATE_ON_PANELS(ContextMenuLifeTest);

} // namespace
