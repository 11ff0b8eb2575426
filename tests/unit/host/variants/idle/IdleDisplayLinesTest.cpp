#include "unit/host/variants/idle/IdleDisplayVariantTest.h"

#include "DisplayAPI/ContextMenu.h"

using namespace DisplayAPI;
using testing::HasSubstr;

namespace {

using IdleDisplayLinesTest = test::IdleDisplayVariantTest;

TEST_P(IdleDisplayLinesTest, OwnLinesStandOnTheFullPanels)
{
    idle->setCurrentPhoneNumber("4711");
    idle->setSystemWindowText(0, "Line 1");
    idle->setSystemWindowText(1, "Night");
    idle->setSystemWindowSize(2);
    EXPECT_EQ(shows("caption:Line 1\n"), !isSmall());
    EXPECT_EQ(shows(item("SystemWindow", "Night")), !isSmall());
    idle->setSystemWindowText(0, "");
    EXPECT_TRUE(shows("caption:4711\n"));
    idle->setSystemWindowSize(0);
    EXPECT_FALSE(shows("Night"));
}

TEST_P(IdleDisplayLinesTest, LinesThatDoNotExistAreIgnored)
{
    idle->setSystemWindowSize(7);
    idle->setSystemWindowText(-1, "Below");
    idle->setSystemWindowText(6, "Beyond");
    EXPECT_FALSE(shows("Below"));
    EXPECT_FALSE(shows("Beyond"));
}

/// As the owner of the lines does: texts and size once more.
TEST_P(IdleDisplayLinesTest, LinesOfTheDisplayComeBackAfterAMenu)
{
    const auto send = [this] {
        display.setSystemWindowText(0, "Line 1");
        display.setSystemWindowText(1, "Night");
        display.setSystemWindowSize(2);
    };
    send();
    EXPECT_EQ(shows("Night"), !isSmall());
    ContextMenu menu(false);
    menu.addCommand(call.get(), nullptr, false);
    menu.show();
    EXPECT_EQ(display.getCurrent(), &menu);
    press(PK_OK);
    EXPECT_EQ(display.getCurrent(), idle.get());
    send();
    EXPECT_EQ(shows("Night"), !isSmall());
}

TEST_P(IdleDisplayLinesTest, FocusIsTheScreensAfterAMenu)
{
    addCommands();
    ContextMenu menu(false);
    menu.addCommand(call.get(), nullptr, false);
    menu.show();
    press(PK_OK);
    press(PK_OK);
    EXPECT_TRUE(shows("MenuItem"));
}

INSTANTIATE_ON_PANELS(IdleDisplayLinesTest);

} // namespace
