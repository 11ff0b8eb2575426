#include "host/widgets/tab/TabWindow.h"

#include "host/lcd/Geometry.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"

#include <gmock/gmock.h>

using host::TabWindow;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class TabWindowTest : public testing::Test {
protected:
    TabWindowTest()
    {
        window->setMessageTarget(&listener);
        for (const char* title : {"All", "Missed"})
            window->bar().append(test::peg(title));
        window->bar().setCurrent(0);
        page->Resize(host::rectAt(7, 7, 50, 50));
        gpPresent->Add(window);
        window->setPage(page);
        window->placeFocus();
    }

    void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }

    test::StartedToolkit toolkit;
    test::Listener listener;
    TabWindow* window = new TabWindow(nullptr, true); ///< the manager's
    PegWindow* page = new PegWindow;                  ///< the window's
};

TEST_F(TabWindowTest, PageHasTheFocusAndTheRoomBelowTheBar)
{
    EXPECT_EQ(gpPresent->Focus(), page);
    EXPECT_EQ(page->Area(), host::rectAt(0, 20, 240, 108));
    EXPECT_FALSE(window->bar().hasFocus());
}

TEST_F(TabWindowTest, KeysThatThePageHasNoUseForAreTheBars)
{
    press(PK_RIGHT);
    press(PK_LEFT);
    press(PK_LEFT);
    press(PK_DOWN);
    press(PK_OK);
    EXPECT_THAT(listener.heard,
                ElementsAre(Pair(PM_CURRENT_CHANGED, 1), Pair(PM_CURRENT_CHANGED, 0), Pair(PM_LEFT, 0)));
    EXPECT_EQ(gpPresent->Focus(), page);
}

TEST_F(TabWindowTest, KeysThatNobodyHasAUseForAreItsHolders)
{
    test::Listener holder;
    gpPresent->Remove(window);
    holder.Add(window);
    window->Message({.wType = PM_KEY, .iData = '5'});
    EXPECT_THAT(holder.heard, ElementsAre(Pair(PM_KEY, '5')));
    holder.Remove(window);
    gpPresent->Add(window);
}

TEST_F(TabWindowTest, UpGoesToTheBarAndTheTargetSaysWhenThePageIsEntered)
{
    press(PK_UP);
    EXPECT_EQ(gpPresent->Focus(), window);
    EXPECT_TRUE(window->bar().hasFocus());
    press(PK_DOWN);
    EXPECT_THAT(listener.heard, ElementsAre(Pair(PM_CLICKED, 0)));
    EXPECT_EQ(gpPresent->Focus(), window);
    window->setPlace(TabWindow::PAGE);
    EXPECT_EQ(gpPresent->Focus(), page);
    EXPECT_FALSE(window->bar().hasFocus());
}

TEST_F(TabWindowTest, PageThatIsTakenOutHasItsFormerAreaAndLeavesTheFocusToTheBar)
{
    window->Remove(page);
    const std::unique_ptr<PegThing> loose(page);
    EXPECT_EQ(page->Area(), host::rectAt(7, 7, 50, 50));
    EXPECT_EQ(window->page(), nullptr);
    EXPECT_EQ(gpPresent->Focus(), window);
    EXPECT_TRUE(window->bar().hasFocus());
}

TEST_F(TabWindowTest, PageThatDiesLeavesTheFocusToTheBar)
{
    delete page;
    EXPECT_EQ(window->page(), nullptr);
    EXPECT_EQ(gpPresent->Focus(), window);
}

TEST_F(TabWindowTest, AnotherPageTakesThePlace)
{
    auto* const other = new PegWindow;
    window->setPage(other);
    const std::unique_ptr<PegThing> loose(page);
    EXPECT_EQ(page->Parent(), nullptr);
    window->placeFocus();
    EXPECT_EQ(gpPresent->Focus(), other);
}

TEST_F(TabWindowTest, FocusThatIsElsewhereStaysThere)
{
    auto* const popup = new PegWindow;
    gpPresent->Add(popup);
    gpPresent->MoveFocusTree(popup);
    window->setPlace(TabWindow::BAR);
    delete page;
    EXPECT_EQ(gpPresent->Focus(), popup);
}

TEST_F(TabWindowTest, StatusLinesTakeRoomFromThePage)
{
    window->status().setText(0, "Forwarded");
    window->status().setLines(1);
    EXPECT_EQ(window->bar().Area().top, 17);
    EXPECT_EQ(page->Area(), host::rectAt(0, 37, 240, 91));
    window->status().setText(0, " ");
    EXPECT_EQ(page->Area(), host::rectAt(0, 20, 240, 108));
}

TEST_F(TabWindowTest, ClockAloneKeepsAStatusLine)
{
    host::StatusTime time;
    window->status().setLines(2);
    EXPECT_EQ(window->status().lines(), 0);
    time.showClock(true);
    EXPECT_EQ(window->status().lines(), 1);
    EXPECT_EQ(window->bar().Area().top, 17);
    time.showClock(false);
    EXPECT_EQ(window->bar().Area().top, 0);
}

} // namespace
