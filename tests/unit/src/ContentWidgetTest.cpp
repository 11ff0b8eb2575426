#include "ContentWidget.h"

#include "ContentWidgetFactory.h"
#include "DisplayPrivate.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Mocks.h"
#include "host/lcd/Lcd.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/CountingHeap.h"
#include "support/SteppedLoop.h"
#include "toolkit/PegWindow.h"
#include "utilities/Rect.h"
#include "widgets/SystemWindow.h"

using namespace DisplayAPI;

namespace {

class ContentWidgetTest : public test::SteppedTest {
protected:
    SystemWindow& systemWindow() { return *content.getSystemWindow(); }

    ContentWidget content;
};

} // namespace

TEST_F(ContentWidgetTest, FramesTheLargestPanelWithABackground)
{
    const PegThing& window = *content.getConstPegWidget();
    EXPECT_EQ(content.getPegWidget(), &window);
    EXPECT_EQ(window.Area(), (PegRect{0, 0, 240, 128}));
    EXPECT_EQ(window.Style(), 0x4001);
    EXPECT_EQ(window.Type(), TYPE_WINDOW);
    EXPECT_EQ(content.width(), 241);
    EXPECT_EQ(content.height(), 129);
}

TEST_F(ContentWidgetTest, WidthAndHeightFollowTheWindow)
{
    content.getPegWidget()->Resize({10, 20, 29, 24});
    EXPECT_EQ(content.width(), 20);
    EXPECT_EQ(content.height(), 5);
}

TEST_F(ContentWidgetTest, GeometryAndStackingDoNothing)
{
    content.setGeometry({0, 0, 1, 1});
    content.show();
    content.hide();
    content.showMaximized();
    content.move(5, 5);
    content.raise();
    content.activateWindow();
    EXPECT_EQ(content.getPegWidget()->Area(), (PegRect{0, 0, 240, 128}));
    EXPECT_EQ(content.getPegWidget()->Parent(), nullptr);
}

TEST_F(ContentWidgetTest, StartsWithoutLinesAndParent)
{
    EXPECT_EQ(content.getSWCurrentNumLines(), 0);
    EXPECT_EQ(content.getParent(), nullptr);
    content.setSWCurrentNumLines(4);
    EXPECT_EQ(content.getSWCurrentNumLines(), 4);
}

TEST_F(ContentWidgetTest, SystemWindowLinesPassStraightOn)
{
    content.setSystemWindowText(2, "Missed calls");
    EXPECT_EQ(systemWindow().getSystemWindowText(2), "Missed calls");
    EXPECT_EQ(content.getSystemWindowText(2), "Missed calls");
    EXPECT_EQ(content.getSystemWindowText(3), "");
}

TEST_F(ContentWidgetTest, TextOfALineIsStoredAsItComes)
{
    content.setSystemWindowSize(1);
    content.setSystemWindowText(0, std::string(100, 'a'));
    std::string text(200, 'b');
    const int before = test::gHeapAllocations;
    content.setSystemWindowText(0, std::move(text));
    EXPECT_EQ(test::gHeapAllocations - before, 0);
    EXPECT_EQ(content.getSystemWindowText(0), std::string(200, 'b'));
}

TEST_F(ContentWidgetTest, SystemWindowSizeAndTopPassStraightOn)
{
    SystemWindow expected;
    content.setSystemWindowSize(3);
    content.setSystemWindowTop(10, true, false);
    expected.setSystemWindowSize(3);
    expected.setSystemWindowTop(10, true, false);
    EXPECT_EQ(systemWindow().Area(), expected.Area());
}

TEST_F(ContentWidgetTest, PopupFlagPassesStraightOn)
{
    content.setSystemWindowAsPopup(true);
    EXPECT_TRUE(systemWindow().isPopup());
    content.setSystemWindowAsPopup(false);
    EXPECT_FALSE(systemWindow().isPopup());
}

TEST_F(ContentWidgetTest, HearsOfItsOwnSystemWindowUntilAnotherDoes)
{
    EXPECT_EQ(systemWindow().eventHandler(), &content);
    content.setEventHandler(nullptr);
    EXPECT_EQ(systemWindow().eventHandler(), nullptr);
}

TEST_F(ContentWidgetTest, NewCaptionBecomesLineZeroOfAPopup)
{
    content.OnChange(PegMessage(), "Gr\xC3\xBC\xC3\x9F Gott");
    EXPECT_EQ(content.getSystemWindowText(0), "Gr\xC3\xBC\xC3\x9F Gott");
    EXPECT_TRUE(systemWindow().isPopup());
}

TEST_F(ContentWidgetTest, ACaptionThatIsToldAgainIsPaintedAgain)
{
    content.setSystemWindowSize(2);
    content.OnChange(PegMessage(), "caption");
    gpPresent->Add(content.getSystemWindow());
    host::Lcd::current()->paint();
    ASSERT_FALSE(host::Lcd::current()->isDirty());
    content.OnChange(PegMessage(), "caption");
    EXPECT_TRUE(host::Lcd::current()->isDirty()) << "it has been no popup for a moment";
}

TEST_F(ContentWidgetTest, NewCaptionTellsTheParentDisplay)
{
    testing::StrictMock<doubles::MockDisplayEvent> observer;
    DisplayPrivate display(false, "", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, false);
    display.subscribe(&observer);
    content.setParent(&display);
    EXPECT_EQ(content.getParent(), &display);
    EXPECT_CALL(observer, displayChanged("")).Times(1);
    content.OnChange(PegMessage(), "caption");
}

TEST_F(ContentWidgetTest, KeysOfTheSystemWindowDoNothing)
{
    content.OnLeft(PegMessage());
    content.OnRight(PegMessage());
    content.OnUp(PegMessage());
    content.OnDown(PegMessage());
    content.OnOK(PegMessage());
    EXPECT_EQ(content.getSystemWindowText(0), "");
}

TEST_F(ContentWidgetTest, DeletesItsWindows)
{
    // Their destructors leave the screen: a widget that lives on would still be a child there.
    PegWindow screen;
    {
        ContentWidget doomed;
        screen.Add(doomed.getPegWidget(), false);
        screen.Add(doomed.getSystemWindow(), false);
    }
    EXPECT_EQ(screen.First(), nullptr);
}

TEST_F(ContentWidgetTest, FactoryMakesANewOneEachTime)
{
    ContentWidgetFactory factory;
    const std::unique_ptr<ContentWidget> first(factory.createContentWidget());
    const std::unique_ptr<ContentWidget> second(factory.createContentWidget());
    EXPECT_NE(first, nullptr);
    EXPECT_NE(first, second);
}
