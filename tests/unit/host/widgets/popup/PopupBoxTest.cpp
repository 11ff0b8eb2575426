#include "host/widgets/popup/PopupBox.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/widgets/edit/EditLine.h"
#include "host/widgets/menu/CommandColumn.h"
#include "support/Keys.h"
#include "support/RunningToolkit.h"

#include <gmock/gmock.h>

using host::PopupBox;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class PopupBoxTest : public testing::TestWithParam<host::Variant> {
protected:
    struct Panel {
        Panel() { host::setVariant(GetParam()); }
        ~Panel() { host::setVariant(host::Variant::PLAIN); }
    };

    PopupBoxTest() { box.setMessageTarget(&listener); }

    void press(int key)
    {
        PegMessage message;
        message.wType = PM_KEY;
        message.iData = key;
        box.Message(message);
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    Panel panel;
    test::StartedToolkit toolkit;
    test::Listener listener;
    PopupBox box;
};

} // namespace

TEST_P(PopupBoxTest, StandsInTheMiddleOfThePanelOrTakesBothLines)
{
    box.setHeader(test::peg("Delete?"));
    box.setBody({test::peg("Ada")});
    box.setCommands(test::pegs({"Yes", "No"}));
    const PegRect all = gpPresent->Area();
    EXPECT_TRUE(host::contains(all, box.Area()));
    if (isSmall())
        EXPECT_EQ(box.Area(), all);
    else
        EXPECT_EQ(box.Area().top - all.top, all.bottom - box.Area().bottom);
}

TEST_P(PopupBoxTest, GrowsWithItsPartsAndNeverBeyondThePanel)
{
    const int empty = host::heightOf(box.Area());
    box.setBody({test::peg("One"), test::peg("Two")});
    const int lines = host::heightOf(box.Area());
    EXPECT_TRUE(isSmall() ? lines == empty : lines > empty);
    box.setBody(std::vector<PopupBox::Line>(50, test::peg("Line")));
    EXPECT_TRUE(host::contains(gpPresent->Area(), box.Area()));
}

TEST_P(PopupBoxTest, HeaderWithNothingButAMarkIsShown)
{
    box.setBody({test::peg("Ada")});
    EXPECT_TRUE(host::isEmpty(box.headerArea()));
    box.setHeader({PegString(), nullptr, &host::icons::BACK});
    EXPECT_FALSE(host::isEmpty(box.headerArea()));
}

TEST_P(PopupBoxTest, KeepsHeaderAndBarWhereThereIsNoRoomForTheBody)
{
    box.setHeader(test::peg("Delete?"));
    box.setBody(std::vector<PopupBox::Line>(50, test::peg("Line")));
    box.setCommands(test::pegs({"Yes", "No"}));
    EXPECT_FALSE(host::isEmpty(box.bar().Area()));
    EXPECT_TRUE(host::contains(box.Area(), box.bar().Area()));
    EXPECT_GT(box.bar().Area().top, box.Area().top + host::Field::lineHeight() - 1);
}

TEST_P(PopupBoxTest, KeepsFieldAndBarWhereThereIsNoRoomForTheHeader)
{
    auto* const line = new host::EditLine;
    box.setHeader(test::peg("Dial"));
    box.setField(line);
    box.setCommands(test::pegs({"Call"}));
    EXPECT_EQ(host::heightOf(line->Area()), host::Field::lineHeight());
    EXPECT_EQ(host::heightOf(box.bar().Area()), host::Field::lineHeight());
    EXPECT_FALSE(host::overlap(line->Area(), box.bar().Area()));
}

TEST_P(PopupBoxTest, LeavesFreeWhatIsToStayFree)
{
    const int line = host::Field::lineHeight();
    box.setBody(std::vector<PopupBox::Line>(50, test::peg("Line")));
    box.setStatusLines(1);
    EXPECT_GE(box.Area().top, line);
    EXPECT_TRUE(host::contains(gpPresent->Area(), box.Area()));
    if (isSmall())
        EXPECT_EQ(box.Area().top, line);
    else
        EXPECT_EQ(box.Area().top - line, gpPresent->Area().bottom - box.Area().bottom);
}

TEST_P(PopupBoxTest, StatusLinesAreOnScreenAsLongAsTheBoxIs)
{
    box.setStatusLines(1);
    box.setStatusText(0, "Line 1");
    EXPECT_EQ(gpPresent->First(), nullptr);
    gpPresent->Add(&box);
    EXPECT_EQ(box.NextSibling() != nullptr, !isSmall());
    box.setStatusLines(0);
    EXPECT_EQ(box.NextSibling(), nullptr);
    box.setStatusLines(1);
    gpPresent->Remove(&box);
    EXPECT_EQ(gpPresent->First(), nullptr);
}

TEST_P(PopupBoxTest, FitsAFieldThatHasGrown)
{
    auto* const column = new host::CommandColumn;
    column->setMostRows(2);
    box.setField(column);
    for (int i = 0; i < 2; ++i)
        column->insert(i, {.text = test::peg("Call")});
    box.fitField();
    EXPECT_EQ(host::heightOf(column->Area()), 2 * host::Field::lineHeight());
}

TEST_P(PopupBoxTest, TellsWhatItsBarTellsAndWhichKeysNobodyWants)
{
    box.setCommands(test::pegs({"Yes", "No"}));
    press(PK_RIGHT);
    press(PK_OK);
    press(PK_RIGHT);
    press('5');
    EXPECT_THAT(listener.heard, ElementsAre(Pair(PM_CURRENT_CHANGED, 1), Pair(PM_CLICKED, 1), Pair(PM_KEY, PK_RIGHT),
                                            Pair(PM_KEY, '5')));
}

TEST_P(PopupBoxTest, GivesKeysToItsFieldFirst)
{
    auto* const line = new host::EditLine;
    box.setCommands(test::pegs({"Call", "Cancel"}));
    box.setField(line);
    EXPECT_TRUE(line->hasFocus());
    EXPECT_FALSE(box.bar().hasFocus());
    press('4');
    press(PK_RIGHT);
    press(PK_OK);
    EXPECT_EQ(line->text(), test::peg("4"));
    EXPECT_THAT(listener.heard, ElementsAre(Pair(PM_CURRENT_CHANGED, 1), Pair(PM_CLICKED, 1)));
    box.setField(nullptr);
    EXPECT_TRUE(box.bar().hasFocus());
}

TEST_P(PopupBoxTest, SaysNothingWithoutATarget)
{
    box.setCommands(test::pegs({"Yes"}));
    box.setMessageTarget(nullptr);
    press(PK_OK);
    press('5');
    EXPECT_THAT(listener.heard, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Panel, PopupBoxTest,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
