// What a display does to the widgets themselves: their width, and word of the focus.

#include "unit/src/DisplayPrivateTest.h"

using DisplayPrivateWidgetTest = test::DisplayPrivateTest;

namespace {

/// A widget that wants to be told when the focus moves.
class FocusListener : public PegWindow {
public:
    FocusListener() { Type(TYPE_LIST_WP1); }
};

} // namespace

TEST_F(DisplayPrivateWidgetTest, AWidgetWiderThanTheAreaIsCutToItsWidth)
{
    struct Panel {
        const char* hardware;
        bool narrow;
        int width;
    };
    for (const auto& [hardware, narrow, width] : {Panel{"any", false, 240}, {"any", true, 168}, {"WP1", false, 208}}) {
        makeDisplay(hardware, narrow);
        Screen wide("wide");
        wide.widget()->Resize({5, 7, 400, 20});
        given({&wide});
        EXPECT_EQ(wide.widget()->Area(), (PegRect{5, 7, static_cast<std::int16_t>(5 + width - 1), 20}));
    }
}

TEST_F(DisplayPrivateWidgetTest, AWidgetAsWideAsTheAreaIsLeftAlone)
{
    menu.widget()->Resize({5, 7, 244, 300});
    given({&menu});
    EXPECT_EQ(menu.widget()->Area(), (PegRect{5, 7, 244, 300}));
}

TEST_F(DisplayPrivateWidgetTest, AFocusListenerIsToldWhenItIsAddedAndWhenItIsShown)
{
    given({});
    Screen list("list", doubles::ScreenPrivate::SCREEN, new FocusListener);
    display->setCurrent(&list);
    const auto messages = gui.messages();
    ASSERT_EQ(messages.size(), 2u);
    for (const PegMessage& message : messages) {
        EXPECT_EQ(message.wType, 0x401E);
        EXPECT_EQ(message.pTarget, list.widget());
        EXPECT_EQ(message.pSource, nullptr);
    }
    gui.runAll();
}

TEST_F(DisplayPrivateWidgetTest, AFocusListenerIsToldOnceWhenItIsShownAgain)
{
    Screen list("list", doubles::ScreenPrivate::SCREEN, new FocusListener);
    given({&list});
    gui.runAll();
    display->setCurrent(&list);
    EXPECT_EQ(gui.queued(), 1);
    gui.runAll();
}

TEST_F(DisplayPrivateWidgetTest, AFocusListenerIsToldTwiceWhenItIsRestored)
{
    Screen list("list", doubles::ScreenPrivate::SCREEN, new FocusListener);
    given({&list, &popup});
    gui.runAll();
    display->widgetDismissed(popup.getPrivateImpl());
    EXPECT_EQ(gui.queued(), 2);
    gui.runAll();
}

TEST_F(DisplayPrivateWidgetTest, AnyOtherWidgetIsToldNothing)
{
    given({&menu, &popup});
    display->widgetDismissed(popup.getPrivateImpl());
    EXPECT_EQ(gui.queued(), 0);
}
