#include "KVXListPrivate.h"

#include "DisplayAPI/KVXList.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "doubles/DisplayPrivateDouble.h"
#include "doubles/Mocks.h"
#include "doubles/Recorder.h"
#include "host/lcd/Geometry.h"
#include "support/SteppedLoop.h"
#include "utilities/ICC.h"
#include "utilities/Rect.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelApplication.h"
#include "widgets/KestrelListBoxItem.h"

using namespace DisplayAPI;
using testing::_;
using testing::ElementsAre;
using testing::NiceMock;

namespace {

/// The side of a list, on the GUI thread.
class KVXListPrivateTest : public test::SteppedTest {
protected:
    KVXListPrivateTest()
    {
        list.addCommandListener(&listener);
        for (const char* row : {"Ada", "Bert"})
            list.append(row);
        ON_CALL(listener, postCommandAction).WillByDefault([this](Command* command, Displayable* raisedFor) {
            EXPECT_EQ(raisedFor, &list);
            raised.push_back(command);
        });
    }
    ~KVXListPrivateTest() override { KestrelApplication::getCurrentApplication()->setLocale(PegString()); }

    KVXListPrivate& side() { return dynamic_cast<KVXListPrivate&>(*list.getPrivateImpl()); }
    KestrelListBoxWithTitle& widget() { return dynamic_cast<KestrelListBoxWithTitle&>(*side().getWidget()); }
    int tell(std::uint16_t type, int row = 0) { return side().Message({.wType = type, .iData = row}); }

    NiceMock<doubles::MockCommandListener> listener;
    std::vector<Command*> raised;
    KVXList list;
};

TEST_F(KVXListPrivateTest, MakesItsWidgetAndOwnsIt)
{
    EXPECT_NE(widget().Style() & FF_NONE, 0);
    EXPECT_EQ(side().getParent(), &list);
    EXPECT_TRUE(side().hasSystemWindow());
    EXPECT_FALSE(side().hasCaption());
    EXPECT_TRUE(side().hideOldWidgetOnFocusGained());
}

TEST_F(KVXListPrivateTest, EachMessageOfTheToolkitRaisesItsCommand)
{
    EXPECT_EQ(tell(16394), 0);
    EXPECT_EQ(tell(16395), 0);
    EXPECT_EQ(tell(16396), 0);
    EXPECT_THAT(raised, ElementsAre(List::SELECT_COMMAND(), List::BACK_COMMAND(), List::RIGHT_COMMAND()));
}

TEST_F(KVXListPrivateTest, OtherMessagesAreNotHandled)
{
    for (const int type : {0, 40, 16391, 16393, 16397, 16409, 16411})
        EXPECT_EQ(tell(static_cast<std::uint16_t>(type)), 0);
    EXPECT_TRUE(raised.empty());
    EXPECT_FALSE(side().selectionchanged());
}

TEST_F(KVXListPrivateTest, KeysBecomeCommands)
{
    for (const int key : {PK_OK, PK_RIGHT, PK_LEFT})
        widget().Message({.wType = PM_KEY, .iData = key});
    EXPECT_THAT(raised, ElementsAre(List::SELECT_COMMAND(), List::RIGHT_COMMAND(), List::BACK_COMMAND()));
}

TEST_F(KVXListPrivateTest, ChangeOfTheCurrentRowIsAnsweredOnce)
{
    EXPECT_EQ(tell(16392, 1), 0);
    EXPECT_TRUE(side().selectionchanged());
    EXPECT_FALSE(side().selectionchanged());
}

TEST_F(KVXListPrivateTest, DisplayHearsOfLinesOfTheWayBackAndOfItsComing)
{
    doubles::DisplayPrivateDouble display;
    side().connectDisplayChangedSignal(&display);
    doubles::Recorder::instance().clear();
    list.setDisplayText(0, "first");
    list.setDisplayText(0, nullptr);
    tell(PM_LEFT);
    tell(PM_CURRENT_CHANGED, 1);
    side().show();
    EXPECT_EQ(doubles::Recorder::instance().count("display: displayChanged"), 5);
    side().connectDisplayChangedSignal(nullptr);
}

TEST_F(KVXListPrivateTest, TellsTheDisplayOfOneItHasJoinedUntilItLeaves)
{
    doubles::DisplayPrivateDouble display;
    KVXListPrivate attached(nullptr);
    attached.connectDisplayChangedSignal(&display);
    ListBoxPrivateIfc& joining = side();
    joining.join(&attached);
    doubles::Recorder::instance().clear();
    joining.setSelectedIndex(1);
    joining.disjoin();
    joining.setSelectedIndex(0);
    EXPECT_EQ(doubles::Recorder::instance().count("display: displayChanged"), 1);
}

TEST_F(KVXListPrivateTest, NewLocaleReachesTheRows)
{
    doubles::Recorder::instance().clear();
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("de_DE"));
    EXPECT_EQ(doubles::Recorder::instance().count("ListItemPrivate::localeChanged"), 2);
}

TEST_F(KVXListPrivateTest, LinesOfItsOwnComeBackWithIt)
{
    list.setDisplayText(0, "first");
    list.setDisplayText(1, "second");
    side().setSysWindowSize(0);
    EXPECT_EQ(widget().systemWindowLines(), 0);
    side().show();
    EXPECT_EQ(widget().systemWindowLines(), 2);
}

TEST_F(KVXListPrivateTest, LinesOfTheDisplayStandInTheSamePlace)
{
    side().setSysWindowText("Gr\xC3\xBC\xC3\x9F", 1);
    side().setSysWindowSize(2);
    EXPECT_EQ(widget().systemWindowText(1), "Gr\xC3\xBC\xC3\x9F");
    list.setSystemWindowText(0, "zero");
    list.setSystemWindowSize(1);
    EXPECT_EQ(widget().systemWindowLines(), 1);
    EXPECT_EQ(widget().systemWindowText(0), "zero");
}

TEST_F(KVXListPrivateTest, BothFormsOfItsTextAreTheSame)
{
    list.setDisplayText(0, "first");
    const PegRect& area = widget().Area();
    const DisplayAPIUtils::Rect whole(area.left, area.top, host::widthOf(area), host::heightOf(area));
    EXPECT_EQ(side().serialise(), side().serialise({whole}));
    EXPECT_EQ(side().serialise(), "object:\nname:KestrelListBox\n"
                                  "subitem:\nname:SystemWindow\nstring0:first\nendsubitem:\n"
                                  "subitem:\nname:KestrelListBoxItem\nstring0:Ada\nendsubitem:\n"
                                  "subitem:\nname:KestrelListBoxItem\nstring0:Bert\nendsubitem:\nend:\n");
}

TEST_F(KVXListPrivateTest, TextIsOfWhatCanBeSeen)
{
    const PegRect second = widget().rowArea(1);
    EXPECT_EQ(side().serialise({DisplayAPIUtils::Rect(0, second.top, 5, 5)}),
              "object:\nname:KestrelListBox\n"
              "subitem:\nname:KestrelListBoxItem\nstring0:Bert\nendsubitem:\nend:\n");
    EXPECT_EQ(side().serialise({DisplayAPIUtils::Rect(0, 500, 5, 5)}), "object:\nname:KestrelListBox\nend:\n");
}

TEST_F(KVXListPrivateTest, WidgetThatHasDiedIsMissed)
{
    side().releaseOwnership();
    delete side().getWidget();
    EXPECT_EQ(side().getWidget(), nullptr);
    list.setDisplayText(0, "first");
    list.append("Cleo");
    list.setSelectedIndex(0);
    list.hide();
    side().show();
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(list.getSelectedIndex(), -1);
    EXPECT_EQ(side().serialise(), "object:\nname:KestrelListBox\nend:\n");
}

TEST_F(KVXListPrivateTest, OneWithoutAnOwnerKeepsItsLinesAndRows)
{
    KestrelListBoxItem item(ICC::fromUTF8toUNICODE("Ada"));
    KVXListPrivate alone(nullptr);
    alone.titletext(0, "first");
    alone.localeChanged("de_DE");
    alone.Message({.wType = PM_LEFT});
    EXPECT_EQ(alone.size(), 0);
}

} // namespace
