#include "GuiThread.h"

#include "DisplayAPI/Widget.h"
#include "doubles/Screen.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"

namespace {

class GuiThreadTest : public test::SteppedTest {
protected:
    void callOnOtherThread()
    {
        test::onOtherThread([this] { screen.callListeners(nullptr); });
    }

    doubles::Screen screen{"menu"};
};

using GuiThreadDeathTest = GuiThreadTest;

} // namespace

#ifdef DISPLAYAPI_CHECKED
TEST_F(GuiThreadDeathTest, AnotherThreadIsToldWhoseTheOperationIsAndWhatToDo)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH(callOnOtherThread(), "Displayable::callListeners.. is the GUI thread's.*setGuiThreadId");
}
#else
TEST_F(GuiThreadDeathTest, BuildsThatAreNotCheckedLookAtNothing)
{
    callOnOtherThread();
}
#endif

TEST_F(GuiThreadTest, TheGuiThreadMayCallWhatIsItsOwn)
{
    screen.callListeners(nullptr);
}

TEST_F(GuiThreadTest, WithoutAFilterEveryThreadMay)
{
    gui.removeFilter();
    callOnOtherThread();
}

TEST_F(GuiThreadTest, WhileNoGuiThreadIsRecordedEveryThreadMay)
{
    DisplayAPI::Widget::setGuiThreadId(0);
    callOnOtherThread();
    DisplayAPI::Widget::setGuiThreadId();
}
