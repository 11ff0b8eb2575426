#include "widgets/SystemWindow.h"

#include "host/lcd/Geometry.h"

#include <gtest/gtest.h>

namespace {

TEST(SystemWindowTest, keepsSixLines)
{
    SystemWindow window;
    for (int line = 0; line < SystemWindow::MAX_LINES; ++line)
        window.setSystemWindowText(line, "line " + std::to_string(line));
    EXPECT_EQ(window.getSystemWindowText(0), "line 0");
    EXPECT_EQ(window.getSystemWindowText(5), "line 5");
}

TEST(SystemWindowTest, ignoresOtherLines)
{
    SystemWindow window;
    window.setSystemWindowText(-1, "x");
    window.setSystemWindowText(6, "x");
    EXPECT_EQ(window.getSystemWindowText(-1), "");
    EXPECT_EQ(window.getSystemWindowText(6), "");
}

TEST(SystemWindowTest, isAsHighAsItsLines)
{
    SystemWindow window;
    EXPECT_TRUE(host::isEmpty(window.Area()));
    window.setSystemWindowTop(40, true, false);
    window.setSystemWindowSize(2);
    EXPECT_EQ(window.Area().top, 40);
    EXPECT_EQ(host::heightOf(window.Area()), 36);
    window.setSystemWindowSize(100);
    EXPECT_EQ(host::heightOf(window.Area()), 6 * 18);
    window.setSystemWindowSize(-1);
    EXPECT_TRUE(host::isEmpty(window.Area()));
}

TEST(SystemWindowTest, isNoPopupAtFirst)
{
    SystemWindow window;
    EXPECT_FALSE(window.isPopup());
    window.setAsPopup(true);
    EXPECT_TRUE(window.isPopup());
}

} // namespace
